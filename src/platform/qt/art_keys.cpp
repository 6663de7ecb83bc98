// Keys: graphite transport keys with their symbols, aluminium for all the others.
#include <QPainterPath>

#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

QColor litColour(Symbol symbol) {
  switch (symbol) {
    case Symbol::Pause:
    case Symbol::Stop: return {0xFF, 0xC2, 0x47};
    case Symbol::Record: return {0xFF, 0x4A, 0x3D};
    case Symbol::Rewind:
    case Symbol::Forward: return {0x0A, 0x8F, 0x3C};
    default: return {0x3D, 0xFF, 0x7A};
  }
}

/// A mask or lit symbol of the same key shows: the face then leaves its own symbol to it.
bool overlaid(const forms::Control& face) {
  const std::string_view faceArt = face.art;
  const std::string_view name = faceArt.substr(faceArt.find(':'));
  for (const forms::Control* other : face.form().controls()) {
    const std::string_view art = other->art;
    const bool overlay = art.rfind("mask:", 0) == 0 || art.rfind("lit:", 0) == 0;
    if (overlay && other->visible && art.substr(art.find(':')) == name) return true;
  }
  return false;
}

void transport(Art& art, Symbol which) {
  QPainter& p = art.painter;
  graphite(p, QRectF(1, 1, art.w - 2, art.h - 2), 2.5);
  const QRectF plateau(54 / 15.0 * art.k, 70 / 15.0 * art.k, 815 / 15.0 * art.k, 355 / 15.0 * art.k);
  fill(p, plateau, blend(plateau.topLeft(), plateau.bottomLeft(), {{0, QColor(0x1E, 0x21, 0x25)}, {.5, QColor(0x29, 0x2D, 0x32)}, {1, QColor(0x35, 0x3A, 0x40)}}), 2);
  const QPointF centre(art.w / 2, art.h / 2);
  if (which == Symbol::Record) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0xAE, 0xB4, 0xBA), .9));
    p.drawEllipse(centre, 6.6 * art.k, 6.6 * art.k);
  }
  if (overlaid(art.control)) return;
  symbol(p, which, centre, art.k, which == Symbol::Record ? QColor(0xD8, 0x54, 0x4A) : QColor(0xE3, 0xE7, 0xEA));
}

/// A symbol over a face: dark for a dead key, glowing for a lit one.
void overlay(Art& art, Symbol which, bool lit) {
  const bool scan = which == Symbol::Rewind || which == Symbol::Forward;
  const QPointF centre(art.w / 2, art.h / 2);
  const double k = scan ? art.k * .92 : art.k;
  if (!lit) {
    symbol(art.painter, which, centre, k, scan ? QColor(0x86, 0x8B, 0x91) : which == Symbol::Record ? QColor(0x6E, 0x3A, 0x37) : QColor(0x66, 0x6C, 0x73));
    return;
  }
  const QColor colour = litColour(which);
  if (!scan) {
    QRadialGradient pool(QPointF(0, 0), 12 * k);
    pool.setColorAt(0, alpha(colour, .42));
    pool.setColorAt(.5, alpha(colour, .14));
    pool.setColorAt(1, alpha(colour, 0));
    art.painter.save();
    art.painter.translate(centre);
    art.painter.setPen(Qt::NoPen);
    art.painter.setBrush(pool);
    art.painter.drawEllipse(QPointF(0, 0), 12 * k, 10 * k);
    art.painter.restore();
  }
  symbol(art.painter, which, centre, k, mix(colour, Qt::white, .35));
}

void strokes(Art& art, const QPainterPath& path, double width, const QColor& colour) {
  QPainter& p = art.painter;
  p.save();
  p.translate(art.w / 2, art.h / 2);
  p.scale(art.k, art.k);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
  p.drawPath(path);
  p.restore();
}

QPainterPath lines(std::initializer_list<QLineF> all) {
  QPainterPath path;
  for (const QLineF& line : all) {
    path.moveTo(line.p1());
    path.lineTo(line.p2());
  }
  return path;
}

void loudspeaker(QPainterPath& path) { path.addPolygon(QPolygonF({{-5, -1.5}, {-3, -1.5}, {-.4, -3.8}, {-.4, 3.8}, {-3, 1.5}, {-5, 1.5}, {-5, -1.5}})); }

