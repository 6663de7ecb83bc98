// The brushed metal's grain. It is new on every row and slow along it, so that the noise is worked out at a few places
// of a row and drawn out between them: a picture for each panel is cheaper than one kept for the window.
#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

constexpr int kStride = 16;  ///< design pixels from place to place; the finest streak is 125 long

/// Gradient noise over a lattice: one octave of the grain.
class Noise {
 public:
  explicit Noise(uint32_t seed) {
    for (auto& slope : slopes_) {
      seed = seed * 1664525U + 1013904223U;
      const double angle = (seed >> 8U) * (2 * M_PI / 16777216.0);
      slope = {static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle))};
    }
  }

  /// Adds `strength` times the noise of one row to `out`, whose places are `step` apart from `x` on.
  void addRow(float x, float y, float step, float strength, std::vector<float>& out) const {
    const float floorY = std::floor(y);
    const float dy = y - floorY;
    const float blendY = fade(dy);
    const int row = static_cast<int>(floorY);
    for (float& place : out) {
      const float floorX = std::floor(x);
      const int cell = static_cast<int>(floorX);
      const float dx = x - floorX;
      const float blendX = fade(dx);
      const Slope& a = at(cell, row);
      const Slope& b = at(cell + 1, row);
      const Slope& c = at(cell, row + 1);
      const Slope& d = at(cell + 1, row + 1);
      const float top = between(a.x * dx + a.y * dy, b.x * (dx - 1) + b.y * dy, blendX);
      const float bottom = between(c.x * dx + c.y * (dy - 1), d.x * (dx - 1) + d.y * (dy - 1), blendX);
      place += strength * between(top, bottom, blendY);
      x += step;
    }
  }

 private:
  struct Slope {
    float x;
    float y;
  };
  static float fade(float t) { return t * t * (3 - 2 * t); }
  /// Not std::lerp, whose care for infinities costs a call.
  static float between(float from, float to, float part) { return from + (to - from) * part; }
  const Slope& at(int x, int y) const {
    const uint32_t mixed = (static_cast<uint32_t>(x) * 0x9E3779B1U) ^ (static_cast<uint32_t>(y) * 0x85EBCA77U);
    return slopes_[(mixed ^ mixed >> 15U) & 255U];
  }
  std::array<Slope, 256> slopes_;
};

/// The streaks at some places of a row: level in bits 0 to 7, opacity in bits 16 to 23, so that one product drags both.
class Row {
 public:
  Row(int first, size_t places) : first_(static_cast<float>(first)), white_(places), black_(places), streaks_(places) {}

  const std::vector<uint32_t>& at(float y) {
    std::fill(white_.begin(), white_.end(), 0.F);
    std::fill(black_.begin(), black_.end(), 0.F);
    add(light_, y * 1.3F, .003F, 1, white_);
    add(light_, y * 2.6F, .006F, .5F, white_);
    add(dark_, y * 1.1F, .004F, 1, black_);
    add(dark_, y * 2.2F, .008F, .5F, black_);
    for (size_t i = 0; i < streaks_.size(); ++i) {
      const float bright = std::clamp(.45F * (white_[i] + 1) - .40F, 0.F, 1.F);
      const float dim = std::clamp(.55F * (black_[i] + 1) - .46F, 0.F, 1.F);
      const auto level = static_cast<uint32_t>(bright * (1 - dim) * 255);
      const auto opacity = static_cast<uint32_t>((bright + dim - bright * dim) * 255);
      streaks_[i] = level | std::max(level, opacity) << 16U;
    }
    return streaks_;
  }

 private:
  void add(const Noise& noise, float y, float perPixel, float strength, std::vector<float>& out) const {
    const float step = perPixel * kStride;
    noise.addRow(first_ * step, y, step, strength, out);
  }

  const Noise light_{7};
  const Noise dark_{21};
  float first_;  ///< place, counted from the window's left edge
  std::vector<float> white_;
  std::vector<float> black_;
  std::vector<uint32_t> streaks_;
};

/// Where a pixel lies between two places: `part` of 256 of the way to the next.
struct Between {
  uint32_t place;
  uint32_t part;
};

}  // namespace

QImage grain(const QRect& piece, double factor) {
  const double stride = kStride * factor;
  const int first = static_cast<int>(std::floor(piece.left() / stride));
  std::vector<Between> columns(static_cast<size_t>(piece.width()));
  for (size_t x = 0; x < columns.size(); ++x) {
    const double at = (piece.left() + static_cast<int>(x)) / stride - first;
    const auto place = static_cast<uint32_t>(at);
    columns[x] = {place, static_cast<uint32_t>((at - place) * 256)};
  }
  Row row(first, columns.empty() ? 0 : columns.back().place + 2);
  QImage picture(piece.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < piece.height(); ++y) {
    const auto& streaks = row.at(static_cast<float>((piece.top() + y) / factor));
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (size_t x = 0; x < columns.size(); ++x) {
      const auto [place, part] = columns[x];
      const uint32_t both = (streaks[place] * (256 - part) + streaks[place + 1] * part) >> 8U;
      line[x] = (both & 0xFFU) * 0x010101U | (both & 0xFF0000U) << 8U;
    }
  }
  return picture;
}

}  // namespace orvanta
