// The deck's materials and lettering.
#include "platform/qt/art_tools.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>

namespace orvanta {

namespace {

/// Horizontal streaks, made once for each scale.
const QImage& grainTile(double factor) {
  static QImage tile;
  static double made = 0;
  if (made == factor) return tile;
  made = factor;
  constexpr int kWide = 192;
  const int high = static_cast<int>(160 * factor);
  tile = QImage(kWide, high, QImage::Format_ARGB32_Premultiplied);
  uint32_t seed = 7;
  for (int y = 0; y < high; ++y) {
    auto* line = reinterpret_cast<QRgb*>(tile.scanLine(y));
    int level = 0;
    int left = 0;
    for (int x = 0; x < kWide; ++x, --left) {
      if (left <= 0) {
        seed = seed * 1664525U + 1013904223U;
        level = static_cast<int>(seed >> 24U) - 128;
        left = 24 + static_cast<int>(seed >> 8U & 63U);
      }
      const int strength = std::abs(level) * 34 / 128;
      line[x] = level > 0 ? qRgba(strength, strength, strength, strength) : qRgba(0, 0, 0, strength);
    }
  }
  return tile;
}

double capHeight(const forms::Font& font) { return font.family == "LcdD" ? 1.0 : 0.711; }

double pixelsOf(const Art& art, double points) { return points * 96 / 72 * art.k * art.factor; }

struct Line {
  QGlyphRun glyphs;
  double width = 0;
};

Line layOutLine(const QRawFont& face, const QString& text, double spacing) {
  Line line;
  const auto indexes = face.glyphIndexesForString(text);
  const auto advances = face.advancesForGlyphIndexes(indexes, QRawFont::KernedAdvances);
  QList<QPointF> places;
  for (const QPointF& advance : advances) {
    places.append({line.width, 0});
    line.width += advance.x() + spacing;
  }
  if (!advances.isEmpty()) line.width -= spacing;
  line.glyphs.setRawFont(face);
  line.glyphs.setGlyphIndexes(indexes);
  line.glyphs.setPositions(places);
  return line;
}

/// Text that the face lacks letters for goes through the system's own fall-back.
void systemLine(QPainter& painter, const QString& text, double x, double baseLine, double pixels, bool bold) {
  QFont font(QStringLiteral("sans-serif"));
  font.setPixelSize(std::max(1, static_cast<int>(pixels)));
  font.setBold(bold);
  painter.setFont(font);
  painter.drawText(QPointF(x, baseLine), text);
}

QStringList wrapped(const QRawFont& face, const QString& text, double width) {
  QStringList lines;
  QString line;
  for (const QString& word : text.split(QLatin1Char(' '))) {
    const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
    if (!line.isEmpty() && layOutLine(face, longer, 0).width > width && lines.empty()) {
      lines.append(line);
      line = word;
    } else {
      line = longer;
    }
  }
  lines.append(line);
  return lines;
}

}  // namespace

QColor qColour(Colour colour) {
  return QColor::fromRgb(static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU), static_cast<int>(colour >> 16U & 0xFFU));
}

