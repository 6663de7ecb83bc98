// The faceplate's metal, its recesses, the door, the volume panel and legends.
#include <QPainterPath>

#include <cmath>

#include "platform/forms/design.h"
#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

QRectF area(const Art& art) { return {0, 0, art.w, art.h}; }

/// Twips of the window in design pixels.
double at(const Art& art, double twips) { return twips / 15 * art.k; }

/// Legends on the window have a colour behind them; one that equals the window's is not painted, so that
/// the metal shows.
void ground(Art& art) {
  const forms::Control& c = art.control;
  const Colour around = c.parent != nullptr ? c.parent->backColor : c.form().backColor;
  if (c.backColor != colours::kBlack && c.backColor != c.form().backColor.get() && c.backColor != around)
    fill(art.painter, area(art), qColour(c.backColor));
}

QRectF placed(const Art& art, const forms::Place& place) {
  return {at(art, place.left), at(art, place.top), at(art, place.width), at(art, place.height)};
}

/// Over a group of keys: from both ends towards the heading in the middle.
void bracket(Art& art, const QRectF& rect) {
  constexpr double kArm = 420;  // twips
  const double arm = at(art, kArm);
  QPainterPath path;
  path.moveTo(rect.bottomLeft());
  path.lineTo(rect.topLeft());
  path.lineTo(rect.topLeft() + QPointF(arm, 0));
  path.moveTo(rect.topRight() - QPointF(arm, 0));
  path.lineTo(rect.topRight());
  path.lineTo(rect.bottomRight());
  art.painter.setBrush(Qt::NoBrush);
  art.painter.setPen(QPen(alpha(Qt::black, .55), .8));
  art.painter.drawPath(path.translated(0, .8));
  art.painter.setPen(QPen(alpha(QColor(0xC9, 0xCE, 0xD4), .42), .8));
  art.painter.drawPath(path);
}

/// The metal with a rule under the title, the recesses of display and keys, a bracket over the mode keys.
void faceplate(Art& art) {
  QPainter& p = art.painter;
  const forms::Form& form = art.control.form();
  if (!ownPicture(art)) {
    metal(art, area(art), qColour(form.backColor), 0, .42);
    const double rule = at(art, 322);
    fill(p, QRectF(6 * art.k, rule, art.w - 12 * art.k, .8), alpha(Qt::black, .55));
    fill(p, QRectF(6 * art.k, rule + .8 * art.k, art.w - 12 * art.k, .6), alpha(Qt::white, .16));
  }
  edge(p, area(art), 0, .45, .9, 1);
  well(p, placed(art, form.area(forms::AreaKind::Glass)), 1.5, QColor(2, 3, 3), 3 * art.k);
  const QRectF keys = placed(art, form.area(forms::AreaKind::KeyRow));
  if (!keys.isEmpty()) well(p, keys, 2, QColor(5, 6, 7), 1.8 * art.k);
  const QRectF group = placed(art, form.area(forms::AreaKind::Bracket));
  if (!group.isEmpty()) bracket(art, group);
}

void doorPlate(Art& art, const QRectF& rect, const QColor& base) {
  QPainter& p = art.painter;
  metal(art, rect, base, 2.2, .3);
  edge(p, rect, 2.2, .7, .9, 1);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(alpha(Qt::black, .35), .7));
  p.drawRoundedRect(rect.adjusted(2.6, 2.6, -2.6, -2.6), 1.6, 1.6);
  p.setPen(QPen(alpha(Qt::white, .07), .6));
  p.drawRoundedRect(rect.adjusted(3.2, 3.2, -2, -2), 1.6, 1.6);
}

/// What the open door leaves: darkness with a lit lip.
void recess(Art& art) {
  fill(art.painter, area(art),
       blend({0, 0}, {0, art.h}, {{0, QColor(Qt::black)}, {.7, QColor(0x0A, 0x0B, 0x0C)}, {1, QColor(0x16, 0x18, 0x1A)}}));
  edge(art.painter, area(art), 1.5, 0, .8, 2 * art.k);
  fill(art.painter, QRectF(2, 2, art.w - 4, 10 * art.k),
       blend({0, 2}, {0, 2 + 10 * art.k}, {{0, alpha(Qt::black, .9)}, {1, alpha(Qt::black, 0)}}));
}

void openSign(Art& art, double right, double top, double k) {
  ejectSign(art.painter, {art.w - right * art.k, top * art.k}, k * art.k, qColour(art.control.backColor));
}

