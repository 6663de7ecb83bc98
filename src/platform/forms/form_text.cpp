// A form printed as text, for golden tests of layouts and for developers.
#include <cstdio>

#include "platform/forms/form.h"

namespace orvanta::forms {

namespace {

std::string hex(Colour colour) {
  char text[16];
  std::snprintf(text, sizeof text, "%06X", static_cast<unsigned>(colour));
  return text;
}

std::string line(const Control& control) {
  std::string text = control.fullName() + " " + std::string(kindName(control.kind())) + " " + std::to_string(control.left) + "," +
                     std::to_string(control.top) + " " + std::to_string(control.width) + "x" + std::to_string(control.height);
  if (control.parent != nullptr) text += " in " + control.parent->fullName();
  if (!control.caption.get().empty()) text += " \"" + control.caption.get() + "\"";
  text += " " + hex(control.foreColor) + "/" + hex(control.backColor);
  if (!control.visible) text += " hidden";
  if (!control.enabled) text += " disabled";
  const std::string state = control.state();
  return text + (state.empty() ? "" : " " + state) + "\n";
}

}  // namespace

std::string formAsText(const Form& form) {
  std::string text = form.name() + " form " + std::to_string(form.left) + "," + std::to_string(form.top) + " " +
                     std::to_string(form.width) + "x" + std::to_string(form.height) + "\n";
  for (const Control* control : form.controls()) text += line(*control);
  return text;
}

}  // namespace orvanta::forms
