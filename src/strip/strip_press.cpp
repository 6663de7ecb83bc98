// The picture goes right and down, and leaves its hole behind.
#include "strip/strip_press.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvanta {

/// At 15 twips a pixel the first two keys of the row go a little farther right.
forms::Place StripPress::depth(const forms::Control& key) const {
  if (!form_.smallFonts) return {10, 10, 0, 0};
  const bool first = (key.name() == "Image1" || key.name() == "Image2") && key.index() <= 1;
  return {first ? 20 : 10, 20, 0, 0};
}

void StripPress::down(forms::Control& control) {
  up();
  static constexpr std::array<std::string_view, 10> kKeys = {"Image1", "Image2",  "Image5", "Image7",  "Image6",
                                                             "Image8", "Image13", "Image3", "Image12", "Image9"};
  if (std::find(kKeys.begin(), kKeys.end(), control.name()) == kKeys.end()) return;
  key_ = &control;
  depth_ = depth(control);
  if (forms::Control* hole = control.with(forms::Role::Hole)) {
    hole->move(control.left, control.top);
    hole->width = control.width.get();
    hole->height = control.height.get();
    hole->visible = true;
  }
  control.move(control.left + depth_.left, control.top + depth_.top);
}

void StripPress::up() {
  if (key_ == nullptr) return;
  key_->move(key_->left - depth_.left, key_->top - depth_.top);
  if (forms::Control* hole = key_->with(forms::Role::Hole)) hole->visible = false;
  key_ = nullptr;
}

}  // namespace orvanta
