// Brushes, edges and text that the drawings share.
#pragma once

#include <initializer_list>

#include <QColor>
#include <QLinearGradient>

#include "platform/qt/art.h"

namespace orvanta {

QColor qColour(Colour colour);
QColor mix(const QColor& a, const QColor& b, double part);
QColor alpha(QColor colour, double opacity);
double brightness(const QColor& colour);

struct Stop {
  double at;
  QColor colour;
};
/// Along the line from (x1, y1) to (x2, y2).
QLinearGradient blend(QPointF from, QPointF to, std::initializer_list<Stop> stops);

/// From a rectangle's top left corner towards (u, v) in parts of its sides, skewed as the rectangle is: all
/// of a wide one's top edge is at the start of a gradient that runs mostly down.
QLinearGradient blendIn(const QRectF& rect, double u, double v, std::initializer_list<Stop> stops);

void fill(QPainter& painter, const QRectF& rect, const QBrush& brush, double radius = 0);
/// A thin frame, light at the top left and dark at the bottom right.
void edge(QPainter& painter, const QRectF& rect, double radius, double light, double dark, double width);
/// A recess: dark wall at the top left, lit lip at the bottom right, outside `rect`.
void well(QPainter& painter, const QRectF& rect, double radius, const QColor& ground, double lip);
/// The grain of brushed metal over a piece of the window, in device pixels: streaks of light and dark along x.
QImage grain(const QRect& piece, double factor);
/// Brushed metal of a base colour; its grain, of the given opacity, runs on from panel to panel.
void metal(Art& art, const QRectF& rect, const QColor& base, double radius, double strength);
/// A cap of aluminium with its shadow; under the mouse it goes flat.
void aluminium(QPainter& painter, const QRectF& rect, double radius, bool pressed);
void graphite(QPainter& painter, const QRectF& rect, double radius, bool pressed);
/// A shadow or shine that fades out over `blur` around a rounded rectangle.
void soft(QPainter& painter, const QRectF& rect, double radius, const QColor& colour, double blur);
/// Softens a picture of one byte a pixel, as much as `sigma` pixels.
void blur(QImage& mask, double sigma);
/// The user's picture over the control, when there is one that can be read; a round key shows a round one.
bool ownPicture(Art& art, bool round = false);
/// A small lamp in its hole, lit or dark.
void lamp(QPainter& painter, const QRectF& rect, const QColor& colour, bool lit, double radius);

struct Lettering {
  forms::Align align = forms::Align::Center;
  double spacing = 0;
  double dy = 0;        ///< down from its place
  bool bottom = false;  ///< on the bottom of the rectangle instead of its middle
  bool wrap = false;    ///< as many lines as the place has room for, from the top
};
/// `text` in the control's font, or `points` high, within the control's rectangle.
void letters(Art& art, const std::string& text, const QColor& colour, const Lettering& how, double points = 0);
void letters(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how);
/// A blurred copy of a text, for what shines.
void glow(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how,
          double strength);
/// Dark copy below, then the text: cut into metal.
void engraved(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how);

enum class Symbol { Previous, Next, Play, Pause, Stop, Record, Rewind, Forward, Eject };
/// false for a name that is no symbol.
bool symbolOf(std::string_view name, Symbol& symbol);
QPainterPath symbolPath(Symbol symbol);
QColor litColour(Symbol symbol);
/// A symbol of light: a pool of it on the key, as wide and high as told on each side, a halo, a bright face.
void litSymbol(Art& art, Symbol symbol, QPointF centre, double k, const QColor& colour, QSizeF pool = {24, 12});
/// The sign of a key of the volume panel, cut into its cap.
void keySign(Art& art, std::string_view name, double k);
/// The disc sunk into the metal, with its words below.
void sunkDisc(Art& art, const QRectF& place);
/// A path around (x, y) in a stroke or filled, with an engraving copy below when `below` is not transparent.
struct SignPen {
  double width = 0;  ///< 0 fills
  QColor colour;
  QColor below = Qt::transparent;
  double drop = .6;  ///< of the copy
};
void sign(QPainter& painter, const QPainterPath& path, QPointF centre, double k, const SignPen& pen);
/// Opens and shuts the tray.
void ejectSign(QPainter& painter, QPointF centre, double k, const QColor& ground);
/// This colour, or as dark a shade of it as can be read on the ground.
QColor readable(const QColor& colour, const QColor& ground);
/// This colour, or black where it could not be read: for what is cut into metal.
QColor legendOn(const QColor& colour, const QColor& ground);
/// A symbol around (x, y), `k` times its design size, with its engraving.
void symbol(QPainter& painter, Symbol symbol, QPointF centre, double k, const QColor& colour);

}  // namespace orvanta
