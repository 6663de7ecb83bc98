// What plays, on the web: search engines, lyrics, the artist's own site.
#pragma once

#include <string>

#include "state/shared_state.h"
#include "web/addresses.h"
#include "web/browser.h"
#include "web/upward.h"

namespace orvanta {

class WebSearch {
 public:
  WebSearch(const WebPorts& ports, Browser& browser, SharedState& state, WebUpward& upward)
      : ports_(ports), browser_(browser), state_(state), upward_(upward) {}

  void searchwww(Search kind);
  /// The site that the user has entered for the disc.
  void awebsite();
  std::string webSite() const;
  /// The CDDB's site.
  void wsung();
  void alyrics();
  /// The browser as it is.
  void wb();

  /// The deck stays where it is. False: nothing was started.
  bool showPage(const std::string& address);
  bool lookForLyrics(const std::string& artist, const std::string& title);

 private:
  /// A page that takes the deck's place.
  void showInstead(const std::string& address);

  WebPorts ports_;
  Browser& browser_;
  SharedState& state_;
  WebUpward& upward_;
};

}  // namespace orvanta
