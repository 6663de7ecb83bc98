// How a window without a frame is taken hold of: it is dragged only once the mouse moves, so that a click, or two,
// leaves it where it is.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "platform/forms/form.h"

namespace orvanta {

class WindowGrip {
 public:
  void take(const forms::Mouse& mouse) { grip_ = mouse; }
  void drop() { grip_.reset(); }
  /// True once for each grip: the window follows the hand from here on.
  bool drags(const forms::Form& form, const forms::Mouse& mouse) {
    constexpr int kStarts = 60;  // twips
    if (!grip_ || std::max(std::abs(mouse.x - grip_->x), std::abs(mouse.y - grip_->y)) < kStarts) return false;
    grip_.reset();
    if (form.view() != nullptr) form.view()->drag();
    return true;
  }

 private:
  std::optional<forms::Mouse> grip_;
};

}  // namespace orvanta
