// Makes the views: of fixed places, or of real widgets for a form that lays itself out.
#pragma once

#include <memory>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"
#include "platform/qt/fonts.h"
#include "platform/qt/scale.h"

namespace orvanta {

class QtDesktop : public forms::Desktop {
 public:
  QtDesktop(CoreGate& gate, const Scale& scale) : gate_(gate), scale_(scale) {}
  std::unique_ptr<forms::FormView> open(forms::Form& form) override;

 private:
  CoreGate& gate_;
  Scale scale_;
  Fonts fonts_;
};

}  // namespace orvanta
