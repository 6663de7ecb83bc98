// The deck's lettering: by glyph, at any size, engraved or shining.
#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

double capHeight(const forms::Font& font) { return font.family == "LcdD" ? 1.0 : 0.711; }

double pixelsOf(const Art& art, double points) { return points * 96 / 72 * art.k * art.factor; }

struct Line {
  QGlyphRun glyphs;
  double width = 0;
};

/// Shaped and kerned by the face's own tables. A text that it lacks letters for is only measured here.
Line layOutLine(const QRawFont& face, const QString& text, double spacing) {
  const auto known = face.glyphIndexesForString(text);
  if (known.contains(0)) {
    Line line;
    line.glyphs.setGlyphIndexes(known);
    for (const QPointF& advance : face.advancesForGlyphIndexes(known)) line.width += advance.x() + spacing;
    return line;
  }
  QTextLayout layout(text);
  layout.setRawFont(face);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  Line line;
  QList<quint32> indexes;
  QList<QPointF> places;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const auto runPlaces = run.positions();
    const auto runIndexes = run.glyphIndexes();
    for (qsizetype i = 0; i < runIndexes.size(); ++i) {
      indexes.append(runIndexes[i]);
      places.append({runPlaces[i].x() + static_cast<double>(indexes.size() - 1) * spacing, 0});
    }
  }
  line.width = layout.lineAt(0).naturalTextWidth() + static_cast<double>(std::max<qsizetype>(indexes.size() - 1, 0)) * spacing;
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

namespace {

/// The light of one word or digit: a blurred copy of it, kept for each quarter of a pixel that it may stand at.
void glowPiece(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how,
               double strength) {
  const double sigma = std::max(1.2, 1.7 * art.k * art.factor);
  const int margin = static_cast<int>(sigma * 3);
  const QSize size(static_cast<int>(rect.width() * art.factor) + 2 * margin, static_cast<int>(rect.height() * art.factor) + 2 * margin);
  const auto quarters = static_cast<int>(std::lround(rect.left() * art.factor * 4));
  const int left = static_cast<int>(std::floor(quarters / 4.0));
  const double part = quarters / 4.0 - left;
  const std::string key = font.family + (font.bold ? "b " : " ") + std::to_string(font.points) + ' ' + std::to_string(colour.rgb()) + ' ' +
                          std::to_string(size.width()) + 'x' + std::to_string(size.height()) + '+' + std::to_string(quarters & 3) + ' ' +
                          std::to_string(static_cast<int>(how.align)) + (how.bottom ? "b" : "") + (how.wrap ? "w" : "") + text;
  const QImage* picture = art.glows.find(key);
  if (picture == nullptr) {
    QImage fresh(size, QImage::Format_ARGB32_Premultiplied);
    fresh.fill(Qt::transparent);
    {
      QPainter painter(&fresh);
      painter.setRenderHint(QPainter::Antialiasing);
      Art inner{
          painter,    art.control, art.fonts,
          art.cache,  art.glows,   QTransform::fromTranslate(margin + part - rect.left() * art.factor, margin - rect.top() * art.factor),
          art.factor, art.k,       art.w,
          art.h,      art.windowX, art.windowY};
      letters(inner, rect, font, text, colour, how);
    }
    blur(fresh, sigma);
    picture = &art.glows.keep(key, std::move(fresh));
  }
  art.painter.save();
  art.painter.setWorldTransform(art.plain);
  art.painter.setOpacity(strength);
  art.painter.drawImage(QPointF(left - margin, rect.top() * art.factor - margin), *picture);
  art.painter.restore();
}

}  // namespace

void glow(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how,
          double strength) {
  if (text.empty()) return;
  if (text.find_first_not_of("0123456789:-%") != std::string::npos) {
    glowPiece(art, rect, font, text, colour, how, strength);
    return;
  }
  // Digit by digit: as a whole the time would need a new picture each second.
  const QRawFont& face = art.fonts.face(font, pixelsOf(art, font.points));
  const auto advances = face.advancesForGlyphIndexes(face.glyphIndexesForString(QString::fromStdString(text)));
  double width = -how.spacing;
  for (const QPointF& advance : advances) width += advance.x() / art.factor + how.spacing;
  double x = rect.left();
  if (how.align == forms::Align::Center) x += (rect.width() - width) / 2;
  if (how.align == forms::Align::Right) x += rect.width() - width;
  Lettering one = how;
  one.align = forms::Align::Left;
  for (qsizetype i = 0; i < advances.size(); ++i) {
    const double wide = advances[i].x() / art.factor;
    glowPiece(art, QRectF(x, rect.top(), wide, rect.height()), font, text.substr(static_cast<size_t>(i), 1), colour, one, strength);
    x += wide + how.spacing;
  }
}

void engraved(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how) {
  Lettering below = how;
  below.dy += .7;
  letters(art, rect, font, text, alpha(Qt::black, .7), below);
  letters(art, rect, font, text, colour, how);
}

}  // namespace orvanta
