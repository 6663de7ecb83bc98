#include "platform/qt/late_printer.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QMessageBox>

namespace orvanta {

bool LatePrinter::ask() {
  if (!printer_) {
    QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/orvanta/orvanta_print.so"));
    const auto make = reinterpret_cast<Printer* (*)(CoreGate&)>(library.resolve("orvantaPrinter"));
    if (make == nullptr) {
      QMessageBox::warning(nullptr, QStringLiteral("Orvanta"), library.errorString());
      gate_.leaveIfEnded();
      return false;
    }
    printer_.reset(make(gate_));
  }
  return printer_->ask();
}

}  // namespace orvanta
