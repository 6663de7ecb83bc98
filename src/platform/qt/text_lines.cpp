// Shaped and kerned by the face's own tables; broken at blanks, and within a word that is wider than its line.
#include "platform/qt/text_lines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace orvanta {

TextLines::TextLines(Fonts& fonts, const forms::Font& font, double pixels, double spacing, const QString& text)
    : fonts_(fonts),
      face_(fonts.face(font, pixels)),
      system_(QStringLiteral("sans-serif")),
      underlined_(font.underline),
      pixels_(pixels),
      spacing_(spacing),
      lines_{text} {
  // The display's digits have no fall-back: what they lack is not shown.
  own_ = font.family == forms::kLcdFont || !face_.glyphIndexesForString(text).contains(0);
  if (own_ && face_.glyphIndexesForString(dots_).contains(0)) dots_ = QStringLiteral("...");
  system_.setPixelSize(std::max(1, static_cast<int>(pixels)));
  system_.setBold(font.bold);
  system_.setItalic(font.italic);
}

/// The last line stays: it is asked for its width before it is drawn, and an engraved text is drawn twice.
const GlyphLine& TextLines::shaped(const QString& text) const {
  auto& last = fonts_.last;
  if (last.text == text && last.spacing == spacing_ && last.face == face_) return last.line;
  QTextLayout layout(text);
  layout.setRawFont(face_);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  QList<quint32> indexes;
  QList<QPointF> places;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const auto runPlaces = run.positions();
    const auto runIndexes = run.glyphIndexes();
    for (qsizetype i = 0; i < runIndexes.size(); ++i) {
      indexes.append(runIndexes[i]);
      places.append({runPlaces[i].x() + static_cast<double>(indexes.size() - 1) * spacing_, 0});
    }
  }
  const double width = layout.lineAt(0).naturalTextWidth() + static_cast<double>(std::max<qsizetype>(indexes.size() - 1, 0)) * spacing_;
  QGlyphRun glyphs;
  glyphs.setRawFont(face_);
  glyphs.setGlyphIndexes(indexes);
  glyphs.setPositions(places);
  last = {face_, text, spacing_, {glyphs, width}};
  return last.line;
}

double TextLines::widthOf(const QString& text) const {
  if (!own_) return QFontMetricsF(system_).horizontalAdvance(text);
  return shaped(text).width;
}

/// The longest start of a text that fits with `end` behind it, halved towards; one letter at the least.
qsizetype TextLines::fitting(const QString& text, double width, const QString& end) const {
  qsizetype kept = 0;
  for (qsizetype step = text.size(); step > 0; step /= 2) {
    while (kept + step <= text.size() && widthOf(text.left(kept + step) + end) <= width) kept += step;
  }
  // A pair of surrogates is one letter.
  if (kept > 0 && kept < text.size() && text[kept].isLowSurrogate()) --kept;
  return std::clamp<qsizetype>(kept, 1, std::max<qsizetype>(text.size(), 1));
}

void TextLines::wrap(double width, int most) {
  QString rest = lines_.join(QLatin1Char(' '));
  lines_.clear();
  while (count() + 1 < most && widthOf(rest) > width) {
    qsizetype cut = fitting(rest, width, {});
    const qsizetype blank = rest.lastIndexOf(QLatin1Char(' '), cut);
    if (blank > 0) cut = blank;
    lines_.append(rest.left(cut));
    rest = rest.mid(rest.size() > cut && rest[cut] == QLatin1Char(' ') ? cut + 1 : cut);
  }
  if (widthOf(rest) > width) rest = rest.left(fitting(rest, width, dots_)) + dots_;
  lines_.append(rest);
}

void TextLines::draw(QPainter& painter, int line, QPointF place) const {
  const QString& text = lines_[line];
  if (own_) {
    painter.drawGlyphRun(place, shaped(text).glyphs);
  } else {
    painter.setFont(system_);
    painter.drawText(place, text);
  }
  if (!underlined_ || text.isEmpty()) return;
  const double thick = std::max(1.0, pixels_ / 14);
  painter.fillRect(QRectF(place.x(), place.y() + pixels_ * .1, widthOf(text), thick), painter.pen().color());
}

}  // namespace orvanta
