// The display in its own colours or in the user's.
#include "faceplate/display_colours.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr Colour kGreen = 0x00FF00;
constexpr Colour kCyan = 0xFFFF00;
constexpr Colour kDarkGreen = 0x004000;
constexpr Colour kDarkYellow = 0x004040;

void fore(std::initializer_list<forms::Label*> labels, Colour colour) {
  for (auto* label : labels) label->foreColor = colour;
}

}  // namespace

void DisplayColours::loadorvanta1() {
  if (state_.settings.showLights == 0) {
    for (auto& lamp : form_.Shape15) lamp.visible = false;
  }
  if (state_.settings.lcdCustom == 1) {
    customDisplay();
  } else {
    plainDisplay();
  }
  form_.Label21.foreColor = state_.settings.lcdColor[state_.settings.repeatOn == kOn ? kLcdRepeatOn : kLcdRepeatOff];
  form_.CDStatusBar.visible = true;
  form_.VbarbtmL.backColor = state_.settings.customColor[4];
  form_.VbarbtmR.backColor = state_.settings.customColor[4];
}

void DisplayColours::customDisplay() {
  const Colour front = state_.settings.lcdFore;
  const Colour back = state_.settings.lcdBack;
  for (auto* panel : {&form_.Panel3D1, &form_.Panel3D5}) {
    panel->bevelInner = 1;
    panel->backColor = back;
  }
  fore({&form_.Label16, &form_.Label21, &form_.Label30}, back);
  for (size_t lamp = 1; lamp <= 20; ++lamp) form_.Label22[lamp].foreColor = back;
  fore({&form_.Label23, &form_.Label14, &form_.Label8, &form_.Label43, &form_.Label10, &form_.Label12, &form_.Label13, &form_.Label9,
        &form_.Label7, &form_.Label11, &form_.Label6},
       front);
  form_.Line12.foreColor = form_.Line10.foreColor = 0x4F4F4F;
  form_.Line11.foreColor = 0x606060;
  fore({&form_.Label32, &form_.Label33}, 0x4F4F4F);
  form_.CDStatusBar.floodColor = front;
  form_.CDStatusBar.backColor = back;
  form_.Line1.foreColor = form_.Line8.foreColor = back;
}

void DisplayColours::plainDisplay() {
  for (auto* panel : {&form_.Panel3D1, &form_.Panel3D5}) {
    panel->bevelInner = 2;
    panel->backColor = colours::kBlack;
  }
  fore({&form_.Label16, &form_.Label30}, kDarkYellow);
  fore({&form_.Label14, &form_.Label6, &form_.Label8, &form_.Label43, &form_.Label10, &form_.Label23}, kGreen);
  fore({&form_.Label9, &form_.Label7, &form_.Label11}, kCyan);
  for (size_t lamp = 1; lamp <= 20; ++lamp) form_.Label22[lamp].foreColor = kDarkGreen;
  form_.CDStatusBar.backColor = colours::kBlack;
  const Colour flood = state_.settings.customColor[4];
  if (flood != state_.settings.lcdFore) form_.CDStatusBar.floodColor = flood;
}

void DisplayColours::loadorvanta1a() {
  const auto& colour = state_.settings.lcdColor;
  const int shown = std::min<int>(state_.disc.trackCount, 20);
  for (int lamp = 0; lamp < 20; ++lamp) {
    auto& label = form_.Label22[static_cast<size_t>(lamp)];
    label.visible = lamp < shown;
    if (lamp < shown) label.foreColor = colour[kLcdLit];
  }
  const bool more = state_.disc.trackCount > 20;
  if (!more) {
    for (int key = shown; key < 20; ++key) form_.Label34[static_cast<size_t>(key)].foreColor = colours::kGrey;
    form_.Label44.foreColor = colours::kGrey;
  }
  form_.Label22[20].foreColor = colour[more ? kLcdLit : kLcdDim];
  const bool program = state_.program.pgmStored == kOn;
  form_.Label30.foreColor = colour[program ? kLcdLabelOn : kLcdLabelOff];
  form_.Label40.foreColor = program ? colours::kBlack : colours::kGrey;
}

void DisplayColours::disabledLook() {
  fore({&form_.Label24, &form_.Label17, &form_.Label35, &form_.Label44, &form_.Label19, &form_.Label20, &form_.Label25, &form_.Label38,
        &form_.Label39, &form_.Label40},
       colours::kGrey);
  for (size_t key = 1; key < 20; ++key) form_.Label34[key].foreColor = colours::kGrey;
  form_.Label35.enabled = false;
  form_.Image16[4].enabled = false;
  for (size_t key = 1; key <= 3; ++key) form_.Image10[key].enabled = false;
  form_.Label8.caption = "0";
  form_.Label43.caption = "0:00";
  form_.Label43.foreColor = state_.settings.lcdColor[kLcdDim];
  form_.Label10.caption = "00:00";
  form_.Label12.caption = "Please insert an Audio CD or Enh-CD into the drive...";
  form_.Label13.caption = "";
  form_.icntlb[Play].visible = true;
}

}  // namespace orvanta
