// Twips to pixels: the one transform.
#pragma once

#include <QRect>
#include <cmath>

namespace orvanta {

struct Scale {
  double factor = 1;       ///< device pixels to a design pixel
  int twipsPerPixel = 15;  ///< to a design pixel

  double perTwip() const { return factor / twipsPerPixel; }
  int pixels(int twips) const { return static_cast<int>(std::lround(twips * perTwip())); }
  int twips(double pixels) const { return static_cast<int>(std::lround(pixels / perTwip())); }
  /// Edges are snapped, not sizes, so that neighbours meet at every scale.
  QRect rect(int left, int top, int width, int height) const {
    return {QPoint(pixels(left), pixels(top)), QPoint(pixels(left + width) - 1, pixels(top + height) - 1)};
  }
};

}  // namespace orvanta
