// The deck's materials and lettering.
#include "platform/qt/art_tools.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace orvanta {

namespace {

/// Gradient noise over a lattice: one octave of the grain.
class Noise {
 public:
  explicit Noise(uint32_t seed) {
    for (auto& slope : slopes_) {
      seed = seed * 1664525U + 1013904223U;
      const double angle = (seed >> 8U) * (2 * M_PI / 16777216.0);
      slope = {static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle))};
    }
  }

  /// Adds `strength` times the noise of one row to `out`; x runs in steps of `step`.
  void addRow(float y, float step, float strength, std::vector<float>& out) const {
    const float floorY = std::floor(y);
    const float dy = y - floorY;
    const float blendY = fade(dy);
    const int row = static_cast<int>(floorY);
    int cell = -1;
    Slope a{}, b{}, c{}, d{};
    for (size_t i = 0; i < out.size(); ++i) {
      const float x = static_cast<float>(i) * step;
      if (static_cast<int>(x) != cell) {
        cell = static_cast<int>(x);
        a = at(cell, row);
        b = at(cell + 1, row);
        c = at(cell, row + 1);
        d = at(cell + 1, row + 1);
      }
      const float dx = x - static_cast<float>(cell);
      const float blendX = fade(dx);
      const float top = std::lerp(a.x * dx + a.y * dy, b.x * (dx - 1) + b.y * dy, blendX);
      const float bottom = std::lerp(c.x * dx + c.y * (dy - 1), d.x * (dx - 1) + d.y * (dy - 1), blendX);
      out[i] += strength * std::lerp(top, bottom, blendY);
    }
  }

 private:
  struct Slope {
    float x;
    float y;
  };
  static float fade(float t) { return t * t * (3 - 2 * t); }
  const Slope& at(int x, int y) const {
    const uint32_t mixed = (static_cast<uint32_t>(x) * 0x9E3779B1U) ^ (static_cast<uint32_t>(y) * 0x85EBCA77U);
    return slopes_[(mixed ^ mixed >> 15U) & 255U];
  }
  std::array<Slope, 256> slopes_;
};

