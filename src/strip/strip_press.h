// Keys of the strip that give way under the mouse.
#pragma once

#include "faceplate/sunken_key.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripPress {
 public:
  explicit StripPress(const VolCntl& form) : form_(form) {}

  /// Nothing for a control that is no such key.
  void down(forms::Control& control);
  void up() { key_.up(); }
  void forget() { key_.forget(); }

 private:
  const VolCntl& form_;
  SunkenKey key_;
};

}  // namespace orvanta
