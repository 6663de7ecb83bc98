// The deck's lettering: by glyph, at any size, engraved or shining.
#include <algorithm>
#include <cmath>

#include "platform/qt/art_tools.h"
#include "platform/qt/text_lines.h"

namespace orvanta {

namespace {

double capHeight(const forms::Font& font) { return font.family == forms::kLcdFont ? 1.0 : 0.711; }

double pixelsOf(const Art& art, double points) { return points * 96 / 72 * art.k * art.factor; }

/// Lines of a wrapped text from the top of its place, in pixels of the face.
constexpr double kFirstLine = .93;
constexpr double kNextLine = 1.17;
constexpr double kTightLine = 1.02;  ///< the least, where another line just fits
constexpr double kBelow = .2;        ///< what reaches under the last base line

}  // namespace

void letters(Art& art, const std::string& text, const QColor& colour, const Lettering& how, double points) {
  forms::Font font = art.control.font;
  if (points > 0) font.points = points;
  letters(art, QRectF(0, 0, art.w, art.h), font, text, colour, how);
}

void letters(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how) {
  if (text.empty()) return;
  const double f = art.factor;
  const double width = rect.width() * f;
  const double height = rect.height() * f;
  double pixels = pixelsOf(art, font.points);
  // A face too large for its place is set as large as it can be: half a line is none.
  if (how.wrap) pixels = std::min(pixels, height / (kFirstLine + kBelow));
  TextLines lines(art.fonts, font, pixels, how.spacing * f, QString::fromStdString(text));
  // To the hundredth, so that one line that just fits is not lost to a rounding.
  const double spare = height / pixels - kFirstLine - kBelow + .01;
  if (how.wrap) lines.wrap(width, 1 + static_cast<int>(spare / kTightLine));
  const double step = lines.count() > 1 ? std::min(kNextLine, spare / (lines.count() - 1)) : 0;
  QPainter& painter = art.painter;
  painter.save();
  painter.setWorldTransform(art.plain);
  painter.setPen(colour);
  for (int i = 0; i < lines.count(); ++i) {
    double x = rect.left() * f;
    if (how.align == forms::Align::Center) x += (width - lines.width(i)) / 2;
    if (how.align == forms::Align::Right) x += width - lines.width(i);
    double baseLine = rect.top() * f + how.dy * f;
    if (how.wrap) {
      baseLine += pixels * (kFirstLine + step * i);
    } else if (how.bottom) {
      baseLine += (rect.height() - 1.6 * art.k) * f;
    } else {
      baseLine += (height + pixels * capHeight(font)) / 2;
    }
    lines.draw(painter, i, {x, baseLine});
  }
  painter.restore();
}

namespace {

/// The light of one word or digit: a blurred copy of it, kept for each quarter of a pixel that it may stand at.
void glowPiece(Art& art, const QRectF& rect, const forms::Font& font, const std::string& text, const QColor& colour, const Lettering& how,
               double strength) {
  constexpr double kTiny = 6;  // points
  const double sigma = std::max(1.2, (font.points < kTiny ? 1.2 : 1.7) * art.k * art.factor);
  const int margin = static_cast<int>(sigma * 3);
  const QSize size(static_cast<int>(rect.width() * art.factor) + 2 * margin, static_cast<int>(rect.height() * art.factor) + 2 * margin);
  const auto quarters = static_cast<int>(std::lround(rect.left() * art.factor * 4));
  const int left = static_cast<int>(std::floor(quarters / 4.0));
  const double part = quarters / 4.0 - left;
  const std::string key = font.family + (font.bold ? "b" : "") + (font.italic ? "i" : "") + (font.underline ? "u" : "") + ' ' +
                          std::to_string(font.points) + ' ' + std::to_string(colour.rgb()) + ' ' + std::to_string(size.width()) + 'x' +
                          std::to_string(size.height()) + '+' + std::to_string(quarters & 3) + ' ' +
                          std::to_string(static_cast<int>(how.align)) + (how.bottom ? "b" : "") + (how.wrap ? "w" : "") + text;
  const QImage* picture = art.glows.find(key);
  if (picture == nullptr) {
    QImage mask(size, QImage::Format_Alpha8);
    mask.fill(0);
    {
      QPainter painter(&mask);
      painter.setRenderHint(QPainter::Antialiasing);
      Art inner{
          painter,    art.control, art.fonts,
          art.cache,  art.glows,   QTransform::fromTranslate(margin + part - rect.left() * art.factor, margin - rect.top() * art.factor),
          art.factor, art.k,       art.w,
          art.h,      art.windowX, art.windowY};
      letters(inner, rect, font, text, colour, how);
    }
    blur(mask, sigma);
    QImage light(size, QImage::Format_ARGB32_Premultiplied);
    light.fill(colour);
    {
      QPainter painter(&light);
      painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
      painter.drawImage(0, 0, mask);
    }
    picture = &art.glows.keep(key, std::move(light));
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
  if (how.wrap || text.find_first_not_of("0123456789:-%") != std::string::npos) {
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
  // Dark letters on a light ground catch the light on their lower edge.
  letters(art, rect, font, text, brightness(colour) < .35 ? alpha(Qt::white, .35) : alpha(Qt::black, .7), below);
  letters(art, rect, font, text, colour, how);
}

}  // namespace orvanta
