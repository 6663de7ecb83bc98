// Which view serves a form.
#include "platform/qt/qt_desktop.h"

#include "platform/qt/data_window.h"
#include "platform/qt/form_view.h"

namespace orvanta {

std::unique_ptr<forms::FormView> QtDesktop::open(forms::Form& form) {
  if (form.resizable()) return std::make_unique<DataView>(form, gate_, scale_);
  return std::make_unique<FormWindow>(form, gate_, fonts_, scale_);
}

/// A window of ours goes once the event that it is in the middle of is through; the others see to that themselves.
void QtDesktop::retire(std::unique_ptr<forms::FormView> view) {
  auto* window = dynamic_cast<FormWindow*>(view.get());
  if (window == nullptr) return;
  static_cast<void>(view.release());
  window->deleteLater();
}

}  // namespace orvanta
