// Colours against each other, as the eye weighs them.
#include "base/colour.h"

#include <algorithm>
#include <cmath>

namespace orvanta {

namespace {

double luminance(Colour colour) {
  constexpr double kGamma = 2.2;
  const auto channel = [&](unsigned shift) { return std::pow((colour >> shift & 0xFFU) / 255.0, kGamma); };
  return .2126 * channel(0) + .7152 * channel(8) + .0722 * channel(16);
}

}  // namespace

double contrast(Colour a, Colour b) {
  constexpr double kFlare = .05;  // what any surface reflects
  const double one = luminance(a) + kFlare;
  const double other = luminance(b) + kFlare;
  return std::max(one, other) / std::min(one, other);
}

}  // namespace orvanta
