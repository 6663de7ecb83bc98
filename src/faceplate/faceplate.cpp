// The faceplate's load order and event routes.
#include "faceplate/faceplate.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/files.h"
#include "playback/upward.h"
#include "state/marker_files.h"
#include "state/settings_files.h"

namespace orvanta {

Faceplate::Faceplate(Ports& ports, DiscLoad& discLoad, DeviceLayer& layer, Engine& engine, Modes& modes, PlaybackClock& clock,
                     Buttons& buttons, DisplayColours& colours, Position& position, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : device_(ports.device),
      tray_(ports.tray),
      dialogs_(ports.dialogs),
      files_(ports.files),
      discLoad_(discLoad),
      layer_(layer),
      engine_(engine),
      modes_(modes),
      clock_(clock),
      buttons_(buttons),
      colours_(colours),
      position_(position),
      form_(form),
      state_(state),
      upward_(upward) {}

void Faceplate::load() {
  if (state_.process.commandWord == "RUNRIPPER") form_.minimised = true;
  // Tells the sibling programs that a player runs.
  setMarker(files_, state_.settings.appDir, kRunningMarker);
  state_.clearForLoad();
  colours_.loadorvanta1();
  position_.posfp1();
  if (state_.process.colourCount < 257) {
    form_.Panel3D2.backColor = form_.Panel3D3.backColor = 0x400000;
    form_.backColor = 0x400000;
  }
  const bool disc = discLoad_.probe();
  setPlayState();
  if (disc) {
    const auto program = upward_.readProgram();
    state_.program.pgmStored = program && !program->empty() && program->front() >= 1 ? kOn : kOff;
    state_.disc.timeCorrection = upward_.readTimeCorrection();
  }
  colours_.loadorvanta1a();
  if (disc && device_.mode() == DeviceMode::Playing) {
    discLoad_.deferredTable();
    engine_.adoptRunningDisc();
  }
  if (disc && leadingNumber(state_.process.commandWord) > 0) {
    playTrackOfCommandLine();
  } else if (state_.settings.appOptions[3] == 1) {
    upward_.runMixer();
  }
  clock_.start();
}

/// A number above the disc's tracks is passed over.
void Faceplate::playTrackOfCommandLine() {
  const auto track = static_cast<int16_t>(leadingNumber(state_.process.commandWord));
  state_.process.commandWord.clear();
  state_.process.autoStartMode = kOff;
  if (track > state_.disc.trackCount) return;
  state_.disc.discSum = layer_.sumOfTracks();
  discLoad_.deferredTable();
  state_.transport.selTrack = static_cast<int16_t>(track - 1);
  engine_.jump();
  state_.transport.curTrack = track;
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
  clearMarker(files_, state_.settings.appDir, kRunningMarker);
}

void Faceplate::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  if (mouse.button != forms::MouseButton::Left) return;
  if (control == nullptr || control == &form_.Image8) {
    if (form_.view() != nullptr) form_.view()->drag();
  } else if (control->name() == "icntla") {
    const auto key = static_cast<size_t>(control->index());
    keyTaken_ = buttons_.accepts(key);
    if (keyTaken_) buttons_.icntla_MouseDown(key);
  } else if (control->name() == "scntla") {
    buttons_.scntla_MouseDown(static_cast<size_t>(control->index()));
  }
}

void Faceplate::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == nullptr) return;
  if (mouse.button == forms::MouseButton::Right) {
    rightReleased(*control);
  } else {
    released(control->name(), static_cast<size_t>(std::max(control->index(), 0)), mouse);
  }
}

void Faceplate::released(const std::string& name, size_t index, const forms::Mouse& mouse) {
  if (name == "icntla") {
    if (keyTaken_) buttons_.icntla_MouseUp(index);
    keyTaken_ = false;
  } else if (name == "scntla") {
    buttons_.scntla_MouseUp(index);
  } else if (name == "Image17") {
    buttons_.Image17_MouseUp(index);
  } else if (name == "Image16") {
    buttons_.Image16_MouseUp(index);
  } else if (name == "Image4") {
    modes_.Image4_MouseUp(index);
    // A person who picks Pgm wants to make a program.
    if (index == PgmKey && state_.disc.noDiscState == 0 && state_.disc.drawerOpen == kOff) upward_.showPlaylist();
  } else if (name == "Image10") {
    if (index == 1) upward_.showCdData();
    if (index == 2) upward_.showPlaylist();
  } else if (name == "Label6") {
    modes_.nextMode();
  } else if (name == "Label9") {
    buttons_.Label9_Click();
  } else if (name == "Label30") {
    modes_.Label30_Click();
  } else if (name == "Label14" || name == "Image12") {
    upward_.launchEnhancedDisc();
  } else if (name == "CDStatusBar") {
    buttons_.CDStatusBar_Click(mouse.x);
  } else if (name == "Panel3D2") {
    if (state_.disc.drawerOpen != kOn && state_.disc.noDiscState == 0) engine_.mmcontrol1_EjectClick();
  } else if (name == "Panel3D7" || name == "Panel3D9" || name == "Panel3D10") {
    askForDisc();
  } else if (name == "Image5" || name == "Image6") {
    upward_.exitProgram();
  }
}

void Faceplate::rightReleased(const forms::Control& control) {
  if (&control == &form_.Image10[2] && state_.program.pgmStored == kOn) modes_.Label30_Click();
}

void Faceplate::doubleClick(forms::Control* control) {
  if (control == nullptr || control == &form_.Image8) position_.Form_DblClick();
}

void Faceplate::dragged() { position_.saveposn1(); }

/// A click on the open tray: a real one is pushed shut, the tray of images asks which one to take.
void Faceplate::askForDisc() {
  device_.command("Open");
  device_.command("Eject");
  device_.command("Close");
  if (!tray_.takesImages()) {
    tray_.close();
    return;
  }
  const auto chosen = dialogs_.askOpenFile({"Put a Disc in", tray_.imageFolder(), "", "Disc Images (*.cue)|*.cue"});
  if (chosen) tray_.offer(*chosen);
}

void Faceplate::fileDropped(const std::string& path) { tray_.offer(path); }

bool Faceplate::keyDown(const forms::KeyPress& key) { return buttons_.keyDown(key); }

void Faceplate::closeAsked() { upward_.exitProgram(); }

}  // namespace orvanta
