// Paper, or a PDF file, through the desktop's print dialog.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/ports/core_gate.h"
#include "platform/ports/printer.h"

namespace orvanta {

class QtPrinter : public Printer {
 public:
  explicit QtPrinter(CoreGate& gate) : gate_(gate) {}

  bool ask() override;
  void setFont(const std::string& family, double points, bool bold) override;
  void print(int column, const std::string& text) override;
  void newLine() override;
  void moveTo(int top) override;
  void endDocument() override;

  /// Into a PDF file, without asking.
  bool begin(const QString& pdfPath);

 private:
  bool begin(std::unique_ptr<QPrinter> printer);
  double columnWidth() const;
  void printPiece(const QString& piece);
  int lettersThatFit(const QString& words) const;

  CoreGate& gate_;
  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;
  double x_ = 0;
  double y_ = 0;
};

}  // namespace orvanta
