// The strip's place, in twips.
#include "strip/strip_place.h"

#include <utility>

namespace orvanta {

void StripPlace::restore() {
  if (!place_.restore(DataFile::StripPlace, {})) {
    const CDForm& deck = faceplate_;
    putUsual(screen_.workAreaOf({deck.left, deck.top, deck.left + deck.width, deck.top + deck.height}));
  }
  pulled_ = 0;
  place_.pullIn();
}

void StripPlace::reset() {
  putUsual(place_.area());
  moved();
}

void StripPlace::moved() {
  pulled_ = 0;
  place_.pullIn();
  save();
}

void StripPlace::unfolded() {
  const int before = form_.top;
  place_.pullIn();
  pulled_ += before - form_.top;
}

void StripPlace::folded() {
  form_.top = form_.top + std::exchange(pulled_, 0);
  place_.pullIn();
}

void StripPlace::putUsual(const WorkArea& area) {
  constexpr int kFromRight = 1000;
  place_.put(area, area.width() - form_.width - kFromRight, 0);
  place_.pullIn();
}

}  // namespace orvanta
