// What stands for a disc's texts while they are looked up, and must never outlive the lookup.
#pragma once

#include "state/shared_state.h"

namespace orvanta {

inline constexpr const char* kSearchingArtist = "Searching CDDB Online";
inline constexpr const char* kSearchingTitle = "Please Wait...";

inline bool searching(const DiscState& disc) { return disc.discArtist == kSearchingArtist; }

inline void putSearching(DiscState& disc) {
  disc.discArtist = kSearchingArtist;
  disc.discTitle = kSearchingTitle;
}

inline void clearSearching(DiscState& disc) {
  disc.discArtist.clear();
  disc.discTitle.clear();
}

}  // namespace orvanta
