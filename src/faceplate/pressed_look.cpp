// The mixer and display keys have two pictures, at rest and down, of which the second already lies lower.
#include "faceplate/pressed_look.h"

#include <algorithm>
#include <array>

namespace orvanta {

namespace {

constexpr int kPanelDepth = 10;

/// Keys of the window by name; those of the volume panel go ten twips in either metric variant.
constexpr std::array<std::string_view, 10> kWindowKeys = {"Image10", "Image16", "Image17", "Image4",  "Image5",
                                                          "Image6",  "Image7",  "Image11", "Image13", "Image12"};

}  // namespace

void PressedLook::showPair(bool pressed) {
  (*pair_)[0].visible = !pressed;
  (*pair_)[1].visible = pressed;
}

void PressedLook::down(forms::Control& control) {
  up();
  const std::string& name = control.name();
  if (name == "Image19" || name == "Image20") {
    pair_ = name == "Image19" ? &form_.Image19 : &form_.Image20;
    showPair(true);
    return;
  }
  const bool inPanel = name == "Image2" || name == "Image9";
  const bool caption = name == "scntla" && control.with(forms::Role::Caption) != nullptr;
  if (!inPanel && !caption && std::find(kWindowKeys.begin(), kWindowKeys.end(), name) == kWindowKeys.end()) return;
  const int depth = inPanel || state_.process.smallFonts ? kPanelDepth : kPanelDepth + 2;
  key_.down(control, depth, depth);
}

void PressedLook::up() {
  key_.up();
  if (pair_ != nullptr) showPair(false);
  pair_ = nullptr;
}

}  // namespace orvanta
