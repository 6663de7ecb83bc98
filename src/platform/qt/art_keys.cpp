// Keys: graphite transport keys with their symbols, aluminium for all the others.
#include <QPainterPath>

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

/// A mask or lit symbol of the same key shows: the face then leaves its own symbol to it.
bool overlaid(const forms::Control& face) {
  const forms::Control* mask = face.with(forms::Role::Mask);
  return face.on() || (mask != nullptr && mask->visible);
}

bool isPressed(const forms::Control& control) { return control.form().pressed() == &control; }

void transport(Art& art, Symbol which) {
  if (ownPicture(art)) return;
  QPainter& p = art.painter;
  // A press that is refused leaves the face as it is: only a taken one shows its plateau.
  const forms::Control* plateauShape = art.control.with(forms::Role::Plateau);
  graphite(p, QRectF(1, 1, art.w - 2, art.h - 2), 2.5, isPressed(art.control) && plateauShape != nullptr && plateauShape->visible);
  const QRectF plateau(54 / 15.0 * art.k, 70 / 15.0 * art.k, 815 / 15.0 * art.k, 355 / 15.0 * art.k);
  fill(p, plateau,
       blend(plateau.topLeft(), plateau.bottomLeft(),
             {{0, QColor(0x1E, 0x21, 0x25)}, {.5, QColor(0x29, 0x2D, 0x32)}, {1, QColor(0x35, 0x3A, 0x40)}}),
       2);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(
      QBrush(blend(plateau.topLeft(), plateau.bottomLeft(),
                   {{0, alpha(Qt::black, .6)}, {.49, alpha(Qt::black, .1)}, {.51, alpha(Qt::white, .03)}, {1, alpha(Qt::white, .22)}})),
      .8));
  p.drawRoundedRect(plateau, 2, 2);
  const QPointF centre(art.w / 2, art.h / 2);
  const bool covered = overlaid(art.control);
  if (which == Symbol::Record) {
    QPainterPath ring;
    ring.addEllipse(QPointF(0, 0), 6.6, 6.6);
    sign(p, ring, centre, art.k, {.9, alpha(covered ? QColor(0x7A, 0x80, 0x87) : QColor(0xAE, 0xB4, 0xBA), .8), alpha(Qt::black, .7)});
  }
  if (!covered) symbol(p, which, centre, art.k, which == Symbol::Record ? QColor(0xD8, 0x54, 0x4A) : QColor(0xE3, 0xE7, 0xEA));
}

/// A symbol over a face: dark for a dead key, glowing for a lit one.
void overlay(Art& art, Symbol which, bool lit) {
  const bool scan = which == Symbol::Rewind || which == Symbol::Forward;
  const QPointF centre(art.w / 2, art.h / 2);
  const double k = scan ? art.k * .92 : art.k;
  if (lit && !scan) {
    litSymbol(art, which, centre, k, litColour(which));
  } else if (lit) {
    symbol(art.painter, which, centre, k, litColour(which));
  } else {
    symbol(art.painter, which, centre, k,
           scan                      ? QColor(0x86, 0x8B, 0x91)
           : which == Symbol::Record ? QColor(0x6E, 0x3A, 0x37)
                                     : QColor(0x66, 0x6C, 0x73));
  }
}

QPainterPath lines(std::initializer_list<QLineF> all) {
  QPainterPath path;
  for (const QLineF& line : all) {
    path.moveTo(line.p1());
    path.lineTo(line.p2());
  }
  return path;
}

QPainterPath boxes(std::initializer_list<QRectF> all) {
  QPainterPath path;
  for (const QRectF& box : all) path.addRect(box);
  return path;
}

QPainterPath loudspeaker() {
  QPainterPath path;
  path.addPolygon(QPolygonF({{-5, -1.5}, {-3, -1.5}, {-.4, -3.8}, {-.4, 3.8}, {-3, 1.5}, {-5, 1.5}}));
  path.closeSubpath();
  return path;
}

/// A chain's two links, open towards each other by `gap`; joined by a bar.
QPainterPath chain(double gap, bool joined) {
  QPainterPath path;
  path.moveTo(-gap, -2.1);
  path.lineTo(-gap - 1.8, -2.1);
  path.arcTo(QRectF(-gap - 3.9, -2.1, 4.2, 4.2), 90, 180);
  path.lineTo(-gap, 2.1);
  path.moveTo(gap, -2.1);
  path.lineTo(gap + 1.8, -2.1);
  path.arcTo(QRectF(gap - .3, -2.1, 4.2, 4.2), 90, -180);
  path.lineTo(gap, 2.1);
  if (joined) {
    path.moveTo(-2.4, 0);
    path.lineTo(2.4, 0);
  }
  return path;
}

