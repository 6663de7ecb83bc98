// The fonts of the deck, drawn by glyph at any size: our embedded ones under their alias names, all
// others through the system.
#pragma once

#include <QRawFont>
#include <QString>
#include <map>
#include <string>
#include <tuple>

#include "platform/forms/control.h"

namespace orvanta {

class Fonts {
 public:
  /// A face at a size in device pixels.
  const QRawFont& face(const forms::Font& font, double pixels);

  /// True for families that answer by that name, aliases included.
  static bool has(const std::string& family);

  /// The embedded file behind a family; "" for one of the system's.
  static QString embedded(const std::string& family, bool bold);

 private:
  std::map<std::tuple<std::string, bool, bool, int>, QRawFont> faces_;
};

}  // namespace orvanta