/// Streaks of light and dark over the whole window, made once for each scale: brushed along x.
const QImage& grainTile(double factor) {
  static QImage tile;
  static double made = 0;
  if (made == factor) return tile;
  made = factor;
  constexpr int kWide = 800;  // design pixels; the window is no larger
  constexpr int kHigh = 300;
  const int wide = static_cast<int>(kWide * factor);
  const int high = static_cast<int>(kHigh * factor);
  const Noise light(7);
  const Noise dark(21);
  std::vector<float> white(static_cast<size_t>(wide));
  std::vector<float> black(static_cast<size_t>(wide));
  tile = QImage(wide, high, QImage::Format_ARGB32_Premultiplied);
  const auto scale = static_cast<float>(1 / factor);
  for (int y = 0; y < high; ++y) {
    std::fill(white.begin(), white.end(), 0.F);
    std::fill(black.begin(), black.end(), 0.F);
    const float at = static_cast<float>(y) * scale;
    light.addRow(at * 1.3F, .003F * scale, 1, white);
    light.addRow(at * 2.6F, .006F * scale, .5F, white);
    dark.addRow(at * 1.1F, .004F * scale, 1, black);
    dark.addRow(at * 2.2F, .008F * scale, .5F, black);
    auto* line = reinterpret_cast<QRgb*>(tile.scanLine(y));
    for (size_t x = 0; x < white.size(); ++x) {
      const float bright = std::clamp(.45F * (white[x] + 1) - .40F, 0.F, 1.F);
      const float dim = std::clamp(.55F * (black[x] + 1) - .46F, 0.F, 1.F);
      const int level = static_cast<int>(bright * (1 - dim) * 255);
      const int opacity = static_cast<int>((bright + dim - bright * dim) * 255);
      line[x] = qRgba(level, level, level, std::max(level, opacity));
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

/// Two lines at the most; what does not fit the second ends in dots.
QStringList wrapped(const QRawFont& face, const QString& text, double width) {
  const auto fits = [&](const QString& line) { return layOutLine(face, line, 0).width <= width; };
  const QStringList words = text.split(QLatin1Char(' '));
  QString first;
  qsizetype word = 0;
  for (; word < words.size(); ++word) {
    const QString longer = word == 0 ? words[0] : first + QLatin1Char(' ') + words[word];
    if (word > 0 && !fits(longer)) break;
    first = longer;
  }
  if (word == words.size()) return {first};
  QString second = words.mid(word).join(QLatin1Char(' '));
  if (fits(second)) return {first, second};
  // Halved towards the longest start that fits with its dots.
  qsizetype kept = 0;
  for (qsizetype step = second.size(); step > 0; step /= 2) {
    while (kept + step <= second.size() && fits(second.left(kept + step) + QChar(0x2026))) kept += step;
  }
  return {first, second.left(kept) + QChar(0x2026)};
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

void well(QPainter& painter, const QRectF& rect, double radius, const QColor& ground, double lip) {
  const QRectF outer = rect.adjusted(-lip, -lip, lip, lip);
  fill(painter, outer, blend(outer.topLeft(), QPointF(outer.left() + outer.width() * .25, outer.bottom()), {{0, alpha(Qt::black, .75)}, {.5, alpha(Qt::black, .35)}, {1, alpha(Qt::white, .3)}}), radius + lip);
  const double half = lip * .45;
  const QRectF inner = rect.adjusted(-half, -half, half, half);
  fill(painter, inner, blend(inner.topLeft(), inner.bottomLeft(), {{0, QColor(5, 6, 7)}, {1, QColor(27, 30, 33)}}), radius + half);
  fill(painter, rect, ground, radius);
}

void metal(Art& art, const QRectF& rect, const QColor& base, double radius, double grain) {
  QPainter& painter = art.painter;
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(base, Qt::white, .16)}, {.1, mix(base, Qt::white, .08)}, {.5, base}, {1, mix(base, Qt::black, .34)}}), radius);
  QBrush streaks(grainTile(art.factor));
  streaks.setTransform(QTransform::fromTranslate(-art.windowX, -art.windowY).scale(1 / art.factor, 1 / art.factor));
  painter.setOpacity(grain);
  fill(painter, rect, streaks, radius);
  painter.setOpacity(1);
  fill(painter, rect, blend(rect.topLeft(), QPointF(rect.right(), rect.center().y()), {{0, alpha(Qt::white, .1)}, {.28, alpha(Qt::white, .015)}, {.5, alpha(Qt::white, .05)}, {.62, alpha(Qt::white, 0)}, {1, alpha(Qt::black, .16)}}), radius);
}

void aluminium(QPainter& painter, const QRectF& rect, double radius, bool pressed) {
  static const std::array<QColor, 5> kRest = {QColor(0xF4F5F6), QColor(0xDADDE0), QColor(0xBEC3C8), QColor(0x9BA1A8), QColor(0x868C94)};
  static const std::array<QColor, 5> kPressed = {QColor(0xA9AEB4), QColor(0xB4B9BE), QColor(0xB6BBC0), QColor(0xA6ACB2), QColor(0x9AA0A7)};
  const auto& a = pressed ? kPressed : kRest;
  if (!pressed) fill(painter, rect.translated(.5, 1.3), alpha(Qt::black, .55), radius);
  fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, a[0]}, {.12, a[1]}, {.55, a[2]}, {.9, a[3]}, {1, a[4]}}), radius);
  fill(painter, rect, blend(rect.topLeft(), rect.topRight(), {{0, alpha(Qt::white, .35)}, {.35, alpha(Qt::white, .05)}, {.6, alpha(Qt::white, .16)}, {1, alpha(Qt::black, .08)}}), radius);
  edge(painter, rect, radius, .95, .8, .7);
}

