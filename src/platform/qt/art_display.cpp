// The lit display: glass, digits over their unlit ghosts, glowing text, the segmented bar.
#include <QPainterPath>

#include <algorithm>

#include "platform/forms/design.h"
#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"
#include "platform/qt/palette.h"
#include "platform/qt/text_lines.h"

namespace orvanta {

namespace {

/// The user's own display colours, when they are set: the panes then have them.
struct OwnColours {
  bool set = false;
  QColor fore;
  QColor back;
};

bool isGlass(const forms::Control& control) { return control.art.rfind("glass", 0) == 0; }

OwnColours ownColours(const forms::Control& control) {
  const auto* pane = dynamic_cast<const forms::Panel*>(isGlass(control) ? &control : control.parent);
  if (pane == nullptr || pane->bevelInner != 1) return {};
  return {true, qColour(pane->foreColor), qColour(pane->backColor)};
}

/// What all panes lie on, in design pixels of the window.
QRectF displayArea(const Art& art, std::string_view detail) {
  if (detail == "mini") return {art.windowX, art.windowY - 2, art.w, art.h + 4};
  const forms::Place glass = art.control.form().area(forms::AreaKind::Glass);
  if (glass.width <= 0) return {art.windowX, art.windowY, art.w, art.h};
  const double unit = art.k / 15;
  return {glass.left * unit, glass.top * unit, glass.width * unit, glass.height * unit};
}

/// A hairline above the legends, another beside the column of words.
void words(Art& art, const QColor& hair) {
  const forms::Form& form = art.control.form();
  const double unit = art.k / 15;
  for (const forms::AreaKind kind : {forms::AreaKind::Rule, forms::AreaKind::Column}) {
    const forms::Place line = form.area(kind);
    fill(art.painter, QRectF(line.left * unit, line.top * unit, std::max(line.width * unit, .8), std::max(line.height * unit, .8)), hair);
  }
}

/// Hairlines above and below the numbers, and a faint outline where each is or could be.
void calendar(Art& art, const QColor& hair, const OwnColours& own) {
  QPainter& p = art.painter;
  const double unit = art.k / 15;
  double top = art.h;
  p.setBrush(Qt::NoBrush);
  for (const forms::Control* number : art.control.form().controls()) {
    if (number->parent != &art.control || number->art != "cell") continue;
    const QRectF place(number->left * unit, number->top * unit, number->width * unit, number->height * unit);
    top = std::min(top, place.top());
    p.setPen(QPen(own.set ? alpha(mix(own.back, own.fore, .5), .16) : alpha(QColor(0, 0xE0, 0xA0), .10), .6));
    p.drawRoundedRect(place.adjusted(.9, .7, -.9, -.7), 1.6, 1.6);
  }
  const double margin = 90 * unit;
  for (const double y : {top - 3.6 * art.k, art.h - 3.8 * art.k}) fill(p, QRectF(margin, y, art.w - 2 * margin, .8), hair);
}

/// Glass with two reflections that run on from pane to pane.
void glass(Art& art, std::string_view detail) {
  QPainter& p = art.painter;
  const QRectF area(0, 0, art.w, art.h);
  const OwnColours own = ownColours(art.control);
  const QRectF display = displayArea(art, detail).translated(-art.windowX, -art.windowY);
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
  // As steep on a high display as on a wide one.
  const double slant = display.height() * .2033;
  const auto band = [&](double middle, double part, double opacity) {
    const double x = display.left() + display.width() * middle;
    const double width = display.width() * part;
    QPainterPath path;
    path.addPolygon(QPolygonF({{x + slant, display.top()},
                               {x + slant + width, display.top()},
                               {x - slant + width, display.bottom()},
                               {x - slant, display.bottom()}}));
    p.fillPath(path, alpha(Qt::white, opacity));
  };
  band(.24, .22, strength);
  band(.49, .03, strength * .8);
  p.restore();
  const forms::Control* joint = art.control.with(forms::Role::Joint);
  if (detail == "joint" && (joint == nullptr || !joint->visible)) {
    const QColor line = own.set ? mix(own.back, Qt::black, .16) : mix(Qt::black, Qt::white, .10);
    fill(p, QRectF(0, 0, art.w, .8), line);
    fill(p, QRectF(art.w - .8, 0, .8, art.h), line);
  }
  const QColor hair = own.set ? mix(own.back, own.fore, .28) : QColor(0, 0x32, 0x3A);
  if (detail == "mini") {
    fill(p, QRectF(0, 0, art.w, 2.5 * art.k),
         blend({0, 0}, {0, 2.5 * art.k}, {{0, alpha(Qt::black, own.set ? .3 : .5)}, {1, alpha(Qt::black, 0)}}), 1);
  } else if (detail == "words") {
    words(art, hair);
  } else if (detail == "calendar") {
    calendar(art, hair, own);
  }
  if (detail != "rule") return;
  // A hairline over the digits.
  const double unit = art.k / 15;
  const double left = joint != nullptr && joint->visible ? joint->width * unit : 0;
  const int top = art.control.form().area(forms::AreaKind::Rule).top;
  fill(p, QRectF(left + 4 * art.k, top * unit - .4, art.w - left - 8 * art.k, .8), hair);
}

/// Text on the glass; bright text shines, a text in the colour of the user's glass is not there.
void lit(Art& art, const std::string& text, const Lettering& how, double points) {
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
  if (bright && !lightGlass) glow(art, area, font, text, face, how, .55);
  letters(art, area, font, text, face, how);
}

void lit(Art& art, const Lettering& how, double points) { lit(art, art.control.caption, how, points); }

/// Every digit with all its segments.
std::string unlit(std::string text) {
  for (char& c : text) c = c >= '0' && c <= '9' ? '8' : c;
  return text;
}

/// The detail names what stands unlit behind: a number, a time, the same places as are lit, or nothing.
void digits(Art& art, std::string_view detail) {
  const forms::Control& c = art.control;
  const size_t length = c.caption.get().size();
  // A long time in a place that its face is too wide for.
  constexpr double kNarrow = 11.5;
  const double own = c.font.get().points;
  const auto tooWide = [&] {
    const TextLines line(art.fonts, c.font, own * 96 / 72 * art.k * art.factor, 0, QString::fromStdString(c.caption));
    return line.width(0) > art.w * art.factor;
  };
  const double points = length > 7 && tooWide() ? std::min(kNarrow, own) : own;
  const bool right = c.align == forms::Align::Right;
  const Lettering how{c.align, 0, 0, right};
  if (!detail.empty() && c.font.get().family == forms::kLcdFont) {
    const OwnColours glass = ownColours(c);
    const std::string ghost = detail == "number" ? "88" : detail == "same" ? unlit(c.caption) : length <= 6 ? "-88:88" : "-8:88:88";
    letters(art, ghost, glass.set ? mix(glass.back, glass.fore, .10) : QColor(0x0D, 0x26, 0x13), how, points);
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
  // Beside the glass it brings its own.
  const bool onGlass = bar.parent != nullptr && isGlass(*bar.parent);
  if (!onGlass) fill(art.painter, QRectF(-.4, -.4, art.w + .8, art.h + .8), back == QColor(Qt::black) ? QColor(3, 5, 5) : back, .8);
  for (int i = 0; i < kSegments; ++i) {
    const bool on = (i + .5) / kSegments * 100 < bar.floodPercent;
    fill(art.painter, QRectF(i * step + .35, art.h * .12, step - .9, art.h * .76), on ? colour : dark, .5);
  }
  const bool lightGlass = brightness(back) > .4;
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
    // A dash for each digit that is still wanted.
    std::string text = c.caption;
    text.resize(std::max<size_t>(text.size(), 2), '-');
    lit(art, text, {c.align, 1}, 0);
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
