// The way from a window into the core, which may end while it is gone.
#pragma once

#include <functional>
#include <utility>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"

namespace orvanta {

/// The way from a window's widgets into the core. The form may go in the midst of a call.
class FormRoad {
 public:
  FormRoad(forms::Form& form, CoreGate& gate) : form_(&form), gate_(gate) {}

  /// nullptr once it is gone.
  forms::Form* form() const { return form_; }
  bool underWay() const { return entered_ > 0; }
  /// Nothing is called any more. `afterLast` runs when the calls that are under way have come back.
  void close(std::function<void()> afterLast);

  template <class Work>
  void enter(const Work& work) {
    if (form_ == nullptr || telling_) return;
    ++entered_;
    gate_.enter([&] { work(*form_); });
    if (--entered_ == 0 && form_ == nullptr) afterLast_();
  }

  /// Changes widgets: what they tell meanwhile is no user's doing.
  template <class Work>
  void tell(const Work& work) {
    const bool before = std::exchange(telling_, true);
    work();
    telling_ = before;
  }
  bool telling() const { return telling_; }

 private:
  forms::Form* form_;
  CoreGate& gate_;
  std::function<void()> afterLast_;
  int entered_ = 0;
  bool telling_ = false;
};

}  // namespace orvanta
