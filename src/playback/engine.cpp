// The transport's procedures.
#include "playback/engine.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "platform/ports/screen.h"
#include "playback/tracks.h"
#include "playback/upward.h"

namespace orvanta {

Engine::Engine(const PlaybackPorts& ports, DeviceLayer& layer, Display& display, KeyLooks& looks, CDForm& form, SharedState& state,
               PlaybackUpward& upward)
    : device_(ports.device),
      clock_(ports.clock),
      data_(ports.files, state.settings.appDir),
      screen_(ports.screen),
      layer_(layer),
      display_(display),
      looks_(looks),
      form_(form),
      state_(state),
      upward_(upward) {}

void Engine::setTimer2Interval(int milliseconds) {
  if (timer2_ != nullptr) timer2_->setInterval(milliseconds);
}

DeckState Engine::heard() const {
  switch (device_.mode()) {
    case DeviceMode::Playing: return DeckState::Playing;
    case DeviceMode::Paused: return DeckState::Paused;
    default: return DeckState::Stopped;
  }
}

void Engine::showState() {
  if (!asleep()) looks_.show(heard());
}

void Engine::followState() {
  if (!asleep()) looks_.follow(heard());
}

void Engine::glow(TransportKey key) {
  if (!asleep()) looks_.flash(key);
}

void Engine::startOfTrack() {
  state_.display.lastShownTrack = 0;
  state_.display.lastShownSec = 0;
  state_.transport.trackGo = kTrackRuns;
  forgetAdvance();
}

std::string_view Engine::lengthOf(int track) const {
  const auto& lengths = state_.disc.trackLengths;
  return track >= 0 && static_cast<size_t>(track) < lengths.size() ? std::string_view(lengths[static_cast<size_t>(track)])
                                                                   : std::string_view();
}

// ---- play, pause, stop

void Engine::MMControl1_PlayClick() {
  TransportState& transport = state_.transport;
  transport.pausedFlag = false;
  transport.playingFlag = true;
  if (transport.pausePosition > 0) {
    resume();
    return;
  }
  forgetAdvance();
  transport.curTrack = playable(state_.disc, transport.curTrack);
  state_.disc.discStarted = true;
  display_.track(transport.curTrack);
  setTimer2Interval(100);
  transport.playEnded = false;
  display_.showTimeModeLabel();
  if (transport.playMode == Pgm) {
    programStep();
  } else {
    playCurrent();
  }
}

/// Where the track was counted already and the device is still in the one before, the end that is heard yet
/// is the one that was counted, however long the pause was.
void Engine::resume() {
  if (static_cast<int16_t>(unpackTmsf(device_.position()).track) < state_.transport.curTrack) {
    state_.transport.lastAdvanceTime = clock_.secondsToday();
  }
  display_.repeat();
  device_.command("Resume");
  state_.transport.pausePosition = 0;
  // For a drive that takes a pause for a stop.
  device_.command("Play");
}

/// `From` holds for the next play alone, so the two are never apart.
void Engine::playCurrent() {
  device_.setUpdateInterval(1000);
  startOfTrack();
  device_.setFrom(static_cast<uint32_t>(state_.transport.curTrack));
  device_.command("Play");
}

void Engine::MMControl1_PauseClick() {
  TransportState& transport = state_.transport;
  endScan();
  dropStep();
  transport.pausedFlag = true;
  transport.playingFlag = false;
  transport.pausePosition = static_cast<int32_t>(device_.position());
  display_.pause();
}

void Engine::MMControl1_StopClick() {
  TransportState& transport = state_.transport;
  endScan();
  clrab();
  forgetAdvance();
  transport.playingFlag = transport.pausedFlag = false;
  transport.pausePosition = 0;
  state_.display.lastShownSec = 0;
  display_.repeat();
  display_.clearTime("00:00");
}

void Engine::playKey() {
  MMControl1_PlayClick();
  showState();
}

void Engine::pauseKey() {
  MMControl1_PauseClick();
  device_.command("Pause");
  showState();
}

void Engine::stopKey() {
  MMControl1_StopClick();
  device_.command("Stop");
  showState();
  glow(Stop);
}

void Engine::adoptRunningDisc() {
  TransportState& transport = state_.transport;
  transport.curTrack = static_cast<int16_t>(unpackTmsf(device_.position()).track);
  state_.disc.discStarted = transport.playingFlag = true;
  transport.pausedFlag = false;
  display_.track(transport.curTrack);
  display_.showTimeModeLabel();
  device_.setUpdateInterval(1000);
  startOfTrack();
  showState();
}

// ---- places

void Engine::showPlace(int16_t track, std::string_view timeText) {
  const TransportState& transport = state_.transport;
  DisplayState& display = state_.display;
  display_.updateBar(lengthOf(track), timeText);
  if (track == 0) return;
  device_.setTrack(track);
  display.elapsedSec = secondsOf(timeText);
  display.nearEndSec = static_cast<int16_t>(secondsOf(lengthOf(transport.curTrack)) - 5);
  // The last lamp's track runs to one second before its end; on a disc of more tracks than lamps
  // that is not the last track.
  if (transport.playMode == Cont && transport.curTrack == lastLampTrack(state_.disc)) display.nearEndSec += 4;
  display_.updateTime(track, timeText);
}

void Engine::showPlace() { showPlace(layer_.currentDeviceTrack(), layer_.currentTimeText()); }

void Engine::jump() {
  TransportState& transport = state_.transport;
  if (transport.playMode == Pgm) return;
  // A number key of a track of data plays what follows it.
  const int16_t target = audioFrom(state_.disc, transport.selTrack + 1);
  if (target > state_.disc.trackCount) return;
  state_.display.holdTrackLabel = true;
  transport.pausedFlag = false;
  transport.playingFlag = true;
  transport.pausePosition = 0;
  transport.playEnded = false;
  transport.curTrack = target;
  state_.disc.discStarted = true;
  display_.repeat();
  display_.showTimeModeLabel();
  display_.clearTime("00:00");
  clrpgm();
  state_.program.pgmIndex = 0;
  for (int lamp = 1; transport.playMode == Cont && lamp <= state_.disc.lampCount; ++lamp) {
    display_.lamp(lamp, lamp < target ? kLcdDim : kLcdLit);
  }
  setTimer2Interval(100);
  seekFraction(lengthOf(target), 0);
  device_.command("Pause");
  device_.setTo(static_cast<uint32_t>(target));
  device_.command("Seek");
  device_.setTrack(target);
  playCurrent();
  showState();
}

/// The display goes to the place at once: the device's next report may be a second away.
void Engine::seekFraction(std::string_view length, double x) {
  const double fraction = x / std::max<int>(form_.CDStatusBar.width, 1);
  const int seconds = static_cast<int>(std::nearbyint(secondsOf(length) * fraction));
  forgetAdvance();
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  device_.command("PAUSE");
  device_.setTo(packSeekTarget(state_.transport.curTrack, seconds));
  device_.command("SEEK");
  device_.command("PLAY");
  display_.track(state_.transport.curTrack);
  showPlace();
}

/// The loop of A-B comes this way too, with its own places; the offset shifts its return a little.
void Engine::CDStatusBar_Click(double x) {
  const int16_t track = state_.transport.curTrack;
  if (!state_.transport.playingFlag || state_.disc.drawerOpen || track < 1 || track > state_.disc.trackCount) return;
  seekFraction(lengthOf(track), std::abs(x - kBarMargin));
  followState();
}

int Engine::landing(int16_t track, double x) const {
  const int length = secondsOf(lengthOf(track));
  const double fraction = std::abs(x - kBarMargin) / std::max<int>(form_.CDStatusBar.width, 1);
  return Display::percentOf(static_cast<int>(std::nearbyint(length * fraction)), length);
}

void Engine::clrpgm() {
  state_.program.clearList();
  display_.lamps(state_.disc.lampCount, kLcdDim);
}

void Engine::clrab() {
  TransportState& transport = state_.transport;
  if (!transport.abSetA && !transport.abSetB) return;
  transport.abSetA = transport.abSetB = false;
  transport.abTrack = 0;
  display_.ab(state_.settings.lcdColor[kLcdLabelOff]);
  looks_.abLegend(colours::kBlack);
}

// ---- eject

void Engine::mmcontrol1_EjectClick() {
  TransportState& transport = state_.transport;
  state_.disc.discLoaded = true;
  data_.unmark(DataFile::Running);
  clrab();
  endScan();
  forgetAdvance();
  screen_.setPointer(Pointer::Hourglass);
  state_.disc.drawerOpen = true;
  if (transport.introTrack > 0) {
    transport.introTrack = 0;
    transport.introStart = 0;
    display_.playMode("Cont");
    display_.program(state_.program.pgmStored);
    looks_.lightMode(ContKey);
  }
  display_.doorOpen();
  state_.volume.leftAttenPrev = state_.volume.leftAtten;
  state_.volume.rightAttenPrev = state_.volume.rightAtten;
  transport.playingFlag = transport.pausedFlag = false;
  transport.pausePosition = 0;
  display_.track(0);
  display_.clearTime("00:00");
  state_.disc.trackCount = 0;
  device_.command("stop");
  display_.clearTexts();
  upward_.openDrawer();
  device_.command("Eject");
  device_.command("Close");
  form_.SSPanel3.backColor = colours::kYellow;
  screen_.setPointer(Pointer::Normal);
}

}  // namespace orvanta
