// Keys of the strip that give way under the mouse.
#pragma once

#include "windows/volcntl.h"

namespace orvanta {

class StripPress {
 public:
  explicit StripPress(VolCntl& form) : form_(form) {}

  /// Nothing for a control that is no key, or one that cannot be had.
  void down(forms::Control& control);
  void up();
  /// The window was laid out anew.
  void forget() { key_ = nullptr; }

 private:
  forms::Place depth(const forms::Control& key) const;

  VolCntl& form_;
  forms::Control* key_ = nullptr;
  forms::Place depth_;  ///< how far the key stands from its place
};

}  // namespace orvanta
