// The fonts of the deck, drawn by glyph at any size: our embedded ones under their alias names, all
// others through the system.
#pragma once

#include <QGlyphRun>
#include <QRawFont>
#include <QString>
#include <map>
#include <string>
#include <tuple>

#include "platform/forms/control.h"

namespace orvanta {

struct GlyphLine {
  QGlyphRun glyphs;
  double width = 0;  ///< device pixels
};

class Fonts {
 public:
  /// Reads the system's font set-up on a thread of its own, while the program starts: even an embedded face asks it
  /// how the user wants text smoothed.
  static void warmUp();

  /// A face at a size in device pixels.
  const QRawFont& face(const forms::Font& font, double pixels);

  /// True for families that answer by that name, aliases included.
  static bool has(const std::string& family);

  /// The embedded file behind a family; "" for one of the system's.
  static QString embedded(const std::string& family, bool bold);

  /// The line that was shaped last.
  struct Last {
    QRawFont face;
    QString text;
    double spacing = 0;
    GlyphLine line;
  } last;

 private:
  const QRawFont& loaded(const QString& file);

  std::map<QString, QRawFont> files_;  ///< at any size; the other sizes are drawn from them
  std::map<std::tuple<std::string, bool, bool, int>, QRawFont> faces_;
};

}  // namespace orvanta
