// The faceplate's load order and event routes.
#include "faceplate/faceplate.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/files.h"
#include "playback/upward.h"
#include "state/settings_files.h"

namespace orvanta {

void Faceplate::load() {
  if (state_.process.commandWord == "RUNRIPPER") form_.minimised = true;
  // Tells the sibling programs that a player runs.
  files_.write(joinPath(state_.settings.appDir, "audiocd.tmp"), "\"0\"\r\n");
  state_.clearForLoad();
  colours_.loadorvanta1();
  if (state_.process.colourCount < 257) {
    form_.Panel3D2.backColor = form_.Panel3D3.backColor = 0x400000;
    form_.backColor = 0x400000;
  }
  const bool disc = discLoad_.probe();
  setPlayState();
  colours_.loadorvanta1a();
  if (disc && device_.mode() == DeviceMode::Playing) {
    discLoad_.deferredTable();
    engine_.adoptRunningDisc();
  }
  clock_.start();
}

void Faceplate::setPlayState() {
  state_.transport.playMode = Cont;
  state_.program.pgmList.fill(0);
  state_.transport.trackGo = 1;
  state_.transport.curTrack = 1;
  state_.disc.discStarted = kOff;
  state_.disc.lampCount = std::min<int16_t>(state_.disc.trackCount, 20);
  state_.disc.discLoaded = state_.disc.trackCount > 0 ? kOn : kOff;
}

void Faceplate::activate() {
  if (state_.disc.noDiscState > 0) colours_.disabledLook();
}

void Faceplate::unload() {
  writeSettings(SettingsFile::SettingsDat, files_, state_.settings.appDir, state_.settings);
  state_.disc.trackTableDone = kOff;
  files_.remove(joinPath(state_.settings.appDir, "audiocd.tmp"));
}

void Faceplate::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  if (mouse.button != forms::MouseButton::Left) return;
  if (control == nullptr || control == &form_.Image8) {
    if (form_.view() != nullptr) form_.view()->drag();
  } else if (control->name() == "icntla") {
    const auto key = static_cast<size_t>(control->index());
    keyTaken_ = buttons_.accepts(key);
    if (keyTaken_) buttons_.icntla_MouseDown(key);
  }
}

void Faceplate::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == nullptr || mouse.button != forms::MouseButton::Left) return;
  if (control->name() == "icntla") {
    if (keyTaken_) buttons_.icntla_MouseUp(static_cast<size_t>(control->index()));
    keyTaken_ = false;
  } else if (control == &form_.Panel3D2) {
    if (state_.disc.drawerOpen != kOn && state_.disc.noDiscState == 0) engine_.mmcontrol1_EjectClick();
  } else if (control == &form_.Image5 || control == &form_.Image6) {
    upward_.exitProgram();
  }
}

bool Faceplate::keyDown(const forms::KeyPress& key) { return buttons_.keyDown(key); }

void Faceplate::closeAsked() { upward_.exitProgram(); }

}  // namespace orvanta