QColor mix(const QColor& a, const QColor& b, double part) {
  const auto channel = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
  return QColor::fromRgb(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

QColor alpha(QColor colour, double opacity) {
  colour.setAlphaF(static_cast<float>(opacity));
  return colour;
}

double brightness(const QColor& colour) { return (.299 * colour.red() + .587 * colour.green() + .114 * colour.blue()) / 255; }

QLinearGradient blend(QPointF from, QPointF to, std::initializer_list<Stop> stops) {
  QLinearGradient gradient(from, to);
  for (const Stop& stop : stops) gradient.setColorAt(stop.at, stop.colour);
  return gradient;
}

void fill(QPainter& painter, const QRectF& rect, const QBrush& brush, double radius) {
  if (radius <= 0) {
    painter.fillRect(rect, brush);
    return;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(brush);
  painter.drawRoundedRect(rect, radius, radius);
}

void edge(QPainter& painter, const QRectF& rect, double radius, double light, double dark, double width) {
  const QPointF to(rect.left() + rect.width() * .35, rect.bottom());
  const auto pen = blend(rect.topLeft(), to, {{0, alpha(Qt::white, light)}, {.45, alpha(Qt::white, light * .25)}, {.55, alpha(Qt::black, dark * .25)}, {1, alpha(Qt::black, dark)}});
  painter.setPen(QPen(QBrush(pen), width));
  painter.setBrush(Qt::NoBrush);
  const double in = width / 2;
  painter.drawRoundedRect(rect.adjusted(in, in, -in, -in), radius, radius);
}

void well(QPainter& painter, const QRectF& rect, double radius, double lip) {
  const QRectF outer = rect.adjusted(-lip, -lip, lip, lip);
  fill(painter, outer, blend(outer.topLeft(), QPointF(outer.left() + outer.width() * .25, outer.bottom()), {{0, alpha(Qt::black, .75)}, {.5, alpha(Qt::black, .35)}, {1, alpha(Qt::white, .3)}}), radius + lip);
  const double half = lip * .45;
  const QRectF inner = rect.adjusted(-half, -half, half, half);
  fill(painter, inner, blend(inner.topLeft(), inner.bottomLeft(), {{0, QColor(5, 6, 7)}, {1, QColor(27, 30, 33)}}), radius + half);
}

void metal(QPainter& painter, const QRectF& rect, const QColor& base, double radius, double grain, double factor) {
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(base, Qt::white, .16)}, {.1, mix(base, Qt::white, .08)}, {.5, base}, {1, mix(base, Qt::black, .34)}}), radius);
  QBrush streaks(grainTile(factor));
  streaks.setTransform(QTransform::fromScale(1 / factor, 1 / factor));
  painter.setOpacity(grain);
  fill(painter, rect, streaks, radius);
  painter.setOpacity(1);
  fill(painter, rect, blend(rect.topLeft(), QPointF(rect.right(), rect.center().y()), {{0, alpha(Qt::white, .1)}, {.28, alpha(Qt::white, .015)}, {.5, alpha(Qt::white, .05)}, {.62, alpha(Qt::white, 0)}, {1, alpha(Qt::black, .16)}}), radius);
}

void aluminium(QPainter& painter, const QRectF& rect, double radius) {
  fill(painter, rect.translated(.5, 1.3), alpha(Qt::black, .55), radius);
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, QColor(0xF4F5F6)}, {.12, QColor(0xDADDE0)}, {.55, QColor(0xBEC3C8)}, {.9, QColor(0x9BA1A8)}, {1, QColor(0x868C94)}}), radius);
  edge(painter, rect, radius, .95, .8, .7);
}

void graphite(QPainter& painter, const QRectF& rect, double radius) {
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, QColor(0x565B62)}, {.08, QColor(0x444950)}, {.5, QColor(0x2D3136)}, {.93, QColor(0x1C1F23)}, {1, QColor(0x121417)}}), radius);
  edge(painter, rect, radius, .55, .9, .8);
}

void lamp(QPainter& painter, const QRectF& rect, const QColor& colour, bool lit) {
  fill(painter, rect.adjusted(-.6, -.6, .6, .6), QColor(5, 6, 7), 1.6);
  if (lit) {
    fill(painter, rect.adjusted(-2, -2, 2, 2), alpha(colour, .2), 3);
    fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(colour, Qt::white, .55)}, {.5, colour}, {1, mix(colour, Qt::black, .25)}}), 1);
  } else {
    fill(painter, rect, mix(colour, Qt::black, .8), 1);
  }
}

void letters(Art& art, const std::string& text, const QColor& colour, const Lettering& how, double points) {
  forms::Font font = art.control.font;
  if (points > 0) font.points = points;
  letters(art, QRectF(0, 0, art.w, art.h), font, text, colour, how);
}

