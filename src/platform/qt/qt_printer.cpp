// Print columns are a letter's mean width each; a text that has run past its neighbour's column pushes it on.
#include "platform/qt/qt_printer.h"

#include <QFontMetricsF>
#include <QPrintDialog>
#include <algorithm>

#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kNarrowest = 8;  ///< letters between the last column and the paper's edge, so that a time has room on any paper

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

/// A text that would pass the paper's edge goes on below, in its own column.
void QtPrinter::print(int column, const std::string& text) {
  if (!painter_.isActive()) return;
  const double left = std::min((column - 1) * columnWidth(), painter_.viewport().width() - kNarrowest * columnWidth());
  x_ = std::max(x_, left);
  QString rest = toQt(text);
  for (int fitting = lettersThatFit(rest); fitting < rest.size(); fitting = lettersThatFit(rest)) {
    // A text that its neighbour has pushed may have room where it belongs.
    const qsizetype blank = rest.lastIndexOf(QLatin1Char(' '), fitting);
    const qsizetype end = blank > 0 ? blank : x_ > left ? 0 : std::max(fitting, 1);
    printPiece(rest.left(end));
    rest.remove(0, blank > 0 ? end + 1 : end);
    newLine();
    x_ = left;
  }
  printPiece(rest);
}

/// How many letters of the words have room from here to the paper's edge.
int QtPrinter::lettersThatFit(const QString& words) const {
  const QFontMetricsF metrics(painter_.font(), printer_.get());
  const double room = painter_.viewport().width() - x_;
  int least = 0;
  for (int most = static_cast<int>(words.size()); least < most;) {
    const int middle = (least + most + 1) / 2;
    const bool fits = metrics.horizontalAdvance(words, middle) <= room;
    (fits ? least : most) = fits ? middle : middle - 1;
  }
  return least;
}

void QtPrinter::printPiece(const QString& piece) {
  const QFontMetricsF metrics(painter_.font(), printer_.get());
  if (y_ + metrics.height() > painter_.viewport().height()) {
    printer_->newPage();
    y_ = 0;
  }
  painter_.drawText(QPointF(x_, y_ + metrics.ascent()), piece);
  x_ += metrics.horizontalAdvance(piece) + columnWidth();
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