void door(Art& art, bool moving) {
  const auto* panel = dynamic_cast<const forms::Panel*>(&art.control);
  if (panel != nullptr && panel->bevelInner == 1) {
    recess(art);
    return;
  }
  const QColor base = qColour(art.control.backColor);
  // The front as it starts to move lies lower, with a light lip above and its shadow below.
  if (moving) {
    const double k = art.k;
    soft(art.painter, QRectF(3, 4, art.w - 4, art.h - 4), 3, alpha(Qt::black, .6), 3);
    QPainterPath lip;
    lip.addPolygon(QPolygonF({{1, 3 * k}, {art.w - 1, 3 * k}, {art.w - 3 * k, .4}, {3 * k, .4}}));
    art.painter.fillPath(lip, blend({0, .4}, {0, 3 * k}, {{0, QColor(0x8D, 0x94, 0x9C)}, {1, QColor(0x5C, 0x62, 0x69)}}));
    doorPlate(art, QRectF(.5, 3 * k, art.w - 1, art.h - 6 * k), base);
    openSign(art, 18, 20, 1.08);
    return;
  }
  doorPlate(art, area(art), base);
  openSign(art, 16, 19, 1.05);
  engraved(art, QRectF(art.w - 66 * art.k, 28 * art.k, 57 * art.k, 9 * art.k), {forms::kSmallFont, 7, false}, "OPEN / CLOSE",
           legendOn(QColor(0xA9, 0xB0, 0xB7), base), {forms::Align::Right, .3});
}

/// Light and dark sectors round a middle, `turns` of them a round, brightest at `phase`.
QConicalGradient sheen(QPointF centre, const QColor& dark, const QColor& light, double phase, double sharp) {
  constexpr int kStops = 48;
  QConicalGradient gradient(centre, 0);
  for (int i = 0; i <= kStops; ++i) {
    // Qt goes round against the clock, the sectors are counted with it.
    const double turn = 1 - static_cast<double>(i) / kStops;
    gradient.setColorAt(static_cast<double>(i) / kStops, mix(dark, light, std::pow(.5 + .5 * std::cos(4 * M_PI * (turn - phase)), sharp)));
  }
  return gradient;
}

/// A silver disc with its hub.
void emblem(QPainter& p, QPointF centre, double r) {
  const auto disc = [&](QPointF at, double radius, const QBrush& brush, const QPen& pen = Qt::NoPen) {
    p.setPen(pen);
    p.setBrush(brush);
    p.drawEllipse(at, radius, radius);
  };
  disc(centre + QPointF(0, .8), r, alpha(Qt::black, .5));
  disc(centre, r, sheen(centre, QColor(0x5C, 0x63, 0x6B), QColor(0xE9, 0xED, 0xF0), .12, 2.2));
  disc(centre, r - .35, Qt::NoBrush, QPen(alpha(QColor(0x14, 0x17, 0x1A), .6), .7));
  for (const auto& [part, opacity] : {std::pair{.86, .25}, {.7, .18}, {.55, .15}})
    disc(centre, r * part, Qt::NoBrush, QPen(alpha(Qt::black, opacity), .5));
  disc(centre, r * .36, QColor(0x2A, 0x2E, 0x33), QPen(alpha(QColor(0xDD, 0xE1, 0xE5), .5), .5));
  disc(centre, r * .15, QColor(0x0A, 0x0B, 0x0C));
}

void statusLamp(Art& art) {
  const QColor colour = qColour(art.control.backColor);
  const QRectF glass = area(art).adjusted(1.3, 1.3, -1.3, -1.3);
  QPainter& p = art.painter;
  well(p, area(art).adjusted(.6, .6, -.6, -.6), 1.6, QColor(5, 6, 7), 1.2 * art.k);
  soft(p, glass.adjusted(-1, -1, 1, 1), 2, alpha(colour, .28), 3.5);
  fill(p, glass,
       blend(glass.topLeft(), glass.bottomLeft(),
             {{0, mix(colour, Qt::white, .42)}, {.35, mix(colour, Qt::white, .12)}, {1, mix(colour, Qt::black, .28)}}),
       1.2);
  fill(p, QRectF(glass.left(), glass.top(), glass.width(), glass.height() * .45), alpha(Qt::white, .16), 1.2);
}