void letters(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how) {
  if (text.empty()) return;
  const double pixels = pixelsOf(art, font.points);
  const QRawFont& face = art.fonts.face(font, pixels);
  const QString whole = QString::fromStdString(text);
  const double f = art.factor;
  const double width = rect.width() * f;
  const QStringList lines = how.wrap ? wrapped(face, whole, width) : QStringList{whole};
  QPainter& painter = art.painter;
  painter.save();
  painter.setWorldTransform(art.plain);
  painter.setPen(colour);
  for (int i = 0; i < lines.size(); ++i) {
    const Line line = layOutLine(face, lines[i], how.spacing * f);
    double x = rect.left() * f;
    if (how.align == forms::Align::Center) x += (width - line.width) / 2;
    if (how.align == forms::Align::Right) x += width - line.width;
    double baseLine = rect.top() * f + how.dy * f;
    if (how.wrap) {
      baseLine += pixels * (.93 + 1.17 * i);
    } else if (how.bottom) {
      baseLine += (rect.height() - 1.6 * art.k) * f;
    } else {
      baseLine += (rect.height() * f + pixels * capHeight(font)) / 2;
    }
    if (line.glyphs.glyphIndexes().contains(0) && font.family != "LcdD") {
      systemLine(painter, lines[i], x, baseLine, pixels, font.bold);
    } else {
      painter.drawGlyphRun(QPointF(x, baseLine), line.glyphs);
    }
  }
  painter.restore();
}

void engraved(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how) {
  Lettering below = how;
  below.dy += .7;
  letters(art, rect, font, text, alpha(Qt::black, .7), below);
  letters(art, rect, font, text, colour, how);
}

bool symbolOf(std::string_view name, Symbol& symbol) {
  static constexpr std::array<std::string_view, 8> kNames = {"prev", "next", "play", "pause", "stop", "record", "rewind", "forward"};
  const auto* found = std::find(kNames.begin(), kNames.end(), name);
  if (found == kNames.end()) return false;
  symbol = static_cast<Symbol>(found - kNames.begin());
  return true;
}

QPainterPath symbolPath(Symbol symbol) {
  QPainterPath path;
  const auto bar = [&](double x, double y, double w, double h) { path.addRect(x, y, w, h); };
  const auto triangle = [&](double x, double y, double tip) {
    path.addPolygon(QPolygonF({{x, -y}, {tip, 0}, {x, y}}));
    path.closeSubpath();
  };
  switch (symbol) {
    case Symbol::Previous: bar(-8, -6, 2.4, 12); triangle(1.2, 6, -5.2); triangle(8, 6, 1.4); break;
    case Symbol::Next: bar(5.6, -6, 2.4, 12); triangle(-1.2, 6, 5.2); triangle(-8, 6, -1.4); break;
    case Symbol::Play: triangle(-5.2, 6.5, 6.2); break;
    case Symbol::Pause: bar(-4, -6.5, 3, 13); bar(1, -6.5, 3, 13); break;
    case Symbol::Stop: bar(-5.4, -5.4, 10.8, 10.8); break;
    case Symbol::Record: path.addEllipse(QPointF(0, 0), 4.7, 4.7); break;
    case Symbol::Rewind: triangle(0, 4.8, -7.6); triangle(7.8, 4.8, .2); break;
    case Symbol::Forward: triangle(0, 4.8, 7.6); triangle(-7.8, 4.8, -.2); break;
  }
  return path;
}

void symbol(QPainter& painter, Symbol which, QPointF centre, double k, const QColor& colour) {
  const QPainterPath path = symbolPath(which);
  for (const bool shadow : {true, false}) {
    painter.save();
    painter.translate(centre.x(), centre.y() + (shadow ? .8 : 0));
    painter.scale(k, k);
    painter.fillPath(path, shadow ? alpha(Qt::black, .6) : colour);
    painter.restore();
  }
}

}  // namespace orvanta
