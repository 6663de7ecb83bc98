// Which field takes which text of a sheet.
#include "records/sheet.h"

#include "base/text.h"

namespace orvanta {

namespace {

bool fill(std::string& field, const std::string& text) {
  const std::string clean = withoutControls(trim(text));
  if (clean.empty() || !trim(field).empty()) return false;
  field = clean;
  return true;
}

}  // namespace

bool fillFromSheet(DiscTexts& texts, const SheetTexts& sheet) {
  bool any = fill(texts.discTitle, sheet.title);
  any = fill(texts.discArtist, sheet.performer) || any;
  any = fill(texts.discInfo[kGenre], sheet.genre) || any;
  any = fill(texts.extraInfo[kYear], sheet.date) || any;
  any = fill(texts.extraInfo[kUpcNumber], sheet.catalog) || any;
  for (size_t i = 0; i < sheet.tracks.size() && i + 1 < texts.trackTitles.size(); ++i) {
    const SheetTexts::Track& track = sheet.tracks[i];
    // On a disc of several performers each track says whose it is.
    const bool another = !track.performer.empty() && !track.title.empty() && track.performer != sheet.performer;
    any = fill(texts.trackTitles[i + 1], another ? track.performer + " - " + track.title : track.title) || any;
  }
  return any;
}

}  // namespace orvanta
