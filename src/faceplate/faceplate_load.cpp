// From a window's data to a deck with its disc on the display.
#include "faceplate/faceplate_load.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/files.h"
#include "state/data_folder.h"
#include "state/settings_files.h"

namespace orvanta {

namespace {

/// Tells the sibling programs that a player runs. A load that ends the process, since another one holds the drive,
/// takes it away again.
class RunningMarker {
 public:
  explicit RunningMarker(const DataFolder& data) : data_(data) { data_.mark(DataFile::Running); }
  RunningMarker(const RunningMarker&) = delete;
  RunningMarker& operator=(const RunningMarker&) = delete;
  ~RunningMarker() {
    if (!stays_) data_.unmark(DataFile::Running);
  }
  void stays() { stays_ = true; }

 private:
  const DataFolder& data_;
  bool stays_ = false;
};

}  // namespace

FaceplateLoad::FaceplateLoad(const FaceplatePorts& ports, Playback& playback, DisplayColours& colours, Layout& layout, Volume& volume,
                             InterfaceSounds& sounds, CDForm& form, SharedState& state)
    : device_(ports.device),
      files_(ports.files),
      playback_(playback),
      colours_(colours),
      layout_(layout),
      volume_(volume),
      sounds_(sounds),
      form_(form),
      state_(state),
      mixerStart_(ports.clock.makeTimer([this] { startMixer(); })) {}

void FaceplateLoad::load() {
  if (state_.process.commandWord == "RUNRIPPER") form_.minimised = true;
  const DataFolder data(files_, state_.settings.appDir);
  RunningMarker marker(data);
  state_.clearForLoad();
  form_.firstStop = &form_.icntla[Play];
  // The title lines are laid out by what they hold.
  form_.Label12.tellsText = true;
  colours_.loadorvanta1();
  if (state_.process.colourCount < kFewColours) {
    form_.Panel3D2.backColor = form_.Panel3D3.backColor = 0x400000;
    form_.backColor = 0x400000;
  }
  layout_.apply();
  playback_.looks.reset();
  const bool disc = playback_.load.probe();
  setPlayState();
  colours_.loadorvanta1a();
  if (disc && device_.mode() == DeviceMode::Playing) {
    playback_.load.deferredTable();
    playback_.engine.adoptRunningDisc();
  }
  if (disc && leadingNumber(state_.process.commandWord) > 0) {
    playTrackOfCommandLine();
  } else if (state_.settings.appOptions[kMixerAtStart] == 1) {
    mixerStart_->setInterval(1);
  }
  playback_.start();
  marker.stays();
}

void FaceplateLoad::playTrackOfCommandLine() {
  const auto track = static_cast<int16_t>(leadingNumber(state_.process.commandWord));
  state_.process.commandWord.clear();
  state_.process.autoStartMode = false;
  if (track > state_.disc.trackCount) return;
  state_.disc.discSum = playback_.layer.sumOfTracks();
  playback_.load.deferredTable();
  state_.transport.selTrack = static_cast<int16_t>(track - 1);
  playback_.engine.jump();
}

void FaceplateLoad::startMixer() {
  mixerStart_->setInterval(0);
  sounds_.runMixerAtStart();
}

void FaceplateLoad::setPlayState() {
  state_.transport.playMode = Cont;
  state_.program.clearList();
  state_.transport.trackGo = kTrackRuns;
  state_.transport.curTrack = 1;
  state_.disc.discStarted = false;
  state_.disc.lampCount = std::min<int16_t>(state_.disc.trackCount, 20);
  state_.disc.discLoaded = state_.disc.trackCount > 0;
}

void FaceplateLoad::activate() {
  volume_.activate();
  colours_.loadorvanta1b();
  if (state_.disc.noDiscState == kDiscAtStart) return;
  colours_.disabledLook();
  playback_.looks.show(DeckState::NoDisc);
}

void FaceplateLoad::unload() {
  mixerStart_->setInterval(0);
  keepModes(files_, state_.settings);
  state_.disc.trackTableDone = false;
  DataFolder(files_, state_.settings.appDir).unmark(DataFile::Running);
}

}  // namespace orvanta