/// A chrome ring round a hollow cap, its sign in the status lamp's colour.
void power(Art& art) {
  if (ownPicture(art, true)) return;
  QPainter& p = art.painter;
  const QPointF centre(art.w / 2, art.h / 2);
  const double r = art.w / 2;
  const auto disc = [&](double radius, const QBrush& brush, const QPen& pen = Qt::NoPen) {
    p.setPen(pen);
    p.setBrush(brush);
    p.drawEllipse(centre, radius, radius);
  };
  soft(p, QRectF(.4, 1.2, art.w, art.h), r, alpha(Qt::black, .55), 2.5);
  disc(r, QColor(0x0A, 0x0B, 0x0C));
  disc(r - art.k, sheen(centre, QColor(0x4A, 0x50, 0x57), QColor(0xF1, 0xF3, 0xF5), .625, 1.6));
  disc(r - 3.2 * art.k, QColor(0x0C, 0x0D, 0x0E));
  disc(r - 3.9 * art.k,
       blendIn(area(art), .4, 1, {{0, QColor(0x26, 0x29, 0x2D)}, {.5, QColor(0x33, 0x37, 0x3C)}, {1, QColor(0x4A, 0x4F, 0x56)}}),
       QPen(QBrush(blendIn(area(art), .3, 1, {{0, alpha(Qt::black, .7)}, {1, alpha(Qt::white, .25)}})), .8));
  const forms::Control* source = art.control.with(forms::Role::Colour);
  const QColor colour = source == nullptr ? QColor(0x32, 0xC8, 0x55) : qColour(source->backColor);
  QPainterPath path;
  path.arcMoveTo(QRectF(-4.7, -4.7, 9.4, 9.4), 132);
  path.arcTo(QRectF(-4.7, -4.7, 9.4, 9.4), 132, 276);
  path.moveTo(0, -5.4);
  path.lineTo(0, -.6);
  const QPointF middle = centre + QPointF(0, .4);
  for (const double width : {5.5, 4.2, 2.9}) sign(p, path, middle, art.k, {width, alpha(colour, .16)});
  sign(p, path, middle, art.k, {1.5, mix(colour, Qt::white, .45)});
}

void slot(Art& art) {
  const QColor c = qColour(art.control.backColor);
  fill(art.painter, area(art),
       blend({0, 0}, {art.w, 0}, {{0, QColor(Qt::black)}, {.5, QColor(0x0B, 0x0C, 0x0D)}, {1, QColor(0x3A, 0x3E, 0x43)}}), 1.6);
  const double rim = at(art, 25);
  const QRectF inner = area(art).adjusted(rim, rim, -rim, -rim);
  fill(art.painter, inner,
       blend(inner.topLeft(), inner.topRight(),
             {{0, mix(c, Qt::black, .45)}, {.35, c}, {.5, mix(c, Qt::white, .35)}, {.65, c}, {1, mix(c, Qt::black, .45)}}),
       .8);
}

void thumb(Art& art) {
  const QColor c = qColour(art.control.backColor);
  fill(art.painter, QRectF(.3, 1.6, art.w + .6, art.h + 1.2), alpha(Qt::black, .6), 1.2);
  fill(art.painter, area(art),
       blend({0, 0}, {0, art.h},
             {{0, mix(c, Qt::white, .55)},
              {.3, c},
              {.46, mix(c, Qt::black, .25)},
              {.5, QColor(0x10, 0x12, 0x14)},
              {.58, QColor(0x10, 0x12, 0x14)},
              {.62, mix(c, Qt::white, .3)},
              {1, mix(c, Qt::black, .35)}}),
       1);
}

void groove(Art& art) {
  QPainter& p = art.painter;
  const QRectF cut(0, -1.5 * art.k, art.w, 3 * art.k);
  fill(p, cut,
       blend(cut.topLeft(), cut.bottomLeft(), {{0, QColor(5, 6, 7)}, {.6, QColor(0x17, 0x19, 0x1C)}, {1, QColor(0x2A, 0x2D, 0x31)}}),
       1.5 * art.k);
  fill(p, QRectF(1, 1.9 * art.k - .3, art.w - 2, .6), alpha(Qt::white, .28));
}

/// A mark for each tenth of the sliders' way and a long one for each half, from the middle of the panel outwards.
struct Marks {
  double last;  ///< design pixels from the panel's top
  double apart;
  double longer;
  double shorter;
};