void sign(Art& art, std::string_view name) {
  const QColor dark(0x1C, 0x20, 0x24);
  QPainterPath path;
  if (name == "mixer") {
    path = lines({{-3.6, -3.6, -3.6, 3.6}, {0, -3.6, 0, 3.6}, {3.6, -3.6, 3.6, 3.6}, {-4.8, -1.3, -2.4, -1.3}, {-1.2, 1.8, 1.2, 1.8}, {2.4, -.2, 4.8, -.2}});
  } else if (name == "display") {
    path.addRect(-5.2, -3.4, 10.4, 6.8);
    path.addPath(lines({{-2.4, 0, -3.9, 0}, {2.4, 0, 3.9, 0}}));
  } else if (name == "linked" || name == "unlinked") {
    const double gap = name == "linked" ? 1.1 : 2.3;
    path.addEllipse(QRectF(-gap - 3.9, -2.1, 4.2, 4.2));
    path.addEllipse(QRectF(gap - .3, -2.1, 4.2, 4.2));
    if (name == "linked") path.addPath(lines({{-2.4, 0, 2.4, 0}}));
  } else if (name == "mute") {
    loudspeaker(path);
    path.arcMoveTo(QRectF(-1.4, -2.4, 4, 4.8), 40);
    path.arcTo(QRectF(-1.4, -2.4, 4, 4.8), 40, -80);
    path.arcMoveTo(QRectF(-1.2, -3.8, 6, 7.6), 40);
    path.arcTo(QRectF(-1.2, -3.8, 6, 7.6), 40, -80);
  } else if (name == "muted") {
    fill(art.painter, QRectF(.8, .8, art.w - 1.6, art.h - 1.6), QColor(0xFF, 0x3B, 0x30), 2);
    loudspeaker(path);
    path.addPath(lines({{1.6, -1.8, 5, 1.8}, {5, -1.8, 1.6, 1.8}}));
  }
  strokes(art, path, 1.1, name == "muted" ? QColor(Qt::white) : dark);
}

void titleKey(Art& art, std::string_view name) {
  const QRectF rect(.8, .8, art.w - 1.6, art.h - 1.6);
  fill(art.painter, rect.adjusted(-.5, -.5, .5, .5), alpha(Qt::black, .55), 2.4);
  graphite(art.painter, rect, 2);
  QPainterPath path;
  if (name == "exit") {
    path = lines({{-3.2, -3.2, 3.2, 3.2}, {3.2, -3.2, -3.2, 3.2}});
  } else if (name == "minimise") {
    path = lines({{-3.8, 3, 3.8, 3}});
  } else if (name == "small") {
    path.addRect(-3.9, -.4, 3.8, 3.8);
    path.addPath(lines({{.9, -.9, 3.9, -3.9}, {.9, -3.6, .9, -.9}, {.9, -.9, 3.6, -.9}}));
  } else if (name == "large") {
    path.addRect(-3.9, -3.5, 7.8, 7);
    path.addPath(lines({{-3.9, -2.2, 3.9, -2.2}}));
  } else {
    path.addPolygon(QPolygonF({{-2.6, -3.8}, {4, 0}, {-2.6, 3.8}, {-2.6, -3.8}}));
  }
  strokes(art, path, name == "small" || name == "large" ? 1.1 : 1.5, QColor(0xDD, 0xE1, 0xE5));
}

}  // namespace

bool paintKey(Art& art, std::string_view name, std::string_view detail) {
  const forms::Control& c = art.control;
  const QRectF cap(.7, .7, art.w - 1.4, art.h - 1.4);
  Symbol which{};
  const bool known = symbolOf(detail, which);
  if (name == "transport" && known) {
    transport(art, which);
  } else if (name == "mask" || name == "lit-symbol") {
    if (known) overlay(art, which, name != "mask");
  } else if (name == "key") {
    aluminium(art.painter, cap, 2.2);
    if (known) {
      if (!overlaid(c)) symbol(art.painter, which, {art.w / 2, art.h / 2}, art.k * .92, QColor(0x1C, 0x20, 0x24));
    } else if (!detail.empty()) {
      sign(art, detail);
    } else if (!c.caption.get().empty()) {
      letters(art, c.caption, qColour(c.foreColor), {c.align});
    }
  } else if (name == "mode") {
    aluminium(art.painter, cap, 2.4);
    const QRectF bulb(art.w * .22, art.h / 2 - 1.5 * art.k, art.w * .56, 3 * art.k);
    lamp(art.painter, bulb, detail == "lit" ? QColor(0xFF, 0xB4, 0x3A) : QColor(0x6A, 0x4A, 0x16), detail == "lit");
  } else if (name == "title") {
    titleKey(art, detail);
  } else if (name == "caption") {
    letters(art, c.caption, alpha(Qt::white, .45), {c.align, 0, .5});
    letters(art, c.caption, qColour(c.foreColor), {c.align});
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
