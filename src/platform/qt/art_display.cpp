// The lit display: glass, digits over their unlit ghosts, glowing text, the segmented bar.
#include <QPainterPath>

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

void glass(Art& art) {
  QPainter& p = art.painter;
  const QRectF area(0, 0, art.w, art.h);
  const QColor back = qColour(art.control.backColor);
  if (art.control.backColor != colours::kBlack) {
    fill(p, area, back);
    return;
  }
  const double top = 23 * art.k - art.windowY;
  fill(p, area, blend({0, top}, {0, top + 112 * art.k}, {{0, QColor(0x0B, 0x0F, 0x0F)}, {1, QColor(3, 5, 5)}}));
  // Two reflections that run on from pane to pane.
  p.save();
  p.setClipRect(area);
  for (const double start : {250.0, 390.0}) {
    const double x = start * art.k - art.windowX;
    const double width = (start < 300 ? 26 : 14) * art.k;
    const double slope = 60 * art.k;
    const double y1 = 23 * art.k - art.windowY;
    const double y2 = y1 + 112 * art.k;
    QPainterPath band;
    band.addPolygon(QPolygonF({{x + slope, y1}, {x + slope + width, y1}, {x + width, y2}, {x, y2}}));
    p.fillPath(band, alpha(Qt::white, .04));
  }
  p.restore();
}

/// Bright text glows: faint copies around it.
void lit(Art& art, const Lettering& how, double points) {
  const forms::Control& c = art.control;
  const QColor colour = qColour(c.foreColor);
  if (brightness(colour) > .35) {
    for (const auto& [dx, dy] : {std::pair{-1.0, 0.0}, {1.0, 0.0}, {0.0, -1.0}, {0.0, 1.0}, {-.7, -.7}, {.7, .7}, {-.7, .7}, {.7, -.7}}) {
      Lettering around = how;
      around.dy += dy;
      art.plain.translate(dx * art.factor, 0);
      letters(art, c.caption, alpha(colour, .1), around, points);
      art.plain.translate(-dx * art.factor, 0);
    }
  }
  letters(art, c.caption, brightness(colour) > .35 ? mix(colour, Qt::white, .16) : colour, how, points);
}

void digits(Art& art) {
  const forms::Control& c = art.control;
  const size_t length = c.caption.get().size();
  const bool time = c.width > 1000;
  const double points = length > 7 ? 11.5 : c.font.get().points;
  const Lettering how{c.align, 0, 0, c.align == forms::Align::Right};
  if (c.align == forms::Align::Right) {
    const char* ghost = !time ? "88" : length <= 6 ? "-88:88" : "-8:88:88";
    letters(art, ghost, QColor(0x0D, 0x26, 0x13), how, points);
  }
  lit(art, how, points);
}

void segments(Art& art) {
  const auto& bar = static_cast<const forms::Bar&>(art.control);
  constexpr int kSegments = 48;
  const QColor colour = qColour(bar.floodColor);
  const QColor dark = mix(qColour(bar.backColor), colour, .11);
  const double step = art.w / kSegments;
  for (int i = 0; i < kSegments; ++i) {
    const bool on = (i + .5) / kSegments * 100 < bar.floodPercent;
    fill(art.painter, QRectF(i * step + .35, art.h * .12, step - .9, art.h * .76), on ? colour : dark);
  }
  if (bar.floodPercent > 0) fill(art.painter, QRectF(-1, -1.5, art.w * bar.floodPercent / 100.0 + 2, art.h + 3), alpha(colour, .1), 2);
}

void cell(Art& art) {
  if (art.control.index() < 20 && brightness(qColour(art.control.foreColor)) > .35) {
    fill(art.painter, QRectF(.7, .3, art.w - 1.4, art.h - .6), alpha(qColour(art.control.foreColor), .1), 1.4);
  }
  lit(art, {art.control.align}, 0);
}

}  // namespace

bool paintDisplay(Art& art, std::string_view name, std::string_view /*detail*/) {
  const forms::Control& c = art.control;
  const QRectF area(0, 0, art.w, art.h);
  if (name == "glass") {
    glass(art);
  } else if (name == "digits") {
    digits(art);
  } else if (name == "lit") {
    lit(art, {c.align, c.font.get().points < 8 ? .3 : 0, 0, false, c.wordWrap}, 0);
  } else if (name == "cell") {
    cell(art);
  } else if (name == "segments") {
    segments(art);
  } else if (name == "percent") {
    well(art.painter, area.adjusted(1, .5, -1, -.5), 1.2, art.k);
    lit(art, {c.align}, 0);
  } else if (name == "online") {
    letters(art, area, {"Small Fonts", 7, true}, "ONLINE", QColor(0xFF, 0xC2, 0x47), {forms::Align::Right});
  } else if (name == "entry") {
    fill(art.painter, area, QColor(2, 3, 3), 1.5);
    lit(art, {c.align}, 0);
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