void graphite(QPainter& painter, const QRectF& rect, double radius, bool pressed) {
  const auto face = pressed ? blend(rect.topLeft(), rect.bottomLeft(), {{0, QColor(0x26292D)}, {.5, QColor(0x272A2F)}, {1, QColor(0x2E3237)}})
                            : blend(rect.topLeft(), rect.bottomLeft(), {{0, QColor(0x565B62)}, {.08, QColor(0x444950)}, {.5, QColor(0x2D3136)}, {.93, QColor(0x1C1F23)}, {1, QColor(0x121417)}});
  fill(painter, rect, face, radius);
  edge(painter, rect, radius, pressed ? .15 : .55, .9, .8);
}

void soft(QPainter& painter, const QRectF& rect, double radius, const QColor& colour, double spread) {
  // Rings from outside to inside, each a little stronger: near enough to a blur, and no picture to keep.
  constexpr int kRings = 6;
  const double part = 1 - std::pow(1 - static_cast<double>(colour.alphaF()), 1.0 / kRings);
  for (int ring = kRings; ring > 0; --ring) {
    const double out = spread * (2.0 * ring / kRings - 1);
    fill(painter, rect.adjusted(-out, -out, out, out), alpha(colour, part), std::max(radius + out, .1));
  }
}

/// Three box filters in a row are a bell curve to the eye.
void blur(QImage& picture, double sigma) {
  const int width = std::max(1, static_cast<int>(std::lround(sigma * 1.88)) | 1);
  const int reach = width / 2;
  std::vector<std::array<int, 4>> line(static_cast<size_t>(std::max(picture.width(), picture.height())));
  const auto at = [&](int i) -> std::array<int, 4>& { return line[static_cast<size_t>(i)]; };
  const auto pass = [&](uchar* first, qsizetype step, int count) {
    for (int round = 0; round < 3; ++round) {
      for (int i = 0; i < count; ++i) {
        for (size_t c = 0; c < 4; ++c) at(i)[c] = first[i * step + static_cast<qsizetype>(c)];
      }
      std::array<int, 4> sum{};
      for (int i = -reach; i < count; ++i) {
        for (size_t c = 0; c < 4; ++c) {
          if (i + reach < count) sum[c] += at(i + reach)[c];
          if (i - reach - 1 >= 0) sum[c] -= at(i - reach - 1)[c];
          if (i >= 0) first[i * step + static_cast<qsizetype>(c)] = static_cast<uchar>(sum[c] / width);
        }
      }
    }
  };
  for (int y = 0; y < picture.height(); ++y) pass(picture.scanLine(y), 4, picture.width());
  for (int x = 0; x < picture.width(); ++x) pass(picture.bits() + qsizetype{x} * 4, picture.bytesPerLine(), picture.height());
}

bool ownPicture(Art& art) {
  const auto* image = dynamic_cast<const forms::Image*>(&art.control);
  if (image == nullptr || image->picture.get().empty()) return false;
  const std::string key = "file " + image->picture.get();
  const QImage* picture = art.cache.find(key);
  if (picture == nullptr) picture = &art.cache.keep(key, QImage(QString::fromStdString(image->picture)));
  if (picture->isNull()) return false;
  art.painter.setRenderHint(QPainter::SmoothPixmapTransform);
  art.painter.drawImage(QRectF(0, 0, art.w, art.h), *picture);
  return true;
}