void engraveScale(Art& art, const forms::Control& slider, const Marks& marks) {
  const double middle = art.w / 2;
  for (int mark = 0; mark <= 10; ++mark) {
    const double y = at(art, slider.top + 115 + mark * 99.5);
    if (y > marks.last) break;
    const bool half = mark % 5 == 0;
    const double length = (half ? marks.longer : marks.shorter) * art.k;
    for (const double from : {middle - marks.apart * art.k, middle + marks.apart * art.k - length}) {
      fill(art.painter, QRectF(from, y + .35, length, .7), alpha(Qt::black, .6));
      fill(art.painter, QRectF(from, y - .35, length, .7), alpha(QColor(0xC9, 0xCE, 0xD4), half ? .75 : .5));
    }
  }
}

void sunkMetal(Art& art, double inset) {
  QPainter& p = art.painter;
  const QRectF inner = area(art).adjusted(inset, inset, -inset, -inset);
  well(p, inner, 3, QColor(Qt::black), (inset > 0 ? 1.6 : 1.8) * art.k);
  metal(art, inner, qColour(art.control.backColor), 3, .2);
  fill(p, QRectF(inner.left(), inner.top(), inner.width(), 6),
       blend(inner.topLeft(), inner.topLeft() + QPointF(0, 6), {{0, alpha(Qt::black, .52)}, {1, alpha(Qt::black, 0)}}), 3);
  fill(p, QRectF(inner.left(), inner.top(), 5, inner.height()),
       blend(inner.topLeft(), inner.topLeft() + QPointF(5, 0), {{0, alpha(Qt::black, .42)}, {1, alpha(Qt::black, 0)}}), 3);
}

/// The legends and lamps of a volume panel that has no controls for them: round its sliders, over its link key.
void levelPanel(Art& art, const forms::Control& slider) {
  const auto& panel = static_cast<const forms::Panel&>(art.control);
  const forms::Control* link = nullptr;
  for (const forms::Control* control : panel.form().controls()) {
    if (control->parent == &panel && control->art.find("linked") != std::string::npos) link = control;
  }
  if (link == nullptr) return;
  engraveScale(art, slider, {at(art, link->top - 190), 11.5, 8.5, 5});
  const forms::Font font{forms::kSmallFont, 7};
  const QColor legend = legendOn(QColor(0xC9, 0xCE, 0xD4), qColour(panel.backColor));
  engraved(art, {0, at(art, link->top - 150), art.w, at(art, 135)}, font, "Link", legend, {});
  const double under = at(art, slider.top + slider.height + 5);
  const double wide = at(art, slider.width);
  engraved(art, {at(art, slider.left), under, wide, at(art, 150)}, font, "L", legend, {});
  engraved(art, {art.w - at(art, slider.left) - wide, under, wide, at(art, 150)}, font, "R", legend, {});
  if (panel.empty) return;
  constexpr int kLamps = 6;
  for (int i = 0; i < kLamps; ++i) {
    const QRectF left(at(art, 45) + .3, at(art, slider.top + 100 + i * 199) + .2, at(art, 60) - .6, at(art, 30) - .4);
    const QColor colour(0x50, 0xE6, 0x78);
    lamp(art.painter, left, colour, true, .8);
    lamp(art.painter, left.translated(art.w - 2 * left.left() - left.width(), 0), colour, true, .8);
  }
}

/// A sunk panel; with a scale between sliders, or with all of a volume panel.
void sunkPanel(Art& art, std::string_view detail) {
  const forms::Control* slider = art.control.with(forms::Role::Scale);
  sunkMetal(art, slider != nullptr ? 1 : 0);
  if (slider == nullptr) return;
  if (detail == "level") {
    levelPanel(art, *slider);
  } else {
    engraveScale(art, *slider, {at(art, art.k == 1 ? 1235 : 1215), 10.5, 7.5, 4.5});
  }
}

}  // namespace

