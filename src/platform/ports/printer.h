// A printer that takes text in print columns.
#pragma once

#include <string>

namespace orvanta {

class Printer {
 public:
  virtual ~Printer() = default;
  /// The desktop's print dialog; false when cancelled, and nothing is printed.
  virtual bool ask() = 0;
  virtual void setFont(const std::string& family, double points, bool bold) = 0;
  /// Text from print column `column` (1 is the left margin) on the present line.
  virtual void print(int column, const std::string& text) = 0;
  virtual void newLine() = 0;
  /// The present line's place: twips below the top of the printed area.
  virtual void moveTo(int top) = 0;
  /// Sends it off. What goes wrong here is the printer's to tell.
  virtual void endDocument() = 0;
};

}  // namespace orvanta
