// The strip: its rim and body, the keys of its row.
#include <QPainterPath>

#include <algorithm>

#include "platform/forms/design.h"
#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

using forms::AreaKind;

/// Twips of the body in design pixels.
double px(const Art& art, double twips) { return twips / 15 * art.k; }

QRectF areaOf(const Art& art, AreaKind kind) {
  const forms::Place place = art.control.form().area(kind);
  return {px(art, place.left), px(art, place.top), px(art, place.width), px(art, place.height)};
}

/// The frame round the body, in the colour of the border's lines.
void rim(Art& art) {
  const QRectF area(0, 0, art.w, art.h);
  const QColor c = qColour(art.control.backColor);
  fill(art.painter, area,
       blendIn(
           area, .5, 1,
           {{0, mix(c, Qt::white, .45)}, {.18, c}, {.5, mix(c, Qt::black, .35)}, {.8, mix(c, Qt::black, .6)}, {1, mix(c, Qt::black, .5)}}),
       2.2);
  const QRectF inner = area.adjusted(.35, .35, -.35, -.35);
  art.painter.setBrush(Qt::NoBrush);
  art.painter.setPen(
      QPen(QBrush(blendIn(inner, .4, 1, {{0, alpha(Qt::white, .55)}, {.5, alpha(Qt::white, .08)}, {1, alpha(Qt::black, .6)}})), .7));
  art.painter.drawRoundedRect(inner, 2, 2);
}

/// What lies bare in the recess of the mini display while that is away.
void namePlate(Art& art, const QRectF& rect) {
  fill(art.painter, rect,
       blend(rect.topLeft(), rect.bottomLeft(),
             {{0, QColor(0x15, 0x17, 0x1A)}, {.5, QColor(0x0C, 0x0D, 0x0F)}, {1, QColor(0x1C, 0x1F, 0x22)}}),
       1);
  const QRectF shade(rect.left(), rect.top(), rect.width(), 3 * art.k);
  fill(art.painter, shade, blend(shade.topLeft(), shade.bottomLeft(), {{0, alpha(Qt::black, .8)}, {1, alpha(Qt::black, 0)}}), 1);
  letters(art, rect, {"Roboto Condensed", 7, true}, "ORVANTA", QColor(0xDC, 0xE1, 0xE6), {forms::Align::Center, .5 * art.k});
}

/// The metal as far as the window goes, with a recess under all that is on it.
void body(Art& art) {
  QPainter& p = art.painter;
  const forms::Form& form = art.control.form();
  const QRectF area(0, 0, std::min(art.w, px(art, form.width) - art.windowX), std::min(art.h, px(art, form.height) - art.windowY));
  const double radius = art.windowX > 0 ? 1.2 : 0;
  const bool unfolded = areaOf(art, AreaKind::UpperPane).top() < area.height();
  const bool bare = !ownPicture(art);
  if (bare) {
    const forms::Control* source = art.control.with(forms::Role::Colour);
    metal(art, area, qColour(source == nullptr ? form.backColor : source->backColor), radius, .42);
  }
  edge(p, area, radius, .45, .9, 1);
  const QColor floor(5, 6, 7);
  well(p, areaOf(art, AreaKind::KeyRow), 2.4, floor, 1.2 * art.k);
  well(p, areaOf(art, AreaKind::Bar), 1, floor, .9 * art.k);
  well(p, areaOf(art, AreaKind::Plate), 1, floor, 1.1 * art.k);
  namePlate(art, areaOf(art, AreaKind::Plate));
  if (!unfolded) return;
  for (const AreaKind pane : {AreaKind::UpperPane, AreaKind::LowerPane}) well(p, areaOf(art, pane), 1.5, floor, 2.2 * art.k);
  if (!bare) return;
  const QRectF groove = areaOf(art, AreaKind::Groove);
  fill(p, QRectF(groove.left(), groove.top() - .35, groove.width(), .7), alpha(Qt::black, .55));
  fill(p, QRectF(groove.left(), groove.top() + .5 * art.k, groove.width(), .6), alpha(Qt::white, .16));
  sunkDisc(art, areaOf(art, AreaKind::Disc));
}

enum class Look { Rest, Lit, Dead };

/// A press that is taken leaves a hole where the key stood.
bool isDown(const forms::Control& key) {
  const forms::Control* hole = key.with(forms::Role::Hole);
  return key.form().pressed() == &key && (hole == nullptr || hole->visible);
}

