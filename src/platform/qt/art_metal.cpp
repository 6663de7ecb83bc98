// The deck's materials: brushed metal with its grain, aluminium and graphite caps, recesses and lamps.
#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

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

  /// Adds `strength` times the noise of one row to `out`; x runs in steps of `step`.
  void addRow(float y, float step, float strength, std::vector<float>& out) const {
    const float floorY = std::floor(y);
    const float dy = y - floorY;
    const float blendY = fade(dy);
    const int row = static_cast<int>(floorY);
    int cell = -1;
    Slope a{}, b{}, c{}, d{};
    for (size_t i = 0; i < out.size(); ++i) {
      const float x = static_cast<float>(i) * step;
      if (static_cast<int>(x) != cell) {
        cell = static_cast<int>(x);
        a = at(cell, row);
        b = at(cell + 1, row);
        c = at(cell, row + 1);
        d = at(cell + 1, row + 1);
      }
      const float dx = x - static_cast<float>(cell);
      const float blendX = fade(dx);
      const float top = std::lerp(a.x * dx + a.y * dy, b.x * (dx - 1) + b.y * dy, blendX);
      const float bottom = std::lerp(c.x * dx + c.y * (dy - 1), d.x * (dx - 1) + d.y * (dy - 1), blendX);
      out[i] += strength * std::lerp(top, bottom, blendY);
    }
  }

 private:
  struct Slope {
    float x;
    float y;
  };
  static float fade(float t) { return t * t * (3 - 2 * t); }
  const Slope& at(int x, int y) const {
    const uint32_t mixed = (static_cast<uint32_t>(x) * 0x9E3779B1U) ^ (static_cast<uint32_t>(y) * 0x85EBCA77U);
    return slopes_[(mixed ^ mixed >> 15U) & 255U];
  }
  std::array<Slope, 256> slopes_;
};

/// Streaks of light and dark over the whole window, made once for each scale: brushed along x.
const QImage& grainTile(double factor) {
  static QImage tile;
  static double made = 0;
  if (made == factor) return tile;
  made = factor;
  constexpr int kWide = 800;  // design pixels; the window is no larger
  constexpr int kHigh = 300;
  const int wide = static_cast<int>(kWide * factor);
  const int high = static_cast<int>(kHigh * factor);
  const Noise light(7);
  const Noise dark(21);
  std::vector<float> white(static_cast<size_t>(wide));
  std::vector<float> black(static_cast<size_t>(wide));
  tile = QImage(wide, high, QImage::Format_ARGB32_Premultiplied);
  const auto scale = static_cast<float>(1 / factor);
  for (int y = 0; y < high; ++y) {
    std::fill(white.begin(), white.end(), 0.F);
    std::fill(black.begin(), black.end(), 0.F);
    const float at = static_cast<float>(y) * scale;
    light.addRow(at * 1.3F, .003F * scale, 1, white);
    light.addRow(at * 2.6F, .006F * scale, .5F, white);
    dark.addRow(at * 1.1F, .004F * scale, 1, black);
    dark.addRow(at * 2.2F, .008F * scale, .5F, black);
    auto* line = reinterpret_cast<QRgb*>(tile.scanLine(y));
    for (size_t x = 0; x < white.size(); ++x) {
      const float bright = std::clamp(.45F * (white[x] + 1) - .40F, 0.F, 1.F);
      const float dim = std::clamp(.55F * (black[x] + 1) - .46F, 0.F, 1.F);
      const int level = static_cast<int>(bright * (1 - dim) * 255);
      const int opacity = static_cast<int>((bright + dim - bright * dim) * 255);
      line[x] = qRgba(level, level, level, std::max(level, opacity));
    }
  }
  return tile;
}

}  // namespace

void edge(QPainter& painter, const QRectF& rect, double radius, double light, double dark, double width) {
  const auto pen = blendIn(rect, .35, 1,
                           {{0, alpha(Qt::white, light)},
                            {.45, alpha(Qt::white, light * .25)},
                            {.55, alpha(Qt::black, dark * .25)},
                            {1, alpha(Qt::black, dark)}});
  painter.setPen(QPen(QBrush(pen), width));
  painter.setBrush(Qt::NoBrush);
  const double in = width / 2;
  painter.drawRoundedRect(rect.adjusted(in, in, -in, -in), radius, radius);
}

