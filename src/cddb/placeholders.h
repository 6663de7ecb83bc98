// What stands for a disc's texts while they are looked up, and must never outlive the lookup.
#pragma once

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

inline constexpr const char* kSearchingArtist = "Searching CDDB Online";
inline constexpr const char* kSearchingTitle = "Please Wait...";

inline bool searching(const DiscState& disc) { return disc.discArtist == kSearchingArtist; }

inline void showSearching(CDForm& faceplate, DiscState& disc) {
  faceplate.Label12.caption = "Connecting to CDDB Online...";
  faceplate.Image14.visible = true;
  disc.discArtist = kSearchingArtist;
  disc.discTitle = kSearchingTitle;
}

/// Texts that were read or saved meanwhile stay.
inline void cleanSearching(CDForm& faceplate, DiscState& disc) {
  faceplate.Image14.visible = false;
  if (!searching(disc)) return;
  faceplate.Label12.caption = "";
  faceplate.Label13.caption = "";
  disc.discArtist.clear();
  disc.discTitle.clear();
}

}  // namespace orvanta
