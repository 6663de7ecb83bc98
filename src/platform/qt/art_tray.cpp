// The disc tray, half out and open: one picture, of which each panel shows its own slice. Points are design pixels at
// 15 twips from the corner of the window's place for it.
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

#include "platform/forms/design.h"
#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

struct TrayShape {
  QPolygonF bed;
  QRectF front;
  QPointF disc;
  QSizeF radius;
  double backTop;
};

TrayShape shapeOf(bool half) {
  if (half) {
    return {QPolygonF({{28, 0}, {212, 0}, {223, 24}, {233.5, 34}, {6.5, 34}, {17, 24}}), QRectF(5.5, 33, 229, 37), {120, 11}, {86, 24}, 0};
  }
  return {
      QPolygonF({{27, 4}, {213, 4}, {222, 26}, {238.5, 63}, {2, 63}, {18, 26}}), QRectF(1, 62, 238.5, 35.5), {120, 33.5}, {88, 24.5}, 4};
}

/// The rainbow of a disc that lies flat: twelve pastel spokes, twice round.
QConicalGradient spokes(QPointF centre) {
  static const QRgb kHues[] = {0xE4E8EB, 0xB9C0C6, 0x8F979F, 0xA9B7C4, 0xBFD3DA, 0xC4DDB9,
                               0xE0D9A6, 0xD9B7A8, 0xB8A9CB, 0x9FB2D0, 0xA7AEB5, 0xD6DADE};
  QConicalGradient gradient(centre, 0);
  for (int i = 0; i <= 24; ++i) gradient.setColorAt(i / 24.0, QColor(kHues[i % 12]));
  return gradient;
}

/// The hollow that a disc lies in, and the disc.
void disc(QPainter& p, const TrayShape& shape, bool there) {
  const auto ring = [&](double part, const QBrush& brush, const QPen& pen = Qt::NoPen) {
    p.setPen(pen);
    p.setBrush(brush);
    p.drawEllipse(QPointF(0, 0), 1.0 * part, 1.0 * part);
  };
  p.save();
  p.setClipPath([&] {
    QPainterPath path;
    path.addPolygon(shape.bed);
    return path;
  }());
  p.translate(shape.disc);
  p.scale(shape.radius.width(), shape.radius.height());
  ring(1.06, QColor(8, 9, 10), QPen(alpha(QColor(0x5A, 0x60, 0x67), .55), .008));
  if (!there) {
    ring(1, blend({0, -1}, {0, 1}, {{0, QColor(0x0E, 0x10, 0x12)}, {1, QColor(0x22, 0x25, 0x29)}}));
    ring(.97, Qt::NoBrush, QPen(alpha(Qt::white, .14), .01));
    ring(.36, QColor(0x0C, 0x0D, 0x0F), QPen(alpha(Qt::white, .16), .01));
    ring(.13, QColor(0x3A, 0x3F, 0x45), QPen(alpha(QColor(0xE8, 0xEC, 0xEF), .4), .01));
    p.restore();
    return;
  }
  ring(1, spokes({0, 0}));
  ring(1, blend({0, -1}, {0, 1}, {{0, alpha(Qt::black, .45)}, {.45, alpha(Qt::black, .05)}, {1, alpha(Qt::white, .12)}}));
  for (const double part : {.97, .8, .62}) ring(part, Qt::NoBrush, QPen(alpha(Qt::white, .16), .008));
  ring(.34, QColor(0xC9, 0xCE, 0xD2));
  ring(.22, QColor(0x7C, 0x84, 0x8B));
  ring(.125, QColor(0x0B, 0x0C, 0x0E), QPen(alpha(QColor(0xE8, 0xEC, 0xEF), .6), .01));
  p.restore();
}

/// Of the picture, from the control's corner; a window without a place for it has it in the control itself.
QPointF trayCorner(const Art& art) {
  const forms::Place place = art.control.form().area(forms::AreaKind::Tray);
  if (place.width <= 0) return {0, 0};
  return QPointF(place.left, place.top) * (art.k / 15) - QPointF(art.windowX, art.windowY);
}

}  // namespace

void paintTray(Art& art, bool half) {
  const TrayShape shape = shapeOf(half);
  // The right and lower slices have no colour of their own: the tray's is the main one's.
  const forms::Control* main = art.control.with(forms::Role::Colour);
  const QColor base = qColour(main != nullptr ? main->backColor.get() : art.control.backColor.get());
  QPainter& p = art.painter;
  p.save();
  p.setClipRect(QRectF(0, 0, art.w, art.h));
  const QPointF corner = trayCorner(art);
  p.translate(corner);
  p.scale(art.k, art.k);
  QPainterPath bed;
  bed.addPolygon(shape.bed);
  bed.closeSubpath();
  soft(p, shape.front.adjusted(3, 4, -1, 2), 3, alpha(Qt::black, .6), 4);
  p.setPen(QPen(QColor(0x4A, 0x4F, 0x56), .7));
  p.setBrush(blend({0, shape.backTop}, {0, shape.front.top()},
                   {{0, QColor(6, 7, 8)}, {.35, QColor(0x15, 0x18, 0x1B)}, {1, QColor(0x2C, 0x30, 0x35)}}));
  p.drawPath(bed);
  const auto* tray = dynamic_cast<const forms::Panel*>(&art.control);
  disc(p, shape, tray == nullptr || !tray->empty);
  // Darkness of the recess over the tray's back.
  p.save();
  p.setClipPath(bed);
  fill(p, QRectF(-20, shape.backTop, 280, 16),
       blend({0, shape.backTop}, {0, shape.backTop + 16}, {{0, alpha(Qt::black, .85)}, {1, alpha(Qt::black, 0)}}));
  p.restore();
  const QRectF& front = shape.front;
  const QRectF lip(front.left() + 1.4, front.top() - 2.4, front.width() - 2.8, 2.4);
  fill(p, lip, blend(lip.topLeft(), lip.bottomLeft(), {{0, QColor(0x8D, 0x94, 0x9C)}, {1, QColor(0x5C, 0x62, 0x69)}}));
  Art whole = art;
  whole.windowX = (art.windowX + corner.x()) / art.k;
  whole.windowY = (art.windowY + corner.y()) / art.k;
  metal(whole, front, base, 2.2, .3);
  edge(p, front, 2.2, .7, .9, 1);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(alpha(Qt::black, .35), .7));
  p.drawRoundedRect(front.adjusted(2.6, 2.6, -2.6, -2.6), 1.6, 1.6);
  const QRectF cut(front.left() + 9, front.bottom() - 8, front.width() - 18, 3);
  fill(p, cut,
       blend(cut.topLeft(), cut.bottomLeft(), {{0, QColor(5, 6, 7)}, {.6, QColor(0x17, 0x19, 0x1C)}, {1, QColor(0x2A, 0x2D, 0x31)}}), 1.5);
  fill(p, QRectF(cut.left() + 1, cut.bottom() + .2, cut.width() - 2, .6), alpha(Qt::white, .28));
  ejectSign(p, {front.right() - 16, front.top() + 11}, 1, base);
  p.restore();
  const QRectF legend(corner.x() + (front.left() + 14) * art.k, corner.y() + (front.top() + 5) * art.k, 160 * art.k, 12 * art.k);
  engraved(art, legend, {forms::kSmallFont, 7.5, true}, "COMPACT DISC", legendOn(QColor(0xB9, 0xBE, 0xC4), base),
           {forms::Align::Left, 2.2 * art.k});
}

}  // namespace orvanta
