// The deck's materials: brushed metal, aluminium and graphite caps, recesses and lamps.
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/qt/art_tools.h"

namespace orvanta {

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

void metal(Art& art, const QRectF& rect, const QColor& base, double radius, double strength) {
  QPainter& painter = art.painter;
  fill(painter, rect,
       blend(rect.topLeft(), rect.bottomLeft(),
             {{0, mix(base, Qt::white, .16)}, {.1, mix(base, Qt::white, .08)}, {.5, base}, {1, mix(base, Qt::black, .34)}}),
       radius);
  const QPointF corner(art.windowX, art.windowY);
  const QRectF inWindow = rect.translated(corner);
  const QRect piece = QRectF(inWindow.topLeft() * art.factor, inWindow.size() * art.factor).toAlignedRect();
  QBrush streaks(grain(piece, art.factor));
  const QPointF at = QPointF(piece.topLeft()) / art.factor - corner;
  streaks.setTransform(QTransform::fromTranslate(at.x(), at.y()).scale(1 / art.factor, 1 / art.factor));
  painter.setOpacity(strength);
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
