// The faceplate's load order and event routes.
#include "faceplate/faceplate.h"

#include <algorithm>
#include <cstdlib>

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/files.h"
#include "playback/upward.h"
#include "state/marker_files.h"
#include "state/settings_files.h"

namespace orvanta {

namespace {

constexpr int kDragStarts = 60;  ///< twips that a hand moves before the window follows it

/// Tells the sibling programs that a player runs. A load that ends the process, since another one holds the drive,
/// takes it away again.
class RunningMarker {
 public:
  RunningMarker(Files& files, const std::string& folder) : files_(files), folder_(folder) { setMarker(files_, folder_, kRunningMarker); }
  RunningMarker(const RunningMarker&) = delete;
  RunningMarker& operator=(const RunningMarker&) = delete;
  ~RunningMarker() {
    if (!stays_) clearMarker(files_, folder_, kRunningMarker);
  }
  void stays() { stays_ = true; }

 private:
  Files& files_;
  const std::string& folder_;
  bool stays_ = false;
};

}  // namespace

Faceplate::Faceplate(Ports& ports, const FaceplateParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : device_(ports.device),
      tray_(ports.tray),
      dialogs_(ports.dialogs),
      files_(ports.files),
      on_(parts),
      look_(form, state),
      form_(form),
      state_(state),
      upward_(upward) {}

void Faceplate::load() {
  if (state_.process.commandWord == "RUNRIPPER") form_.minimised = true;
  RunningMarker marker(files_, state_.settings.appDir);
  state_.clearForLoad();
  form_.firstStop = &form_.icntla[Play];
  // The title lines are laid out by what they hold.
  form_.Label12.tellsText = true;
  on_.colours.loadorvanta1();
  if (state_.process.colourCount < kFewColours) {
    form_.Panel3D2.backColor = form_.Panel3D3.backColor = 0x400000;
    form_.backColor = 0x400000;
  }
  on_.layout.apply();
  on_.looks.reset();
  const bool disc = on_.discLoad.probe();
  setPlayState();
  if (disc) {
    const auto program = upward_.readProgram();
    state_.program.pgmStored = program && !program->empty() && program->front() >= 1 ? kOn : kOff;
    state_.disc.timeCorrection = upward_.readTimeCorrection();
  }
  upward_.readUserCaptions();
  on_.colours.loadorvanta1a();
  if (disc && device_.mode() == DeviceMode::Playing) {
    on_.discLoad.deferredTable();
    on_.engine.adoptRunningDisc();
  }
  if (disc && leadingNumber(state_.process.commandWord) > 0) {
    playTrackOfCommandLine();
  } else if (state_.settings.appOptions[3] == 1) {
    on_.sounds.runMixerAtStart();
  }
  on_.clock.start();
  marker.stays();
}

void Faceplate::playTrackOfCommandLine() {
  const auto track = static_cast<int16_t>(leadingNumber(state_.process.commandWord));
  state_.process.commandWord.clear();
  state_.process.autoStartMode = kOff;
  if (track > state_.disc.trackCount) return;
  state_.disc.discSum = on_.layer.sumOfTracks();
  on_.discLoad.deferredTable();
  state_.transport.selTrack = static_cast<int16_t>(track - 1);
  on_.engine.jump();
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
  on_.volume.activate();
  on_.colours.loadorvanta1b();
  if (state_.disc.noDiscState == 0) return;
  on_.colours.disabledLook();
  on_.looks.show(DeckState::NoDisc);
}

void Faceplate::unload() {
  writeSettings(SettingsFile::SettingsDat, files_, state_.settings.appDir, state_.settings);
  state_.disc.trackTableDone = kOff;
  clearMarker(files_, state_.settings.appDir, kRunningMarker);
}

void Faceplate::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  if (control != nullptr && on_.volume.mouseDown(*control, mouse)) return;
  if (mouse.button != forms::MouseButton::Left) return;
  if (control == nullptr || control == &form_.Image8) {
    grip_ = mouse;
  } else {
    pressed(*control);
  }
}

void Faceplate::pressed(forms::Control& control) {
  const auto index = static_cast<size_t>(std::max(control.index(), 0));
  if (control.name() == "icntla") {
    keyTaken_ = on_.buttons.pressStarts(index);
    if (keyTaken_) on_.sounds.play(Sound::Click);
    return;
  }
  if (control.tabStop) on_.sounds.play(Sound::Click1);
  look_.down(control);
  if (control.name() == "scntla") on_.buttons.scntla_MouseDown(index);
}

/// The window is dragged only once the mouse moves, so that a click, or two, leaves it where it is.
void Faceplate::mouseMove(forms::Control* control, const forms::Mouse& mouse) {
  if (grip_ && std::max(std::abs(mouse.x - grip_->x), std::abs(mouse.y - grip_->y)) >= kDragStarts) {
    grip_.reset();
    if (form_.view() != nullptr) form_.view()->drag();
    return;
  }
  if (control != nullptr && form_.pressed() == control) on_.volume.mouseMove(*control, mouse);
}

void Faceplate::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  look_.up();
  grip_.reset();
  if (control == nullptr || on_.volume.mouseUp(*control)) return;
  if (!mouse.over) {
    letGo(*control);
  } else if (mouse.button == forms::MouseButton::Right) {
    rightReleased(*control);
  } else {
    released(control->name(), static_cast<size_t>(std::max(control->index(), 0)), mouse);
  }
}

/// Whoever thinks better of a press slides off the key: it comes back up and does nothing.
void Faceplate::letGo(const forms::Control& control) {
  const auto index = static_cast<size_t>(std::max(control.index(), 0));
  if (control.name() == "icntla") on_.buttons.faceUp(index);
  const bool scan = control.name() == "scntla" && (index == ScanBack || index == ScanForward);
  if (scan) on_.buttons.scntla_MouseUp(index);
  keyTaken_ = false;
}

