// The faceplate's metal, its recesses, the door, the volume panel and legends.
#include <QPainterPath>

#include <cmath>

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

QRectF area(const Art& art) { return {0, 0, art.w, art.h}; }

/// Twips of the window in design pixels.
double at(const Art& art, double twips) { return twips / 15 * art.k; }

void faceplate(Art& art) {
  QPainter& p = art.painter;
  const QColor base(0x2B, 0x2E, 0x33);
  metal(p, area(art), base, 0, .55, art.factor);
  edge(p, area(art), 0, .45, .9, 1);
  const double rule = at(art, 322);
  fill(p, QRectF(6 * art.k, rule, art.w - 12 * art.k, .8), alpha(Qt::black, .55));
  fill(p, QRectF(6 * art.k, rule + .9, art.w - 12 * art.k, .6), alpha(Qt::white, .16));
  well(p, QRectF(at(art, 1440), at(art, 360), at(art, 5652), at(art, 1664)), 1.5, 3 * art.k);
  well(p, QRectF(at(art, 1494), at(art, 2769), at(art, 5592), at(art, 507)), 2, 1.8 * art.k);
  // Bracket over the mode keys.
  const double y = at(art, 2558);
  QPainterPath bracket;
  bracket.moveTo(at(art, 7380), y + 7 * art.k);
  bracket.lineTo(at(art, 7380), y);
  bracket.lineTo(at(art, 7800), y);
  bracket.moveTo(at(art, 8800), y);
  bracket.lineTo(at(art, 9220), y);
  bracket.lineTo(at(art, 9220), y + 7 * art.k);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(alpha(QColor(0xC9, 0xCE, 0xD4), .42), .8));
  p.drawPath(bracket);
}

void ejectSign(QPainter& p, QPointF centre, double k) {
  QPainterPath path;
  path.addPolygon(QPolygonF({{0, -4}, {5, 1.4}, {-5, 1.4}}));
  path.closeSubpath();
  path.addRect(-5, 2.8, 10, 1.7);
  p.save();
  p.translate(centre);
  p.scale(k, k);
  p.translate(0, .7);
  p.fillPath(path, alpha(Qt::black, .7));
  p.translate(0, -.7);
  p.fillPath(path, QColor(0xC8, 0xCD, 0xD2));
  p.restore();
}

/// What the open door leaves: darkness with a lit lip.
void recess(Art& art) {
  fill(art.painter, area(art), blend({0, 0}, {0, art.h}, {{0, QColor(Qt::black)}, {.7, QColor(0x0A, 0x0B, 0x0C)}, {1, QColor(0x16, 0x18, 0x1A)}}));
  edge(art.painter, area(art), 1.5, 0, .8, 2 * art.k);
}

void door(Art& art) {
  QPainter& p = art.painter;
  const auto* panel = dynamic_cast<const forms::Panel*>(&art.control);
  if (panel != nullptr && panel->bevelInner == 1) {
    recess(art);
    return;
  }
  metal(p, area(art), qColour(art.control.backColor), 2.2, .4, art.factor);
  edge(p, area(art), 2.2, .7, .9, 1);
  ejectSign(p, {art.w - 16 * art.k, 19 * art.k}, 1.05 * art.k);
  engraved(art, QRectF(art.w - 66 * art.k, 28 * art.k, 57 * art.k, 9 * art.k), {"Small Fonts", 7, false}, "OPEN / CLOSE", QColor(0xA9, 0xB0, 0xB7),
           {forms::Align::Right, .3});
}

void emblem(Art& art) {
  QPainter& p = art.painter;
  const QPointF centre(art.w / 2, art.h / 2);
  const double r = std::min(art.w, art.h) / 2 - .5;
  QConicalGradient silver(centre, 43);
  for (int i = 0; i <= 16; ++i) {
    const double v = std::pow(.5 + .5 * std::cos(4 * M_PI * i / 16.0), 2.2);
    silver.setColorAt(i / 16.0, mix(QColor(0x5C, 0x63, 0x6B), QColor(0xE9, 0xED, 0xF0), v));
  }
  p.setPen(Qt::NoPen);
  p.setBrush(alpha(Qt::black, .5));
  p.drawEllipse(centre + QPointF(0, .8), r, r);
  p.setBrush(silver);
  p.drawEllipse(centre, r, r);
  p.setBrush(QColor(0x2A, 0x2E, 0x33));
  p.drawEllipse(centre, r * .36, r * .36);
  p.setBrush(QColor(0x0A, 0x0B, 0x0C));
  p.drawEllipse(centre, r * .15, r * .15);
}

void statusLamp(Art& art) {
  const QColor colour = qColour(art.control.backColor);
  const QRectF glass = area(art).adjusted(1.3, 1.3, -1.3, -1.3);
  well(art.painter, area(art).adjusted(.6, .6, -.6, -.6), 1.6, 1.2 * art.k);
  fill(art.painter, glass.adjusted(-2, -2, 2, 2), alpha(colour, .18), 3);
  fill(art.painter, glass, blend(glass.topLeft(), glass.bottomLeft(), {{0, mix(colour, Qt::white, .42)}, {.35, mix(colour, Qt::white, .12)}, {1, mix(colour, Qt::black, .28)}}), 1.2);
}

