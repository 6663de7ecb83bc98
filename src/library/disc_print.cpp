// Print columns, with pages left to the printer.
#include "library/disc_print.h"

#include "base/text.h"
#include "library/disc_facts.h"
#include "library/list_text.h"
#include "platform/ports/printer.h"

namespace orvanta {

namespace {

constexpr const char* kFont = "MS Sans Serif";
constexpr double kPoints = 9;
constexpr int kHeadEnd = 1100;  ///< twips
constexpr int kCaption = 5;
constexpr int kValue = 47;
constexpr int kTitleColumn = 23;
constexpr size_t kNotes = 74;
constexpr size_t kSlice = 100;

}  // namespace

void DiscPrint::run(const DiscState& disc) {
  if (!printer_.ask()) return;
  head(disc);
  facts(disc);
  notes();
  tracks(disc);
  lyrics();
  printer_.endDocument();
}

void DiscPrint::line(int column, const std::string& text) {
  printer_.print(column, text);
  printer_.newLine();
}

void DiscPrint::pair(int first, const std::string& caption, int second, const std::string& value) {
  printer_.print(first, caption);
  line(second, value);
}

void DiscPrint::spacer() { line(1, "   "); }

void DiscPrint::head(const DiscState& disc) {
  printer_.newLine();
  printer_.setFont(kFont, kPoints, true);
  printer_.newLine();
  line(45, "Orvanta Music Library [" + disc.discKey + ".CD]");
  printer_.newLine();
  printer_.setFont(kFont, kPoints, false);
  printer_.moveTo(kHeadEnd);
  spacer();
}

void DiscPrint::facts(const DiscState& disc) {
  for (const DiscFact& row : discFacts(form_, disc)) {
    if (row.printed) pair(kCaption, row.paperCaption.empty() ? row.caption : row.paperCaption, kValue, row.value);
  }
}

void DiscPrint::notes() {
  spacer();
  line(kCaption, "LINER NOTES: ");
  for (const std::string& row : wrapWords(withoutControls(form_.Text3.caption.get()), kNotes)) line(kCaption, row);
  spacer();
  pair(kCaption, "# of TRACKS:", kTitleColumn, form_.Label12.caption);
  pair(kCaption, "TOTAL TIME:", kTitleColumn, form_.Label13.caption);
}

void DiscPrint::tracks(const DiscState& disc) {
  spacer();
  printer_.print(kCaption, "TRACK");
  pair(kTitleColumn, "DESCRIPTION", 91, "TIME");
  spacer();
  for (int track = 1; track <= listedTracks(disc); ++track) {
    printer_.print(7, std::to_string(track));
    pair(kTitleColumn, rowTitle(form_.List1.row(track - 1)), 93, disc.trackLengths[static_cast<size_t>(track)]);
  }
}

void DiscPrint::lyrics() {
  spacer();
  pair(kCaption, "TRACK", kTitleColumn, "TRACK LYRICS/INFO");
  for (int row = 0; row < form_.List2.count(); ++row) {
    const std::string words = lyricsOfRow(form_.List2, row);
    if (words.empty()) continue;
    printer_.print(7, std::to_string(row + 1));
    std::string_view rest = words;
    // One slice more than full ones: a text of a whole number of slices ends in an empty line.
    for (size_t slice = 0, count = characterCount(words) / kSlice + 1; slice < count; ++slice) {
      const std::string_view part = firstCharacters(rest, kSlice);
      line(kTitleColumn, std::string(part));
      rest.remove_prefix(part.size());
    }
  }
}

}  // namespace orvanta