/// A graphite cap with a sunk plateau and its symbol.
void transport(Art& art, Symbol which, Look look) {
  QPainter& p = art.painter;
  // An unavailable face is wider than the one at rest: the surplus is clear.
  const double wide = look == Look::Dead && which != Symbol::Eject && art.k == 1 ? art.w - px(art, 10) : art.w;
  const QRectF cap(.9, .9, wide - 1.8, art.h - 1.8);
  const bool down = isDown(art.control);
  graphite(p, cap, 2.2, down);
  const QRectF plateau = cap.adjusted(2.1 * art.k, 2.3 * art.k, -2.1 * art.k, -2.3 * art.k);
  fill(p, plateau,
       blend(plateau.topLeft(), plateau.bottomLeft(),
             {{0, QColor(0x1E, 0x21, 0x25)}, {.5, QColor(0x29, 0x2D, 0x32)}, {1, QColor(0x35, 0x3A, 0x40)}}),
       1.5);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(
      QBrush(blend(plateau.topLeft(), plateau.bottomLeft(),
                   {{0, alpha(Qt::black, .6)}, {.49, alpha(Qt::black, .1)}, {.51, alpha(Qt::white, .03)}, {1, alpha(Qt::white, .22)}})),
      .7));
  p.drawRoundedRect(plateau, 1.5, 1.5);
  if (down)
    fill(p, plateau,
         blend(plateau.topLeft(), plateau.bottomLeft(),
               {{0, alpha(Qt::black, .55)}, {.4, alpha(Qt::black, .25)}, {1, alpha(Qt::black, .05)}}),
         1.5);
  const QPointF centre(wide / 2, art.h / 2);
  const bool double_ = which == Symbol::Previous || which == Symbol::Next;
  const double k = (double_ ? .66 : .70) * art.h / 22;
  switch (look) {
    case Look::Lit: litSymbol(art, which, centre, k, litColour(which), {18, 13}); break;
    case Look::Rest: symbol(p, which, centre, k, QColor(0xE3, 0xE7, 0xEA)); break;
    case Look::Dead: symbol(p, which, centre, k, QColor(0x66, 0x6C, 0x73)); break;
  }
}

/// Level bars, or the display's frame, and an arrow that shows where the window will go.
void foldSign(Art& art, QPointF centre, double k, bool display, bool up) {
  const SignPen ink{0, QColor(0x1C, 0x20, 0x24), alpha(Qt::white, .5)};
  SignPen line = ink;
  QPainterPath path;
  if (display) {
    path.addRect(-6.6, -3.4, 7.4, 6.8);
    path.moveTo(-5, 1.9);
    path.lineTo(-.8, 1.9);
    line.width = .95;
    sign(art.painter, path, centre, k, line);
  } else {
    path.addRect(-6.6, 1.2, 1.6, 2.4);
    path.addRect(-4.2, -.6, 1.6, 4.2);
    path.addRect(-1.8, -2.2, 1.6, 5.8);
    path.addRect(.6, -3.8, 1.6, 7.4);
    sign(art.painter, path, centre - QPointF(.4 * art.k, 0), k, ink);
  }
  QPainterPath arrow;
  arrow.moveTo(3.2, up ? 1.4 : -1.2);
  arrow.lineTo(5.2, up ? -.8 : 1);
  arrow.lineTo(7.2, up ? 1.4 : -1.2);
  line.width = 1.3;
  sign(art.painter, arrow, centre, k, line);
}

/// An aluminium cap, red and shining while the sound is muted.
void panelKey(Art& art, std::string_view name) {
  QPainter& p = art.painter;
  const QRectF cap(1.3, 1.3, art.w - 2.6, art.h - 3);
  aluminium(p, cap, 2.2, isDown(art.control));
  if (name == "muted") {
    soft(p, cap, 3, alpha(QColor(0xFF, 0x3B, 0x30), .35), 3);
    fill(p, cap,
         blend(cap.topLeft(), cap.bottomLeft(),
               {{0, QColor(0xFF, 0x9A, 0x8C)},
                {.12, QColor(0xFF, 0x6A, 0x5C)},
                {.5, QColor(0xFF, 0x3B, 0x30)},
                {1, QColor(0xB3, 0x15, 0x0F)}}),
         2.2);
    edge(p, cap, 2.2, .75, .8, .7);
  }
  const QPointF centre(art.w / 2, art.h / 2);
  const double unit = art.h / 22;
  const bool display = name.rfind("display-", 0) == 0;
  const std::string_view way = display ? name.substr(name.find('-') + 1) : name;
  if (way == "fold" || way == "unfold") {
    foldSign(art, centre, 1.2 * unit, display, way == "fold");
  } else {
    keySign(art, name, 1.25 * unit);
  }
}

}  // namespace

bool paintStrip(Art& art, std::string_view name, std::string_view detail) {
  Symbol which{};
  const bool transportKey = symbolOf(detail, which);
  if (name == "strip") {
    detail == "rim" ? rim(art) : body(art);
  } else if (name == "strip-lit") {
    transport(art, which, Look::Lit);
  } else if (name == "strip-dead") {
    transport(art, which, Look::Dead);
  } else if (name == "strip-key" && transportKey) {
    transport(art, which, Look::Rest);
  } else if (name == "strip-key") {
    panelKey(art, detail);
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
