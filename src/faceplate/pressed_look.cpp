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

void PressedLook::showPair(forms::ControlArray<forms::Image, 2>& pair, bool pressed) {
  pair[0].visible = !pressed;
  pair[1].visible = pressed;
}

void PressedLook::down(forms::Control& control) {
  up();
  const std::string& name = control.name();
  const bool pair = name == "Image19" || name == "Image20";
  const bool inPanel = name == "Image2" || name == "Image9";
  const bool caption = name == "scntla" && control.with(forms::Role::Caption) != nullptr;
  const bool key = caption || std::find(kWindowKeys.begin(), kWindowKeys.end(), name) != kWindowKeys.end();
  if (!pair && !inPanel && !key) return;
  key_ = &control;
  if (pair) {
    showPair(name == "Image19" ? form_.Image19 : form_.Image20, true);
    return;
  }
  depth_ = inPanel || state_.process.smallFonts ? kPanelDepth : kPanelDepth + 2;
  caption_ = control.with(forms::Role::Caption);
  hole_ = control.with(forms::Role::Hole);
  if (hole_ != nullptr) {
    hole_->move(control.left, control.top);
    hole_->visible = true;
  }
  control.move(control.left + depth_, control.top + depth_);
  if (caption_ != nullptr) caption_->move(caption_->left + depth_, caption_->top + depth_);
}

void PressedLook::up() {
  if (key_ == nullptr) return;
  if (key_->name() == "Image19" || key_->name() == "Image20") {
    showPair(key_->name() == "Image19" ? form_.Image19 : form_.Image20, false);
  } else {
    key_->move(key_->left - depth_, key_->top - depth_);
    if (caption_ != nullptr) caption_->move(caption_->left - depth_, caption_->top - depth_);
    if (hole_ != nullptr) hole_->visible = false;
  }
  key_ = nullptr;
  caption_ = nullptr;
  hole_ = nullptr;
}

}  // namespace orvanta