void lamp(QPainter& painter, const QRectF& rect, const QColor& colour, bool lit, double radius) {
  fill(painter, rect.adjusted(-.6, -.6, .6, .6), QColor(5, 6, 7), radius + .6);
  if (lit) {
    soft(painter, rect.adjusted(-1, -1, 1, 1), radius + 1, alpha(colour, .35), 2.6);
    fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(colour, Qt::white, .55)}, {.5, colour}, {1, mix(colour, Qt::black, .25)}}), radius);
  } else {
    fill(painter, rect, blend(rect.topLeft(), rect.bottomLeft(), {{0, mix(colour, Qt::black, .86)}, {1, mix(colour, Qt::black, .72)}}), radius);
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

void glow(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how, double strength) {
  if (text.empty()) return;
  const double sigma = std::max(1.2, 1.7 * art.k * art.factor);
  const int margin = static_cast<int>(sigma * 3);
  const QSize size(static_cast<int>(rect.width() * art.factor) + 2 * margin, static_cast<int>(rect.height() * art.factor) + 2 * margin);
  const std::string key = "glow " + font.family + (font.bold ? "b " : " ") + std::to_string(font.points) + ' ' + std::to_string(colour.rgb()) + ' ' +
                          std::to_string(size.width()) + 'x' + std::to_string(size.height()) + ' ' + std::to_string(static_cast<int>(how.align)) +
                          (how.bottom ? "b" : "") + (how.wrap ? "w" : "") + text;
  const QImage* picture = art.cache.find(key);
  if (picture == nullptr) {
    QImage fresh(size, QImage::Format_ARGB32_Premultiplied);
    fresh.fill(Qt::transparent);
    {
      QPainter painter(&fresh);
      painter.setRenderHint(QPainter::Antialiasing);
      Art inner{painter, art.control, art.fonts, art.cache, QTransform::fromTranslate(margin - rect.left() * art.factor, margin - rect.top() * art.factor),
                art.factor, art.k, art.w, art.h, art.windowX, art.windowY};
      letters(inner, rect, font, text, colour, how);
    }
    blur(fresh, sigma);
    picture = &art.cache.keep(key, std::move(fresh));
  }
  art.painter.save();
  art.painter.setWorldTransform(art.plain);
  art.painter.setOpacity(strength);
  art.painter.drawImage(QPointF(rect.left() * art.factor - margin, rect.top() * art.factor - margin), *picture);
  art.painter.restore();
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

void sign(QPainter& painter, const QPainterPath& path, QPointF centre, double k, const SignPen& pen) {
  for (const bool copy : {true, false}) {
    const QColor& colour = copy ? pen.below : pen.colour;
    if (colour.alpha() == 0) continue;
    painter.save();
    painter.translate(centre.x(), centre.y() + (copy ? pen.drop : 0));
    painter.scale(k, k);
    if (pen.width > 0) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(colour, pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPath(path);
    } else {
      painter.fillPath(path, colour);
    }
    painter.restore();
  }
}

void ejectSign(QPainter& painter, QPointF centre, double k) {
  QPainterPath path;
  path.addPolygon(QPolygonF({{0, -4}, {5, 1.4}, {-5, 1.4}}));
  path.closeSubpath();
  path.addRect(-5, 2.8, 10, 1.7);
  sign(painter, path, centre, k, {0, QColor(0xC8, 0xCD, 0xD2), alpha(Qt::black, .7), .7});
}

void symbol(QPainter& painter, Symbol which, QPointF centre, double k, const QColor& colour) {
  const QPainterPath path = symbolPath(which);
  sign(painter, path, centre, k, {0, colour, alpha(Qt::black, .6), .8});
  sign(painter, path, centre, k, {.8, colour});
}

void litSymbol(Art& art, Symbol which, QPointF centre, double k, const QColor& colour) {
  QPainter& painter = art.painter;
  painter.save();
  painter.translate(centre);
  painter.scale(2 * k, k);
  QRadialGradient pool(QPointF(0, 0), 12);
  pool.setColorAt(0, alpha(colour, .42));
  pool.setColorAt(.5, alpha(colour, .14));
  pool.setColorAt(1, alpha(colour, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(pool);
  painter.drawEllipse(QPointF(0, 0), 12, 12);
  painter.restore();
  const QPainterPath path = symbolPath(which);
  // A halo: wide faint strokes under the bright face.
  for (const double width : {5.2, 3.9, 2.6, 1.3}) sign(painter, path, centre, k, {width, alpha(colour, .17)});
  const QColor face = mix(colour, Qt::white, .35);
  sign(painter, path, centre, k, {0, face});
  sign(painter, path, centre, k, {.8, colour});
}

}  // namespace orvanta
