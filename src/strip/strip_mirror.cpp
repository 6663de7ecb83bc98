// What the strip shows of the deck. A value that is the same already is not written, so nothing flickers.
#include "strip/strip_mirror.h"

namespace orvanta {

namespace {

void copyWord(forms::Label& to, const forms::Label& from) {
  to.caption = from.caption.get();
  to.foreColor = from.foreColor.get();
}

}  // namespace

void StripMirror::follow() {
  if (!form_.loaded()) return;
  keys();
  sliders_.follow();
  form_.vcntlstatusbar.floodPercent = faceplate_.CDStatusBar.floodPercent.get();
  form_.vcntlstatusbar.foreColor = faceplate_.CDStatusBar.foreColor.get();
  if (state_.display.popupLayout == kOn) {
    unfolded();
  } else {
    folded();
  }
}

/// The last key ejects where the faceplate's records, and can always be had.
void StripMirror::keys() {
  for (size_t key = Previous; key < Record; ++key) {
    const bool lit = faceplate_.icntlc[key].visible;
    const bool dead = !lit && faceplate_.icntlb[key].visible;
    form_.Image1[key].visible = !lit && !dead;
    form_.Image2[key].visible = lit;
    form_.Image4[key].visible = dead;
  }
}

void StripMirror::time(forms::Label& label) {
  label.caption = faceplate_.Label10.caption.get();
  colours_.sizeTime(label, faceplate_.Label10.caption.get().size());
}

void StripMirror::folded() {
  form_.Label3.caption = faceplate_.Label8.caption.get();
  time(form_.Label4);
}

void StripMirror::unfolded() {
  form_.Label8.caption = faceplate_.Label8.caption.get();
  time(form_.Label5);
  form_.Label12.caption = faceplate_.Label12.caption.get();
  form_.Label13.caption = faceplate_.Label13.caption.get();
  form_.Label9.caption = faceplate_.Label9.caption.get();
  copyWord(form_.Label14, faceplate_.Label14);
  copyWord(form_.Label21, faceplate_.Label21);
  copyWord(form_.Label30, faceplate_.Label30);
  calendar();
}

void StripMirror::calendar() {
  for (size_t number = 0; number < forms::ControlArray<forms::Label, 20>::size(); ++number) {
    form_.Label22[number].visible = faceplate_.Label22[number].visible.get();
    form_.Label22[number].foreColor = faceplate_.Label22[number].foreColor.get();
  }
}

}  // namespace orvanta
