// A text set in lines, for the deck's lettering.
#pragma once

#include <QFont>
#include <QRawFont>
#include <QStringList>

#include "platform/qt/fonts.h"

class QPainter;

namespace orvanta {

/// All lines are in one face: the label's own, or the system's where that lacks a letter of the text.
class TextLines {
 public:
  /// `pixels` to an em, `spacing` device pixels more between two letters.
  TextLines(Fonts& fonts, const forms::Font& font, double pixels, double spacing, const QString& text);

  /// As many lines of this width as are needed, `most` at most; what does not fit ends in dots.
  void wrap(double width, int most);

  int count() const { return static_cast<int>(lines_.size()); }
  double width(int line) const { return widthOf(lines_[line]); }
  /// From `x` along a base line.
  void draw(QPainter& painter, int line, QPointF place) const;

 private:
  double widthOf(const QString& text) const;
  qsizetype fitting(const QString& text, double width, const QString& end) const;
  const GlyphLine& shaped(const QString& text) const;

  Fonts& fonts_;
  QRawFont face_;
  QFont system_;
  bool own_ = true;  ///< the label's face has all the letters
  bool underlined_;
  double pixels_;
  double spacing_;
  QString dots_ = QStringLiteral("\u2026");
  QStringList lines_;
};

}  // namespace orvanta
