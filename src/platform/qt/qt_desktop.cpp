// Which view serves a form.
#include "platform/qt/qt_desktop.h"

#include "platform/qt/data_window.h"
#include "platform/qt/form_view.h"

namespace orvanta {

std::unique_ptr<forms::FormView> QtDesktop::open(forms::Form& form) {
  if (form.resizable()) return std::make_unique<DataView>(form, gate_, scale_);
  return std::make_unique<FixedView>(form, gate_, fonts_, scale_);
}

}  // namespace orvanta
