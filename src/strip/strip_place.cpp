// The strip's place, in twips.
#include "strip/strip_place.h"

namespace orvanta {

void StripPlace::restore() {
  if (!place_.restore(DataFile::StripPlace, {})) {
    const CDForm& deck = faceplate_;
    putUsual(screen_.workAreaOf({deck.left, deck.top, deck.left + deck.width, deck.top + deck.height}));
  }
  place_.pullIn();
}

void StripPlace::reset() { putUsual(place_.area()); }

void StripPlace::putUsual(const WorkArea& area) {
  constexpr int kFromRight = 1000;
  place_.put(area, area.width() - form_.width - kFromRight, 0);
  place_.pullIn();
}

void StripPlace::save() const {
  if (!wantsTray()) place_.save(DataFile::StripPlace);
}

}  // namespace orvanta
