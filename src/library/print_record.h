// The CD Data window's contents on paper.
#pragma once

#include "state/shared_state.h"
#include "windows/acdtabs.h"

namespace orvanta {

class Printer;
struct Ports;

class RecordPrint {
 public:
  RecordPrint(Ports& ports, const acdtabs& form, SharedState& state);
  /// Asks for a printer and prints; a cancel is silent.
  void run();

 private:
  void line(int column, const std::string& text);
  void pair(int first, const std::string& caption, int second, const std::string& value);
  void spacer();
  void head();
  void facts();
  void notes();
  void tracks();
  void lyrics();

  Printer& printer_;
  const acdtabs& form_;
  SharedState& state_;
};

}  // namespace orvanta
