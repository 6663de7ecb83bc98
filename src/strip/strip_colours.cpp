// The settings' share in the strip's look.
#include "strip/strip_colours.h"

#include <algorithm>

#include "faceplate/display_colours.h"
#include "platform/forms/design.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kPlainRise = 10;  ///< twips that the plain digits of the folded strip stand higher

void fore(std::initializer_list<forms::Control*> controls, Colour colour) {
  for (auto* control : controls) control->foreColor = colour;
}

void points(forms::Label& label, double size) {
  forms::Font font = label.font;
  font.points = size;
  label.font = font;
}

}  // namespace

void StripColours::apply() {
  digits();
  if (state_.settings.lcdCustom == 1) {
    displayOfUser();
  } else {
    display();
  }
  body();
  if (!state_.settings.fonts[kDiscFont].fontName.empty()) {
    chooseFont(form_.Label12, state_.settings.fonts[kDiscFont]);
    chooseFont(form_.Label13, state_.settings.fonts[kTrackFont]);
  }
}

void StripColours::digits() {
  if (lcdFont(screen_, state_.settings)) return;
  form_.Label8.font = forms::Font{"Arial", 19, true};
  form_.Label5.font = forms::Font{"Arial", 12, true};
  for (auto* label : {&form_.Label3, &form_.Label4}) {
    label->font = forms::Font{"Arial", 7, true};
    label->top = label->top - kPlainRise;
  }
}

void StripColours::displayOfUser() {
  const Colour front = state_.settings.lcdFore;
  const Colour back = state_.settings.lcdBack;
  for (forms::Panel* panel : {&form_.SSPanel1, &form_.Panel3D1, &form_.Panel3D5}) tintGlass(*panel, state_.settings);
  form_.vcntlstatusbar.backColor = back;
  form_.vcntlstatusbar.floodColor = front;
  for (auto& number : form_.Label22) number.foreColor = back;
  fore({&form_.Label23, &form_.Label14, &form_.Label8, &form_.Label5, &form_.Label9, &form_.Label7, &form_.Label11, &form_.Label30,
        &form_.Label3, &form_.Label4, &form_.Label12, &form_.Label13},
       front);
}

void StripColours::display() {
  const Settings& settings = state_.settings;
  const Colour flood = settings.customColor[kCustomBars];
  for (forms::Panel* panel : {&form_.SSPanel1, &form_.Panel3D1, &form_.Panel3D5}) panel->bevelInner = 2;
  if (flood != settings.lcdFore) form_.vcntlstatusbar.floodColor = flood;
  const Colour legends = settings.customColor[kCustomLegends];
  const Colour digits = settings.customColor[kCustomDigits];
  if (legends != 0) fore({&form_.Label7, &form_.Label9, &form_.Label11}, legends);
  if (digits != 0) fore({&form_.Label8, &form_.Label5}, digits);
  if (settings.fonts[kDiscFont].fontName.empty()) return;
  form_.Label12.foreColor = settings.fonts[kDiscFont].fontColor;
  form_.Label13.foreColor = settings.fonts[kTrackFont].fontColor;
}

void StripColours::body() {
  const auto& colour = state_.settings.customColor;
  if (metalOfUser(state_)) {
    form_.frame.backColor = colour[kCustomBorderLines];
    form_.SSPanel2.backColor = colour[kCustomMetal];
    form_.SSPanel3.backColor = colour[kCustomKeypad];
  }
  form_.SSPanel3.empty = state_.settings.showLights == 0;
  form_.Image10.picture = backgroundPicture(files_, screen_, state_.settings);
  for (auto* legend : {&form_.Label10, &form_.Label1}) {
    legend->backColor = form_.SSPanel2.backColor.get();
    paintLegend(*legend, form_.SSPanel2.backColor);
  }
}

void StripColours::sizeTitles(int by) {
  constexpr double kSmallest = 4;
  constexpr double kLargest = 24;
  for (auto* title : {&form_.Label12, &form_.Label13}) points(*title, std::clamp(title->font.get().points + by, kSmallest, kLargest));
}

void StripColours::sizeTime(forms::Label& time, size_t characters) {
  constexpr size_t kUsual = 7;
  const bool strip = &time == &form_.Label4;
  const bool lcd = lcdFont(screen_, state_.settings);
  const double usual = !lcd ? (strip ? 7 : 12) : form_.designRow(time)->points;
  const double narrow = !lcd ? (strip ? 6 : 12) : strip ? 4.5 : 14.5;
  points(time, characters > kUsual ? narrow : usual);
}

}  // namespace orvanta
