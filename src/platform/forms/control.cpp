// What controls do by themselves: tell their form of a change, and know whether they show.
#include "platform/forms/control.h"

#include "platform/forms/form.h"

namespace orvanta::forms {

std::string_view kindName(Kind kind) {
  static constexpr std::string_view kNames[] = {"label", "image", "panel", "line", "shape", "bar", "textbox", "button"};
  return kNames[static_cast<int>(kind)];
}

Control::Control(Form& form, std::string_view name, int index, Kind kind) : form_(form), name_(name), index_(index), kind_(kind) {
  form.add(*this);
}

std::string Control::fullName() const { return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")"; }

void Control::move(int newLeft, int newTop) {
  left = newLeft;
  top = newTop;
}

void Control::refresh() {
  if (form_.view() != nullptr) form_.view()->refresh(*this);
}

void Control::propertyChanged(Change change) {
  if (form_.view() != nullptr) form_.view()->changed(*this, change);
  if (change == Change::Text && tellsText) form_.textChanged(*this);
}

bool Control::insideForm() const {
  const int areaWidth = parent != nullptr ? parent->width : form_.width;
  const int areaHeight = parent != nullptr ? parent->height : form_.height;
  const bool overlaps = left < areaWidth && top < areaHeight && left + width >= 0 && top + height >= 0;
  return overlaps && (parent == nullptr || parent->insideForm());
}

bool Control::shown() const { return visible && (parent == nullptr || parent->shown()); }

}  // namespace orvanta::forms
