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

void fill(QPainter& painter, const QRectF& rect, const QBrush& brush, double radius = 0);
/// A thin frame, light at the top left and dark at the bottom right.
void edge(QPainter& painter, const QRectF& rect, double radius, double light, double dark, double width);
/// A recess: dark wall at the top left, lit lip at the bottom right, outside `rect`.
void well(QPainter& painter, const QRectF& rect, double radius, double lip);
/// Brushed metal of a base colour.
void metal(QPainter& painter, const QRectF& rect, const QColor& base, double radius, double grain, double factor);
void aluminium(QPainter& painter, const QRectF& rect, double radius);
void graphite(QPainter& painter, const QRectF& rect, double radius);
/// A small lamp in its hole, lit or dark.
void lamp(QPainter& painter, const QRectF& rect, const QColor& colour, bool lit);

struct Lettering {
  forms::Align align = forms::Align::Center;
  double spacing = 0;
  double dy = 0;        ///< down from its place
  bool bottom = false;  ///< on the bottom of the rectangle instead of its middle
  bool wrap = false;    ///< up to two lines from the top
};
/// `text` in the control's font, or `points` high, within the control's rectangle.
void letters(Art& art, const std::string& text, const QColor& colour, const Lettering& how, double points = 0);
void letters(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how);
/// Dark copy below, then the text: cut into metal.
void engraved(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how);

enum class Symbol { Previous, Next, Play, Pause, Stop, Record, Rewind, Forward };
/// false for a name that is no symbol.
bool symbolOf(std::string_view name, Symbol& symbol);
QPainterPath symbolPath(Symbol symbol);
/// A symbol around (x, y), `k` times its design size, with its engraving.
void symbol(QPainter& painter, Symbol symbol, QPointF centre, double k, const QColor& colour);

}  // namespace orvanta
