// The display's colours: its own, the user's, and those of a deck without a disc.
#include <algorithm>

#include "platform/forms/design.h"
#include "playback/display.h"

namespace orvanta {

namespace {

constexpr Colour kGreen = 0x00FF00;
constexpr Colour kCyan = 0xFFFF00;
constexpr Colour kDarkGreen = 0x004000;
constexpr Colour kDarkYellow = 0x004040;
constexpr Colour kSpareCell = 0x2F2F2F;
constexpr Colour kDarkCell = 0x4F4F4F;
constexpr size_t kLampCells = 20;

void fore(std::initializer_list<forms::Label*> labels, Colour colour) {
  for (auto* label : labels) label->foreColor = colour;
}

void ownFore(forms::Label& label) { label.foreColor = label.form().designRow(label)->fore; }

}  // namespace

void Display::paint() {
  if (state_.settings.lcdCustom == 1) {
    paintCustom();
  } else {
    paintPlain();
  }
  spareLamps();
  form_.Label21.foreColor = lcd(state_.settings.repeatOn == kOn ? kLcdRepeatOn : kLcdRepeatOff);
  form_.CDStatusBar.visible = true;
}

void Display::paintCustom() {
  const Colour front = state_.settings.lcdFore;
  const Colour back = state_.settings.lcdBack;
  fore({&form_.Label16, &form_.Label21, &form_.Label30}, back);
  for (size_t lamp = 1; lamp <= kLampCells; ++lamp) form_.Label22[lamp].foreColor = back;
  fore({&form_.Label23, &form_.Label14, &form_.Label8, &form_.Label43, &form_.Label10, &form_.Label12, &form_.Label13, &form_.Label9,
        &form_.Label7, &form_.Label11, &form_.Label6},
       front);
  form_.CDStatusBar.floodColor = front;
  form_.CDStatusBar.backColor = back;
}

void Display::paintPlain() {
  // The user's colours may have been here before.
  ownFore(form_.Label12);
  ownFore(form_.Label13);
  fore({&form_.Label16, &form_.Label30}, kDarkYellow);
  fore({&form_.Label14, &form_.Label6, &form_.Label8, &form_.Label43, &form_.Label10, &form_.Label23}, kGreen);
  fore({&form_.Label9, &form_.Label7, &form_.Label11}, kCyan);
  for (size_t lamp = 1; lamp <= kLampCells; ++lamp) form_.Label22[lamp].foreColor = kDarkGreen;
  form_.CDStatusBar.backColor = colours::kBlack;
  const Colour flood = state_.settings.customColor[kCustomBars];
  if (flood != state_.settings.lcdFore) form_.CDStatusBar.floodColor = flood;
}

/// Cells of the calendar without a track stay dark.
void Display::spareLamps() {
  const int tracks = state_.disc.trackCount;
  if (tracks <= 10) {
    for (size_t lamp = 1; lamp <= 25; ++lamp) form_.Label22[lamp].foreColor = kSpareCell;
    return;
  }
  for (int i = 1; i <= 15; ++i) {
    auto& label = form_.Label22[static_cast<size_t>(i) + 10];
    if (i > tracks) {
      label.foreColor = kSpareCell;
    } else if (state_.settings.lcdCustom == 1) {
      label.foreColor = kDarkCell;
    }
  }
}

void Display::paintUser() {
  const auto& colour = state_.settings.customColor;
  if (state_.settings.lcdCustom != 1 && colour[kCustomBars] != state_.settings.lcdFore) form_.CDStatusBar.floodColor = colour[kCustomBars];
  if (colour[kCustomLegends] != 0) fore({&form_.Label7, &form_.Label9, &form_.Label11}, colour[kCustomLegends]);
  if (colour[kCustomDigits] != 0) fore({&form_.Label8, &form_.Label10}, colour[kCustomDigits]);
}

void Display::paintTitle(size_t line, Colour colour) { (line == 0 ? form_.Label12 : form_.Label13).foreColor = colour; }

Display::Lit Display::lit() {
  Lit all;
  const auto note = [&](forms::Label& label, std::initializer_list<LcdColour> colours) {
    for (const LcdColour colour : colours) {
      if (label.foreColor != lcd(colour)) continue;
      all.emplace_back(&label, colour);
      return;
    }
  };
  note(form_.Label14, {kLcdLit, kLcdDrawer});
  note(form_.Label16, {kLcdLabelOff, kLcdLabelOn, kLcdLit});
  note(form_.Label21, {kLcdLabelOn, kLcdRepeatOn, kLcdRepeatOff});
  note(form_.Label30, {kLcdLabelOff, kLcdLabelOn, kLcdDrawer});
  note(form_.Label43, {kLcdLit, kLcdDim});
  for (size_t lamp = 0; lamp <= kLampCells; ++lamp) note(form_.Label22[lamp], {kLcdLit, kLcdLitInCont, kLcdDim, kLcdDrawer});
  return all;
}

void Display::relight(const Lit& lit) {
  for (const auto& [label, colour] : lit) label->foreColor = lcd(colour);
}

void Display::calendar() {
  const int shown = std::min<int>(state_.disc.trackCount, kLampCells);
  for (int track = 1; track <= static_cast<int>(kLampCells); ++track) {
    lampOf(track).visible = track <= shown;
    if (track <= shown) lamp(track, kLcdLit);
  }
  form_.Label22[kLampCells].foreColor = lcd(state_.disc.trackCount > shown ? kLcdLit : kLcdDim);
  form_.Label30.foreColor = lcd(state_.program.pgmStored ? kLcdLabelOn : kLcdLabelOff);
}

void Display::prompt(std::string_view first, std::string_view second) {
  track(0);
  form_.Label10.caption = "00:00";
  form_.Label12.caption = std::string(first);
  form_.Label13.caption = std::string(second);
}

}  // namespace orvanta
