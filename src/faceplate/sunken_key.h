// A key that gives way under the mouse: it goes right and down with its caption, and its hole shows in its place.
#pragma once

#include "platform/forms/control.h"

namespace orvanta {

class SunkenKey {
 public:
  /// By so many twips.
  void down(forms::Control& key, int right, int below) {
    up();
    key_ = &key;
    right_ = right;
    below_ = below;
    if (forms::Control* hole = key.with(forms::Role::Hole)) {
      hole->move(key.left, key.top);
      hole->visible = true;
    }
    shift(1);
  }

  void up() {
    if (key_ == nullptr) return;
    shift(-1);
    if (forms::Control* hole = key_->with(forms::Role::Hole)) hole->visible = false;
    key_ = nullptr;
  }

  /// The window was laid out anew.
  void forget() { key_ = nullptr; }

 private:
  void shift(int way) {
    for (forms::Control* each : {key_, key_->with(forms::Role::Caption)}) {
      if (each != nullptr) each->move(each->left + way * right_, each->top + way * below_);
    }
  }

  forms::Control* key_ = nullptr;
  int right_ = 0;
  int below_ = 0;
};

}  // namespace orvanta
