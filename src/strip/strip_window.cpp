// The strip's ways in and out.
#include "strip/strip_window.h"

#include "base/meanwhile.h"

namespace orvanta {

// ---- the ways in

void StripWindow::minfp1() {
  if (out()) {
    if (form_.loaded() && on_.place.wantsTray()) Image13_MouseUp();
    return;
  }
  const Meanwhile changing(changing_, true);
  upward_.hideWallpaper();
  icon_.minimised = true;
  icon_.show(desktop_);
  // From here on each activation of it is the user's.
  desktop_.lastShown = nullptr;
  faceplate_.hide();
  const DeckState now = engine_.heard();
  if (state_.disc.in() && (now == DeckState::Playing || now == DeckState::Paused)) showStrip();
}

/// A load that hands it to the tray leaves it unseen.
void StripWindow::showStrip() {
  keepLevel();
  form_.smallFonts = state_.process.smallFonts;
  form_.load(desktop_);
  onScreen_ = !form_.parked;
  if (onScreen_) form_.show(desktop_);
}

void StripWindow::load() {
  state_.display.popupOpen = true;
  state_.volume.volDrag = kNoDrag;
  form_.firstStop = &form_.Image1[Play];
  lookAnew();
  vcposn();
}

void StripWindow::lookAnew() {
  on_.layout.apply();
  on_.colours.apply();
  on_.mirror.follow();
}

void StripWindow::vcposn() {
  form_.parked = on_.place.wantsTray();
  if (form_.parked && upward_.toTray()) return;
  form_.parked = false;
  on_.place.restore();
}

void StripWindow::takeUp() {
  if (!form_.loaded()) return;
  const bool unfolded = state_.display.popupLayout == kOn;
  const int left = form_.left;
  const int top = form_.top;
  form_.putDesignBack();
  lookAnew();
  if (unfolded) {
    on_.layout.unfold();
    on_.mirror.follow();
  }
  form_.left = left;
  form_.top = top;
  on_.place.pullIn();
}

// ---- the ways out

void StripWindow::restore() {
  if (!out() || changing_) return;
  const Meanwhile changing(changing_, true);
  upward_.leaveTray();
  upward_.renewWallpaper();
  form_.unload();
  faceplate_.show(desktop_);
  icon_.unload();
}

void StripWindow::unload() {
  state_.display.popupOpen = onScreen_ = false;
  on_.sliders.pair().letGo();
  if (!form_.parked) {
    // It comes again folded, where it stands so.
    fold();
    on_.place.save();
  }
  if (!state_.disc.drawerOpen) putLevelBack();
}

// ---- the tray

void StripWindow::Image13_MouseUp() {
  if (!upward_.toTray()) return;
  onScreen_ = false;
  form_.hide();
}

void StripWindow::showFromTray() {
  if (!form_.loaded()) {
    restore();
    return;
  }
  form_.parked = false;
  const bool unfolded = state_.display.popupLayout == kOn;
  on_.layout.fold();
  on_.place.restore();
  if (unfolded) unfold();
  onScreen_ = true;
  form_.show(desktop_);
  on_.mirror.follow();
}

// ---- the level

void StripWindow::keepLevel() {
  const VolumeState& volume = state_.volume;
  level_ = {volume.leftRaw, volume.rightRaw, volume.muteLeft, volume.muteRight};
}

/// What the user set by the sliders stays. Without them nothing has been set, and the mixer program's slider is where its
/// number says, so that the next step starts from there.
void StripWindow::putLevelBack() {
  if (state_.settings.soundMode == kOwnVolume) return;
  VolumeState& volume = state_.volume;
  volume.leftRaw = level_.saveLeftRaw;
  volume.rightRaw = level_.saveRightRaw;
  volume.muteLeft = level_.saveMuteLeft;
  if (state_.settings.soundMode != kMixerProgram) volume.muteRight = level_.saveMuteRight;
}

// ---- folding

void StripWindow::fold() {
  on_.layout.fold();
  on_.mirror.follow();
  on_.place.folded();
}

void StripWindow::unfold() {
  on_.layout.unfold();
  on_.mirror.follow();
  on_.place.unfolded();
}

}  // namespace orvanta
