// Texts of the disc as addresses, and the browser that gets them.
#include "web/web_search.h"

#include "base/text.h"
#include "library/list_text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr size_t kWebSite = 3;  ///< among a disc's extended fields
constexpr const char* kCddbSite = "https://gnudb.org";

}  // namespace

bool WebSearch::showPage(const std::string& address) {
  ports_.screen.setPointer(Pointer::Hourglass);
  const bool shown = browser_.launch(address);
  ports_.screen.setPointer(Pointer::Normal);
  return shown;
}

void WebSearch::showInstead(const std::string& address) {
  if (showPage(address)) upward_.minimise();
}

void WebSearch::searchwww(Search kind) {
  const DiscState& disc = state_.disc;
  const auto track = static_cast<size_t>(state_.transport.curTrack);
  const std::string song = track < disc.trackTitles.size() ? disc.trackTitles[track] : "";
  const std::string& other = kind == Search::ArtistAndTitle ? disc.discTitle : song;
  showInstead(searchAddress(state_.searchEngine(), searchQuery(disc.discArtist, other, kind)));
}

std::string WebSearch::webSite() const { return std::string(trim(extraField(state_.disc, kWebSite))); }

void WebSearch::awebsite() { showInstead(webAddress(webSite())); }

void WebSearch::wsung() { showInstead(kCddbSite); }

void WebSearch::alyrics() {
  if (lookForLyrics(state_.disc.discArtist, state_.disc.discTitle)) upward_.minimise();
}

void WebSearch::wb() { showInstead(""); }

bool WebSearch::lookForLyrics(const std::string& artist, const std::string& title) {
  if (!trim(artist).empty() && !trim(title).empty()) return showPage(lyricsAddress(state_.settings.lyricsSite, artist, title));
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta",
                         "You must enter the Artist and Title in the Library section before viewing Lyrics online");
  return false;
}

}  // namespace orvanta