void well(QPainter& painter, const QRectF& rect, double radius, const QColor& ground, double lip) {
  const QRectF outer = rect.adjusted(-lip, -lip, lip, lip);
  fill(painter, outer, blendIn(outer, .25, 1, {{0, alpha(Qt::black, .75)}, {.5, alpha(Qt::black, .35)}, {1, alpha(Qt::white, .3)}}),
       radius + lip);
  const double half = lip * .45;
  const QRectF inner = rect.adjusted(-half, -half, half, half);
  fill(painter, inner, blend(inner.topLeft(), inner.bottomLeft(), {{0, QColor(5, 6, 7)}, {1, QColor(27, 30, 33)}}), radius + half);
  fill(painter, rect, ground, radius);
}

void metal(Art& art, const QRectF& rect, const QColor& base, double radius, double grain) {
  QPainter& painter = art.painter;
  fill(painter, rect,
       blend(rect.topLeft(), rect.bottomLeft(),
             {{0, mix(base, Qt::white, .16)}, {.1, mix(base, Qt::white, .08)}, {.5, base}, {1, mix(base, Qt::black, .34)}}),
       radius);
  QBrush streaks(grainTile(art.factor));
  streaks.setTransform(QTransform::fromTranslate(-art.windowX, -art.windowY).scale(1 / art.factor, 1 / art.factor));
  painter.setOpacity(grain);
  fill(painter, rect, streaks, radius);
  painter.setOpacity(1);
  fill(painter, rect,
       blendIn(rect, 1, .5,
               {{0, alpha(Qt::white, .1)},
                {.28, alpha(Qt::white, .015)},
                {.5, alpha(Qt::white, .05)},
                {.62, alpha(Qt::white, 0)},
                {1, alpha(Qt::black, .16)}}),
       radius);
}

void aluminium(QPainter& painter, const QRectF& rect, double radius, bool pressed) {
  static const std::array<QColor, 5> kRest = {QColor(0xF4F5F6), QColor(0xDADDE0), QColor(0xBEC3C8), QColor(0x9BA1A8), QColor(0x868C94)};
  static const std::array<QColor, 5> kPressed = {QColor(0xA9AEB4), QColor(0xB4B9BE), QColor(0xB6BBC0), QColor(0xA6ACB2), QColor(0x9AA0A7)};
  const auto& a = pressed ? kPressed : kRest;
  if (!pressed) fill(painter, rect.translated(.5, 1.3), alpha(Qt::black, .55), radius);
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, a[0]}, {.12, a[1]}, {.55, a[2]}, {.9, a[3]}, {1, a[4]}}), radius);
  fill(painter, rect,
       blend(rect.topLeft(), rect.topRight(),
             {{0, alpha(Qt::white, .35)}, {.35, alpha(Qt::white, .05)}, {.6, alpha(Qt::white, .16)}, {1, alpha(Qt::black, .08)}}),
       radius);
  edge(painter, rect, radius, .95, .8, .7);
}

void graphite(QPainter& painter, const QRectF& rect, double radius, bool pressed) {
  const auto face =
      pressed
          ? blend(rect.topLeft(), rect.bottomLeft(), {{0, QColor(0x26292D)}, {.5, QColor(0x272A2F)}, {1, QColor(0x2E3237)}})
          : blend(rect.topLeft(), rect.bottomLeft(),
                  {{0, QColor(0x565B62)}, {.08, QColor(0x444950)}, {.5, QColor(0x2D3136)}, {.93, QColor(0x1C1F23)}, {1, QColor(0x121417)}});
  fill(painter, rect, face, radius);
  edge(painter, rect, radius, pressed ? .15 : .55, .9, .8);
}

void soft(QPainter& painter, const QRectF& rect, double radius, const QColor& colour, double spread) {
  // Rings from outside to inside, each a little stronger: near enough to a blur, and no picture to keep.
  constexpr int kRings = 6;
  const double part = 1 - std::pow(1 - static_cast<double>(colour.alphaF()), 1.0 / kRings);
  for (int ring = kRings; ring > 0; --ring) {
    const double out = spread * (2.0 * ring / kRings - 1);
    fill(painter, rect.adjusted(-out, -out, out, out), alpha(colour, part), std::max(radius + out, .1));
  }
}

void lamp(QPainter& painter, const QRectF& rect, const QColor& colour, bool lit, double radius) {
  fill(painter, rect.adjusted(-.6, -.6, .6, .6), QColor(5, 6, 7), radius + .6);
  if (lit) {
    soft(painter, rect.adjusted(-1, -1, 1, 1), radius + 1, alpha(colour, .35), 2.6);
    fill(painter, rect,
         blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(colour, Qt::white, .55)}, {.5, colour}, {1, mix(colour, Qt::black, .25)}}),
         radius);
  } else {
    fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(colour, Qt::black, .86)}, {1, mix(colour, Qt::black, .72)}}),
         radius);
  }
}

}  // namespace orvanta
