// The lit display: glass, digits over their unlit ghosts, glowing text, the segmented bar.
#include <QPainterPath>

#include <algorithm>

#include "platform/forms/design.h"
#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"
#include "platform/qt/palette.h"

namespace orvanta {

namespace {

/// The user's own display colours, when they are set: the panes then have them.
struct OwnColours {
  bool set = false;
  QColor fore;
  QColor back;
};

OwnColours ownColours(const forms::Control& control) {
  const auto* pane = dynamic_cast<const forms::Panel*>(control.parent != nullptr ? control.parent : &control);
  if (pane == nullptr || pane->bevelInner != 1) return {};
  return {true, qColour(pane->foreColor), qColour(pane->backColor)};
}

/// What all panes lie on, in design pixels of the window.
QRectF displayArea(const Art& art) {
  const forms::Place glass = art.control.form().area(forms::AreaKind::Glass);
  if (glass.width <= 0) return {art.windowX, art.windowY, art.w, art.h};
  const double unit = art.k / 15;
  return {glass.left * unit, glass.top * unit, glass.width * unit, glass.height * unit};
}

/// Glass with two reflections that run on from pane to pane.
void glass(Art& art, std::string_view detail) {
  QPainter& p = art.painter;
  const QRectF area(0, 0, art.w, art.h);
  const OwnColours own = ownColours(art.control);
  const QRectF display = displayArea(art).translated(-art.windowX, -art.windowY);
  if (own.set) {
    fill(p, area, own.back);
    QRadialGradient vignette(QPointF(display.center().x(), display.top() + display.height() * .45), display.width() * .62);
    vignette.setColorAt(0, alpha(Qt::white, .16));
    vignette.setColorAt(.6, alpha(Qt::white, 0));
    vignette.setColorAt(1, alpha(Qt::black, .22));
    fill(p, area, vignette);
  } else {
    fill(p, area, blend(display.topLeft(), display.bottomLeft(), {{0, QColor(0x0B, 0x0F, 0x0F)}, {1, QColor(3, 5, 5)}}));
  }
  p.save();
  p.setClipRect(area);
  const double strength = own.set ? .10 : .045;
  const auto band = [&](double from, double to, double lower, double opacity) {
    QPainterPath path;
    const auto x = [&](double part) { return display.left() + display.width() * part; };
    const double width = to - from;
    path.addPolygon(
        QPolygonF({{x(from), display.top()}, {x(to), display.top()}, {x(lower + width), display.bottom()}, {x(lower), display.bottom()}}));
    p.fillPath(path, alpha(Qt::white, opacity));
  };
  band(.30, .52, .18, strength);
  band(.55, .58, .43, strength * .8);
  p.restore();
  const forms::Control* joint = art.control.with(forms::Role::Joint);
  if (detail == "joint" && (joint == nullptr || !joint->visible)) {
    const QColor line = own.set ? mix(own.back, Qt::black, .16) : mix(Qt::black, Qt::white, .10);
    fill(p, QRectF(0, 0, art.w, .8), line);
    fill(p, QRectF(art.w - .8, 0, .8, art.h), line);
  }
  if (detail != "rule") return;
  // A hairline over the digits.
  const double unit = art.k / 15;
  const double left = joint != nullptr && joint->visible ? joint->width * unit : 0;
  const int top = art.control.form().area(forms::AreaKind::Rule).top;
  fill(p, QRectF(left + 4 * art.k, top * unit - .4, art.w - left - 8 * art.k, .8),
       own.set ? mix(own.back, own.fore, .28) : QColor(0, 0x32, 0x3A));
}

/// Text on the glass; bright text shines, a text in the colour of the user's glass is not there.
void lit(Art& art, const Lettering& how, double points) {
  const forms::Control& c = art.control;
  const QColor colour = qColour(c.foreColor);
  const OwnColours own = ownColours(c);
  if (own.set && colour == own.back) return;
  const bool bright = brightness(colour) > .35;
  const bool lightGlass = own.set && brightness(own.back) > brightness(own.fore);
  forms::Font font = c.font;
  if (points > 0) font.points = points;
  const QRectF area(0, 0, art.w, art.h);
  const QColor face = bright && !own.set ? mix(colour, Qt::white, .16) : colour;
  if (bright && !lightGlass) glow(art, area, font, c.caption, face, how, .55);
  letters(art, area, font, c.caption, face, how);
}

/// The detail names what stands unlit behind: a number, a time, or nothing.
void digits(Art& art, std::string_view detail) {
  const forms::Control& c = art.control;
  const size_t length = c.caption.get().size();
  const double points = length > 7 ? std::min(11.5, c.font.get().points) : c.font.get().points;
  const bool right = c.align == forms::Align::Right;
  const Lettering how{c.align, 0, 0, right};
  if (!detail.empty() && c.font.get().family == forms::kLcdFont) {
    const OwnColours own = ownColours(c);
    const char* ghost = detail == "number" ? "88" : length <= 6 ? "-88:88" : "-8:88:88";
    letters(art, ghost, own.set ? mix(own.back, own.fore, .10) : QColor(0x0D, 0x26, 0x13), how, points);
  }
  lit(art, how, points);
}

void segments(Art& art) {
  const auto& bar = static_cast<const forms::Bar&>(art.control);
  constexpr int kSegments = 48;
  const QColor colour = qColour(bar.floodColor);
  const QColor back = qColour(bar.backColor);
  const QColor dark = mix(back, colour, .11);
  const double step = art.w / kSegments;
  for (int i = 0; i < kSegments; ++i) {
    const bool on = (i + .5) / kSegments * 100 < bar.floodPercent;
    fill(art.painter, QRectF(i * step + .35, art.h * .12, step - .9, art.h * .76), on ? colour : dark, .5);
  }
  const bool lightGlass = ownColours(bar).set && brightness(back) > .4;
  if (bar.floodPercent > 0 && !lightGlass)
    soft(art.painter, QRectF(0, 0, art.w * bar.floodPercent / 100.0, art.h), 1, alpha(colour, .16), 3);
}

/// A cell of the calendar: lit numbers sit on a faint ground.
void cell(Art& art, bool number) {
  const forms::Control& c = art.control;
  const QColor colour = qColour(c.foreColor);
  const OwnColours own = ownColours(c);
  if (own.set) {
    letters(art, c.caption, mix(own.back, own.fore, .10), {c.align});
  } else if (number && brightness(colour) > .35) {
    fill(art.painter, QRectF(.7, .3, art.w - 1.4, art.h - .6), alpha(colour, .1), 1.4);
  }
  lit(art, {c.align}, 0);
}

/// An indicator: unlit, the user's own glass still shows where it is.
void indicator(Art& art) {
  const OwnColours own = ownColours(art.control);
  const Lettering how{art.control.align, .3};
  if (own.set) letters(art, art.control.caption, mix(own.back, own.fore, .10), how);
  lit(art, how, 0);
}

}  // namespace

bool paintDisplay(Art& art, std::string_view name, std::string_view detail) {
  const forms::Control& c = art.control;
  const QRectF area(0, 0, art.w, art.h);
  if (name == "glass") {
    glass(art, detail);
  } else if (name == "digits") {
    digits(art, detail);
  } else if (name == "lit") {
    lit(art, {c.align, c.font.get().points < 8 ? .3 : 0, 0, false, c.wordWrap}, 0);
  } else if (name == "indicator") {
    indicator(art);
  } else if (name == "cell") {
    cell(art, detail != "mark");
  } else if (name == "segments") {
    segments(art);
  } else if (name == "percent") {
    well(art.painter, area.adjusted(1, .5, -1, -.5), 1.2, QColor(3, 4, 4), art.k);
    lit(art, {c.align}, 0);
  } else if (name == "online") {
    const forms::Font font{forms::kSmallFont, 7, true};
    glow(art, area, font, "ONLINE", kAmber, {forms::Align::Right}, .6);
    letters(art, area, font, "ONLINE", kAmber, {forms::Align::Right});
  } else if (name == "entry") {
    fill(art.painter, area, QColor(2, 3, 3), 1.5);
    art.painter.setBrush(Qt::NoBrush);
    art.painter.setPen(QPen(QColor(0x7A, 0x80, 0x87), .7));
    art.painter.drawRoundedRect(area, 1.5, 1.5);
    lit(art, {c.align}, 0);
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