/// The wheel moves a slider, and the place on the bar.
void Faceplate::wheel(forms::Control& control, int notches) {
  constexpr int kStep = 5;  // percent of the track
  if (on_.volume.step(control, notches) || &control != &form_.CDStatusBar) return;
  const int percent = form_.CDStatusBar.floodPercent + notches * kStep;
  if (percent > 0 && percent < 100) on_.buttons.CDStatusBar_Click(form_.CDStatusBar.width * percent / 100 + kBarMargin);
}

void Faceplate::textChanged(forms::Control& control) {
  if (&control == &form_.Label12) on_.layout.layTitles();
}

/// Arrows move the slider that has the focus. It is no key: Space and ENTER leave it where it stands.
bool Faceplate::sliderKey(const forms::KeyPress& key) {
  const bool press = key.code == forms::key::kSpace || key.code == forms::key::kEnter;
  if (press) return form_.activeControl() != nullptr && form_.activeControl()->with(forms::Role::Percent) != nullptr;
  const bool up = key.code == forms::key::kUp || key.code == forms::key::kRight;
  const bool down = key.code == forms::key::kDown || key.code == forms::key::kLeft;
  if (form_.activeControl() == nullptr || (!up && !down)) return false;
  return on_.volume.step(*form_.activeControl(), up ? 1 : -1);
}

bool Faceplate::panelReleased(const std::string& name, size_t index) {
  if (name == "Image2") {
    on_.volume.Image2_MouseUp(index);
  } else if (name == "Image9") {
    on_.volume.Image9_MouseUp(index);
  } else if (name == "PctL") {
    on_.volume.PctL_Click();
  } else if (name == "PctR") {
    on_.volume.PctR_Click();
  } else if (name == "Image19" || name == "Command3D16") {
    upward_.runMixer();
  } else if (name == "Image20") {
    on_.layout.Image20_MouseUp();
  } else if (name == "Image11") {
    on_.layout.Image11_Click();
  } else if (name == "Image13") {
    on_.layout.Image13_Click();
  } else {
    return false;
  }
  return true;
}

void Faceplate::released(const std::string& name, size_t index, const forms::Mouse& mouse) {
  if (panelReleased(name, index)) return;
  if (name == "icntla") {
    if (keyTaken_) on_.buttons.pressEnds(index);
    keyTaken_ = false;
  } else if (name == "scntla") {
    on_.buttons.scntla_MouseUp(index);
  } else if (name == "Image17") {
    on_.buttons.Image17_MouseUp(index);
  } else if (name == "Image16") {
    on_.buttons.Image16_MouseUp(index);
  } else if (name == "Image4") {
    on_.modes.Image4_MouseUp(index);
    // A person who picks Pgm wants to make a program.
    if (index == PgmKey && state_.disc.noDiscState == 0 && state_.disc.drawerOpen == kOff) upward_.showPlaylist();
  } else if (name == "Image10") {
    if (index == 1) upward_.showCdData();
    if (index == 2) upward_.showPlaylist();
  } else if (name == "Label6") {
    on_.modes.nextMode();
  } else if (name == "Label9") {
    on_.buttons.Label9_Click();
  } else if (name == "Label30") {
    on_.modes.Label30_Click();
  } else if (name == "Label14" || name == "Image12") {
    upward_.launchEnhancedDisc();
  } else if (name == "CDStatusBar") {
    on_.buttons.CDStatusBar_Click(mouse.x);
  } else if (name == "Panel3D2" && !discWanted()) {
    on_.engine.mmcontrol1_EjectClick();
  } else if (name == "Panel3D2" || name == "Panel3D7" || name == "Panel3D9" || name == "Panel3D10" || name == "Label12" ||
             name == "Label13") {
    // The prompt stands for the tray, which the small and the expanded faceplate do not show.
    if (discWanted()) askForDisc();
  } else if (name == "Image5" || name == "Image6") {
    upward_.exitProgram();
  }
}

void Faceplate::rightReleased(const forms::Control& control) {
  if (&control == &form_.SSPanel1) on_.volume.SSPanel1_RightClick();
  if (&control == &form_.Image16[Info]) upward_.closeTrackList();
  if (&control == &form_.Command3D16) on_.volume.Command3D16_RightClick();
  if (&control == &form_.Image10[2] && state_.program.pgmStored == kOn) on_.modes.Label30_Click();
}

void Faceplate::doubleClick(forms::Control* control) {
  if (control != nullptr && control != &form_.Image8) return;
  // The window has moved away under the hand: what is held of it is no drag.
  grip_.reset();
  on_.position.Form_DblClick();
}

void Faceplate::dragged() { on_.position.saveposn1(); }

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

bool Faceplate::discWanted() const { return state_.disc.drawerOpen == kOn || state_.disc.noDiscState > 0; }

bool Faceplate::takesFile(const std::string& path) const { return tray_.takesImages() && endsWithNoCase(path, ".cue"); }

void Faceplate::fileDropped(const std::string& path) { tray_.offer(path); }

bool Faceplate::keyDown(const forms::KeyPress& key) {
  // Held, the keys for the level go on; a toggle would flap.
  const bool level = key.code == forms::key::kF1 + 4 || key.code == forms::key::kF1 + 5;
  if (key.repeats && !level) return sliderKey(key);
  if (key.code == 'J' && discWanted() && !key.control && !key.alt) {
    askForDisc();
    return true;
  }
  return on_.buttons.keyDown(key) || sliderKey(key);
}

void Faceplate::closeAsked() { upward_.exitProgram(); }

}  // namespace orvanta
