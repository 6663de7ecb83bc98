// The CD Data window's contents on paper.
#pragma once

#include "state/shared_state.h"
#include "windows/acdtabs.h"

namespace orvanta {

class Printer;

class DiscPrint {
 public:
  DiscPrint(Printer& printer, const acdtabs& form) : printer_(printer), form_(form) {}
  /// Asks for a printer and prints the window's disc; a cancel is silent.
  void run(const DiscState& disc);

 private:
  void line(int column, const std::string& text);
  void pair(int first, const std::string& caption, int second, const std::string& value);
  void spacer();
  void head(const DiscState& disc);
  void facts(const DiscState& disc);
  void notes();
  void tracks(const DiscState& disc);
  void lyrics();

  Printer& printer_;
  const acdtabs& form_;
};

}  // namespace orvanta