void sunkDisc(Art& art, const QRectF& place) {
  constexpr double kWide = 75.3;  // design pixels of the place that the measures are for
  QPainter& p = art.painter;
  const double unit = place.width() / kWide;
  const double r = 29 * unit;
  const QPointF centre(place.center().x(), place.top() + 45.8 * unit);
  const QRectF rim(centre - QPointF(r, r), centre + QPointF(r, r));
  const auto ring = [&](double wider, const QBrush& brush, const QPen& pen = Qt::NoPen) {
    p.setPen(pen);
    p.setBrush(brush);
    p.drawEllipse(centre, r + wider * unit, r + wider * unit);
  };
  ring(5, blendIn(rim, .3, 1, {{0, alpha(Qt::black, .6)}, {1, alpha(Qt::white, .16)}}));
  ring(3.6, QColor(0x15, 0x17, 0x1A),
       QPen(QBrush(blend(rim.topLeft(), rim.bottomLeft(), {{0, alpha(Qt::black, .9)}, {1, alpha(Qt::black, .2)}})), 1.6));
  emblem(p, centre, r);
  const forms::Font font{forms::kSmallFont, 7.5 * unit / art.k, true};
  const QColor legend = legendOn(QColor(0xC3, 0xC9, 0xCF), qColour(art.control.form().backColor));
  double top = centre.y() + r + 12 * unit;
  for (const char* word : {"COMPACT", "DISC"}) {
    engraved(art, QRectF(place.left(), top, place.width(), 10 * unit), font, word, legend, {forms::Align::Center, 2.2 * unit});
    top += 10 * unit;
  }
}

bool paintSurface(Art& art, std::string_view name, std::string_view detail) {
  const forms::Control& c = art.control;
  const QColor fore = qColour(c.foreColor);
  if (name == "faceplate") {
    faceplate(art);
  } else if (name == "metal") {
    sunkPanel(art, detail);
  } else if (name == "door") {
    door(art, detail == "moving");
  } else if (name == "tray") {
    paintTray(art, detail == "half");
  } else if (name == "emblem") {
    emblem(art.painter, area(art).center(), std::min(art.w, art.h) / 2 - .5);
  } else if (name == "disc") {
    sunkDisc(art, area(art));
  } else if (name == "statuslamp") {
    statusLamp(art);
  } else if (name == "power") {
    power(art);
  } else if (name == "slot") {
    slot(art);
  } else if (name == "cover") {
    fill(art.painter, area(art),
         blend({0, 0}, {art.w, 0}, {{0, QColor(4, 5, 5)}, {.6, QColor(0x0C, 0x0D, 0x0E)}, {1, QColor(0x19, 0x1B, 0x1D)}}), .8);
  } else if (name == "thumb") {
    thumb(art);
  } else if (name == "highlight") {
    // Along the thumb's edge, so it is as long as the thumb is wide or high.
    fill(art.painter, c.width > c.height ? QRectF(0, 0, art.w, .7) : QRectF(0, 0, .7, art.h), alpha(fore, .9));
  } else if (name == "groove") {
    groove(art);
  } else if (name == "lamp") {
    lamp(art.painter, area(art).adjusted(.3, .2, -.3, -.2), fore, true, .8);
  } else if (name == "floor") {
    if (detail == "well") {
      well(art.painter, area(art).adjusted(.4, .4, -.4, -.4), 2.4, QColor(5, 6, 7), 1.3 * art.k);
    } else {
      fill(art.painter, area(art), QColor(3, 4, 4), 1);
    }
  } else if (name == "shadow") {
    fill(art.painter, area(art), alpha(Qt::black, .5), 2.5);
  } else if (name == "hole") {
    fill(art.painter, area(art), QColor(4, 5, 5), 2);
  } else if (name == "plateau") {
    fill(art.painter, area(art),
         blend({0, 0}, {0, art.h}, {{0, alpha(Qt::black, .55)}, {.4, alpha(Qt::black, .25)}, {1, alpha(Qt::black, .05)}}), 1.8);
  } else if (name == "maker") {
    ground(art);
    letters(art, area(art), c.font, c.caption, alpha(brightness(fore) < .35 ? Qt::white : Qt::black, .75),
            {forms::Align::Left, 2.3 * art.k, .9});
    letters(art, area(art), c.font, c.caption, fore, {forms::Align::Left, 2.3 * art.k});
  } else if (name == "engraved") {
    const double spacing = detail == "wide" ? 2.4 * art.k : c.align == forms::Align::Left ? 1.6 * art.k : .3;
    ground(art);
    engraved(art, area(art), c.font, c.caption, fore, {c.align, spacing});
  } else if (name == "plain") {
    letters(art, c.caption, fore == QColor(Qt::black) ? QColor(1, 4, 2) : fore, {c.align, 1.2 * art.k});
  } else {
    return name == "clear" || name == "joint";
  }
  return true;
}

}  // namespace orvanta
