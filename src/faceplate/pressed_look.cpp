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

forms::Label* PressedLook::captionOf(const forms::Control& control) {
  const auto index = static_cast<size_t>(std::max(control.index(), 0));
  if (control.name() == "Image17") return &form_.Label34[index];
  if (control.name() == "Image10") return std::array{&form_.Label18, &form_.Label19, &form_.Label20, &form_.Label25}.at(index);
  if (control.name() == "Image16")
    return std::array{&form_.Label44, &form_.Label38, &form_.Label39, &form_.Label40, &form_.Label35}.at(index);
  if (control.name() == "scntla" && index == 1) return &form_.Label24;
  if (control.name() == "scntla" && index == 2) return &form_.Label17;
  return nullptr;
}

forms::Shape* PressedLook::holeOf(const forms::Control& control) {
  if (control.name() == "Image4") return &form_.Shape5;
  if (control.name() == "Image2" || control.name() == "Image9") return &form_.Shape4;
  return nullptr;
}

void PressedLook::showPair(forms::ControlArray<forms::Image, 2>& pair, bool pressed) {
  pair[0].visible = !pressed;
  pair[1].visible = pressed;
}

void PressedLook::down(forms::Control& control) {
  up();
  const std::string& name = control.name();
  const bool pair = name == "Image19" || name == "Image20";
  const bool inPanel = name == "Image2" || name == "Image9";
  const bool caption = name == "scntla" && captionOf(control) != nullptr;
  const bool key = caption || std::find(kWindowKeys.begin(), kWindowKeys.end(), name) != kWindowKeys.end();
  if (!pair && !inPanel && !key) return;
  key_ = &control;
  if (pair) {
    showPair(name == "Image19" ? form_.Image19 : form_.Image20, true);
    return;
  }
  depth_ = inPanel || state_.process.smallFonts == kOn ? kPanelDepth : kPanelDepth + 2;
  caption_ = captionOf(control);
  hole_ = holeOf(control);
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
