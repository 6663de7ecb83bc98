// Print columns are a letter's mean width each; a text that has run past its neighbour's column pushes it on.
#include "platform/qt/qt_printer.h"

#include <QFontMetricsF>
#include <QPrintDialog>
#include <algorithm>

#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

bool QtPrinter::ask() {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setCopyCount(1);
  QPrintDialog dialog(printer.get());
  const bool accepted = dialog.exec() == QDialog::Accepted;
  gate_.leaveIfEnded();
  return accepted && begin(std::move(printer));
}

bool QtPrinter::begin(const QString& pdfPath) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(pdfPath);
  return begin(std::move(printer));
}

bool QtPrinter::begin(std::unique_ptr<QPrinter> printer) {
  printer_ = std::move(printer);
  if (!painter_.begin(printer_.get())) return false;
  x_ = 0;
  y_ = 0;
  setFont({}, 9, false);
  return true;
}

void QtPrinter::setFont(const std::string& family, double points, bool bold) {
  QFont font(toQt(family));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(points);
  font.setBold(bold);
  painter_.setFont(font);
}

double QtPrinter::columnWidth() const { return QFontMetricsF(painter_.font(), printer_.get()).averageCharWidth(); }

void QtPrinter::print(int column, const std::string& text) {
  if (!painter_.isActive()) return;
  const QFontMetricsF metrics(painter_.font(), printer_.get());
  if (y_ + metrics.height() > painter_.viewport().height()) {
    printer_->newPage();
    y_ = 0;
  }
  x_ = std::max(x_, (column - 1) * columnWidth());
  const QString words = toQt(text);
  painter_.drawText(QPointF(x_, y_ + metrics.ascent()), words);
  x_ += metrics.horizontalAdvance(words) + columnWidth();
}

void QtPrinter::newLine() {
  if (!painter_.isActive()) return;
  x_ = 0;
  y_ += QFontMetricsF(painter_.font(), printer_.get()).lineSpacing();
}

void QtPrinter::moveTo(int top) {
  x_ = 0;
  if (printer_) y_ = top * printer_->resolution() / kTwipsPerInch;
}

void QtPrinter::endDocument() {
  painter_.end();
  printer_.reset();
}

}  // namespace orvanta

/// What LatePrinter looks for.
extern "C" orvanta::Printer* orvantaPrinter(orvanta::CoreGate& gate) { return new orvanta::QtPrinter(gate); }