QPainterPath waves() {
  QPainterPath path;
  const QRectF inner(-2.59, -2.4, 4.8, 4.8);
  const QRectF outer(-4.4, -4.4, 8.8, 8.8);
  path.arcMoveTo(inner, 42);
  path.arcTo(inner, 42, -84);
  path.arcMoveTo(outer, 43);
  path.arcTo(outer, 43, -86);
  return path;
}

}  // namespace

void keySign(Art& art, std::string_view name, double k) {
  QPainter& p = art.painter;
  const QPointF centre(art.w / 2, art.h / 2);
  const QColor dark(0x1C, 0x20, 0x24);
  const QColor below = alpha(Qt::white, .5);
  if (name == "mixer") {
    sign(p, lines({{-3.6, -3.6, -3.6, 3.6}, {0, -3.6, 0, 3.6}, {3.6, -3.6, 3.6, 3.6}}), centre, k, {.9, dark, below});
    sign(p, boxes({{-5, -2.3, 2.8, 2}, {-1.4, .8, 2.8, 2}, {2.2, -1.2, 2.8, 2}}), centre, k, {0, dark, below});
  } else if (name == "display") {
    QPainterPath path = boxes({{-5.2, -3.4, 10.4, 6.8}});
    path.addPath(
        lines({{-2.4, 0, -3.9, 0}, {-3, -1.2, -4.2, 0}, {-4.2, 0, -3, 1.2}, {2.4, 0, 3.9, 0}, {3, -1.2, 4.2, 0}, {4.2, 0, 3, 1.2}}));
    sign(p, path, centre, k, {.95, dark, below});
  } else if (name == "linked" || name == "unlinked") {
    const bool joined = name == "linked";
    sign(p, chain(joined ? 1.1 : 2.3, joined), centre, k, {1.3, joined ? QColor(0x0B, 0x3A, 0x1A) : QColor(0x3C, 0x41, 0x47), below});
    if (joined) lamp(p, QRectF(centre.x() - 2 * k, art.h - 4.2 * k, 4 * k, 1.2 * k), QColor(0x3D, 0xFF, 0x7A), true, .6);
  } else if (name == "mute") {
    sign(p, loudspeaker(), centre, k, {0, dark, below});
    sign(p, waves(), centre, k, {1.1, dark, below});
  } else if (name == "muted") {
    sign(p, loudspeaker(), centre, k, {0, Qt::white});
    sign(p, lines({{1.6, -1.8, 5, 1.8}, {5, -1.8, 1.6, 1.8}}), centre, k, {1.1, Qt::white});
  }
}