void power(Art& art) {
  QPainter& p = art.painter;
  const QPointF centre(art.w / 2, art.h / 2);
  const double r = art.w / 2;
  QConicalGradient chrome(centre, -45);
  for (int i = 0; i <= 16; ++i) {
    const double v = std::pow(.5 + .5 * std::cos(4 * M_PI * i / 16.0), 1.6);
    chrome.setColorAt(i / 16.0, mix(QColor(0x4A, 0x50, 0x57), QColor(0xF1, 0xF3, 0xF5), v));
  }
  const auto disc = [&](double radius, const QBrush& brush) {
    p.setPen(Qt::NoPen);
    p.setBrush(brush);
    p.drawEllipse(centre, radius, radius);
  };
  disc(r, QColor(0x0A, 0x0B, 0x0C));
  disc(r - art.k, chrome);
  disc(r - 3.2 * art.k, QColor(0x0C, 0x0D, 0x0E));
  disc(r - 3.9 * art.k, blend({0, 0}, {art.w * .4, art.h}, {{0, QColor(0x26, 0x29, 0x2D)}, {.5, QColor(0x33, 0x37, 0x3C)}, {1, QColor(0x4A, 0x4F, 0x56)}}));
  p.setPen(QPen(QColor(0x84, 0xDE, 0x99), 1.5 * art.k, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(QRectF(centre.x() - 4.7 * art.k, centre.y() - 4.3 * art.k, 9.4 * art.k, 9.4 * art.k), 130 * 16, 280 * 16);
  p.drawLine(centre + QPointF(0, -5 * art.k), centre + QPointF(0, -.4 * art.k));
}

void slot(Art& art) {
  const QColor c = qColour(art.control.backColor);
  fill(art.painter, area(art), blend({0, 0}, {art.w, 0}, {{0, QColor(Qt::black)}, {.5, QColor(0x0B, 0x0C, 0x0D)}, {1, QColor(0x3A, 0x3E, 0x43)}}), 1.6);
  const double rim = at(art, 25);
  const QRectF inner = area(art).adjusted(rim, rim, -rim, -rim);
  fill(art.painter, inner, blend(inner.topLeft(), inner.topRight(), {{0, mix(c, Qt::black, .45)}, {.35, c}, {.5, mix(c, Qt::white, .35)}, {.65, c}, {1, mix(c, Qt::black, .45)}}), .8);
}

void thumb(Art& art) {
  const QColor c = qColour(art.control.foreColor);
  fill(art.painter, area(art).translated(.3, 1.6), alpha(Qt::black, .6), 1.2);
  fill(art.painter, area(art), blend({0, 0}, {0, art.h}, {{0, mix(c, Qt::white, .55)}, {.3, c}, {.46, mix(c, Qt::black, .25)}, {.5, QColor(0x10, 0x12, 0x14)}, {.58, QColor(0x10, 0x12, 0x14)}, {.62, mix(c, Qt::white, .3)}, {1, mix(c, Qt::black, .35)}}), 1);
}

void groove(Art& art) {
  const QRectF cut(0, -1.5 * art.k, art.w, 3 * art.k);
  fill(art.painter, cut, blend(cut.topLeft(), cut.bottomLeft(), {{0, QColor(5, 6, 7)}, {1, QColor(0x2A, 0x2D, 0x31)}}), 1.5);
}

void sunkPanel(Art& art) {
  const QRectF inner = area(art).adjusted(1, 1, -1, -1);
  well(art.painter, inner, 3, 1.6 * art.k);
  metal(art.painter, inner, qColour(art.control.backColor), 3, .3, art.factor);
  fill(art.painter, QRectF(1, 1, art.w - 2, 6), blend({0, 1}, {0, 7}, {{0, alpha(Qt::black, .5)}, {1, alpha(Qt::black, 0)}}), 3);
}

}  // namespace

bool paintSurface(Art& art, std::string_view name, std::string_view detail) {
  const forms::Control& c = art.control;
  const QColor fore = qColour(c.foreColor);
  if (name == "faceplate") {
    faceplate(art);
  } else if (name == "metal") {
    sunkPanel(art);
  } else if (name == "door") {
    door(art);
  } else if (name == "tray") {
    paintTray(art, detail == "half");
  } else if (name == "emblem") {
    emblem(art);
  } else if (name == "statuslamp") {
    statusLamp(art);
  } else if (name == "power") {
    power(art);
  } else if (name == "slot") {
    slot(art);
  } else if (name == "cover") {
    fill(art.painter, area(art), QColor(0x0C, 0x0D, 0x0E), .8);
  } else if (name == "thumb") {
    thumb(art);
  } else if (name == "groove") {
    groove(art);
  } else if (name == "lamp") {
    lamp(art.painter, area(art).adjusted(.3, .2, -.3, -.2), fore, true);
  } else if (name == "floor") {
    fill(art.painter, area(art), QColor(3, 4, 4), 2);
  } else if (name == "shadow") {
    fill(art.painter, area(art), alpha(Qt::black, .5), 2.5);
  } else if (name == "hole") {
    fill(art.painter, area(art), QColor(4, 5, 5), 2);
  } else if (name == "plateau") {
    fill(art.painter, area(art), blend({0, 0}, {0, art.h}, {{0, alpha(Qt::black, .55)}, {.4, alpha(Qt::black, .25)}, {1, alpha(Qt::black, .05)}}), 1.8);
  } else if (name == "maker") {
    engraved(art, area(art), c.font, c.caption, QColor(0xE4, 0xE7, 0xEA), {forms::Align::Left, 2.3 * art.k});
  } else if (name == "engraved") {
    const double spacing = detail == "wide" ? 2.4 * art.k : c.align == forms::Align::Left ? 1.6 * art.k : .3;
    engraved(art, area(art), c.font, c.caption, fore, {c.align, spacing});
  } else if (name == "plain") {
    letters(art, c.caption, fore, {c.align, 1.2 * art.k});
  } else {
    return name == "clear" || name == "joint";
  }
  return true;
}

}  // namespace orvanta
