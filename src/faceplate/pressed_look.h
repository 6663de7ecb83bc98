// Keys that give way under the mouse: the picture goes right and down with its caption, its hole stays.
#pragma once

#include "faceplate/sunken_key.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class PressedLook {
 public:
  PressedLook(CDForm& form, const SharedState& state) : form_(form), state_(state) {}

  /// Nothing for a control that is no such key. The transport keys have their own ways.
  void down(forms::Control& control);
  void up();

 private:
  void showPair(bool pressed);

  CDForm& form_;
  const SharedState& state_;
  SunkenKey key_;
  forms::ControlArray<forms::Image, 2>* pair_ = nullptr;
};

}  // namespace orvanta