namespace {

void panelKey(Art& art, std::string_view name, bool down) {
  QPainter& p = art.painter;
  const QRectF cap(.8, .8, art.w - 1.6, art.h - 1.6);
  if (ownPicture(art)) {
    // One picture serves several keys: the sign stays ours.
  } else if (name == "muted" || name == "red") {
    soft(p, cap, 3, alpha(QColor(0xFF, 0x3B, 0x30), .3), 3);
    fill(p, cap,
         blend(cap.topLeft(), cap.bottomLeft(),
               {{0, QColor(0xFF, 0x8A, 0x7A)}, {.5, QColor(0xFF, 0x3B, 0x30)}, {1, QColor(0xB3, 0x15, 0x0F)}}),
         2);
  } else {
    aluminium(p, cap, 2, down || name == "linked" || isPressed(art.control));
  }
  // On a larger cap a larger sign.
  constexpr double kUsualCap = 17;
  keySign(art, name, std::max(art.k, art.w / kUsualCap));
}

/// The mixer key that stands where the volume panel is when there are no sliders.
void mixerKey(Art& art) {
  QPainter& p = art.painter;
  const QRectF cap(0, 0, art.w, art.h);
  well(p, cap.adjusted(-1.5, -1.5, 1.5, 1.5), 3, QColor(5, 6, 7), 1.4 * art.k);
  aluminium(p, cap, 3, isPressed(art.control));
  const QPointF centre(art.w / 2, art.h * .37);
  sign(p, lines({{-9, -8, -9, 8}, {-3, -8, -3, 8}, {3, -8, 3, 8}, {9, -8, 9, 8}}), centre, art.k * .85, {1.2, QColor(0x2A, 0x2E, 0x33)});
  sign(p, boxes({{-11.2, -5, 4.4, 3}, {-5.2, 1.4, 4.4, 3}, {.8, -3, 4.4, 3}, {6.8, 3, 4.4, 3}}), centre, art.k * .85,
       {0, QColor(0x1C, 0x20, 0x24)});
  letters(art, QRectF(0, art.h - 12 * art.k, art.w, 9 * art.k), {forms::kSmallFont, 7, true}, art.control.caption, QColor(0x10, 0x12, 0x14),
          {});
}

void titleKey(Art& art, std::string_view name) {
  QPainter& p = art.painter;
  const QRectF rect(.8, .8, art.w - 1.6, art.h - 1.6);
  fill(p, rect.adjusted(-.5, -.5, .5, .5), alpha(Qt::black, .55), 2.4);
  graphite(p, rect, 2, isPressed(art.control));
  QPainterPath path;
  SignPen pen{1.5, QColor(0xDD, 0xE1, 0xE5), alpha(Qt::black, .8), .7};
  if (name == "exit") {
    path = lines({{-3.2, -3.2, 3.2, 3.2}, {3.2, -3.2, -3.2, 3.2}});
  } else if (name == "tray") {
    path = lines(
        {{0, -4.2, 0, .6}, {-2.4, -1.5, 0, .9}, {0, .9, 2.4, -1.5}, {-3.9, 1.2, -3.9, 3.6}, {-3.9, 3.6, 3.9, 3.6}, {3.9, 3.6, 3.9, 1.2}});
    pen.width = 1.2;
  } else if (name == "minimise") {
    path = lines({{-3.8, 3, 3.8, 3}});
  } else if (name == "small") {
    path = boxes({{-3.9, -.4, 3.8, 3.8}});
    path.addPath(lines({{.9, -.9, 3.9, -3.9}, {.9, -3.6, .9, -.9}, {.9, -.9, 3.6, -.9}}));
    pen.width = 1.1;
  } else if (name == "large") {
    path = boxes({{-3.9, -3.5, 7.8, 7}});
    path.addPath(lines({{-3.9, -2.2, 3.9, -2.2}}));
    pen.width = 1.1;
  } else {
    path.addPolygon(QPolygonF({{-2.6, -3.8}, {4, 0}, {-2.6, 3.8}}));
    path.closeSubpath();
    pen.width = 0;
  }
  sign(p, path, {art.w / 2, art.h / 2}, art.k, pen);
}

void modeKey(Art& art, bool lit) {
  const QRectF cap(.8, .8, art.w - 1.6, art.h - 1.6);
  fill(art.painter, cap.adjusted(-1, -1, 1, 1.4), alpha(Qt::black, .5), 3);
  aluminium(art.painter, cap, 2.4, isPressed(art.control));
  const double wide = cap.width() * .56;
  lamp(art.painter, QRectF(cap.center().x() - wide / 2, cap.center().y() - 1.5 * art.k, wide, 3 * art.k),
       lit ? QColor(0xFF, 0xB4, 0x3A) : QColor(0x6A, 0x4A, 0x16), lit, 1.2);
}

/// A plain key by its detail: a scan key with its symbol, a number key in its sunk rim, any other cap.
void plainKey(Art& art, std::string_view detail) {
  QPainter& p = art.painter;
  if (ownPicture(art)) return;
  const bool number = detail == "number";
  const double inset = number ? .6 : detail == "small" ? .5 : .7;
  const QRectF cap(inset, inset, art.w - 2 * inset, art.h - 2 * inset);
  if (number) fill(p, cap.adjusted(-1, -1, 1, 1.4), alpha(Qt::black, .5), 3);
  aluminium(p, cap, number ? 2.4 : detail == "small" ? 1.8 : 2.2, isPressed(art.control));
  Symbol which{};
  if (symbolOf(detail, which) && !overlaid(art.control)) symbol(p, which, {art.w / 2, art.h / 2}, art.k * .92, QColor(0x1C, 0x20, 0x24));
}

bool isPanelKey(std::string_view detail) {
  for (const std::string_view name : {"mixer", "display", "linked", "unlinked", "mute", "muted", "red"}) {
    if (name == detail) return true;
  }
  return false;
}

}  // namespace

bool paintKey(Art& art, std::string_view name, std::string_view detail) {
  const forms::Control& c = art.control;
  Symbol which{};
  const bool known = symbolOf(detail, which);
  if (name == "transport" && known) {
    transport(art, which);
  } else if (name == "mask" || name == "lit-symbol") {
    if (known) overlay(art, which, name != "mask");
  } else if ((name == "key" || name == "down") && isPanelKey(detail)) {
    panelKey(art, detail, name == "down");
  } else if (name == "key" && c.kind() == forms::Kind::Button) {
    mixerKey(art);
  } else if (name == "key") {
    plainKey(art, detail);
  } else if (name == "mode") {
    modeKey(art, detail == "lit");
  } else if (name == "title") {
    titleKey(art, detail);
  } else if (name == "caption") {
    letters(art, c.caption, alpha(Qt::white, .45), {c.align, 0, .5});
    // Grey says that the key is dead; a colour of the display is darkened to what can be read on metal.
    const QColor fore = qColour(c.foreColor);
    letters(art, c.caption, c.foreColor == colours::kGrey ? fore : readable(fore, QColor(0x9B, 0xA1, 0xA8)), {c.align});
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
