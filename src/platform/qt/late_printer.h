// The printer whose library is loaded when first asked for: most starts of the deck print nothing.
#pragma once

#include <memory>

#include "platform/ports/core_gate.h"
#include "platform/ports/printer.h"

namespace orvanta {

class LatePrinter : public Printer {
 public:
  explicit LatePrinter(CoreGate& gate) : gate_(gate) {}

  /// Where the library is missing a box says so, and nothing is printed.
  bool ask() override;
  void setFont(const std::string& family, double points, bool bold) override { printer_->setFont(family, points, bold); }
  void print(int column, const std::string& text) override { printer_->print(column, text); }
  void newLine() override { printer_->newLine(); }
  void moveTo(int top) override { printer_->moveTo(top); }
  void endDocument() override { printer_->endDocument(); }

 private:
  CoreGate& gate_;
  std::unique_ptr<Printer> printer_;
};

}  // namespace orvanta
