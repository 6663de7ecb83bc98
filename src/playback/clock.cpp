// Status event and tick. The end of a track is worked out of position, table of lengths and a margin, while
// the device plays on by itself.
#include "playback/clock.h"

#include <algorithm>

#include "base/text.h"
#include "base/times.h"
#include "playback/tracks.h"
#include "playback/upward.h"

namespace orvanta {

PlaybackClock::PlaybackClock(Ports& ports, DeviceLayer& layer, DiscLoad& load, Engine& engine, Modes& modes, Buttons& buttons,
                             Display& display, KeyLooks& looks, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : device_(ports.device),
      clock_(ports.clock),
      tray_(ports.tray),
      dialogs_(ports.dialogs),
      screen_(ports.screen),
      layer_(layer),
      load_(load),
      engine_(engine),
      modes_(modes),
      buttons_(buttons),
      display_(display),
      looks_(looks),
      form_(form),
      state_(state),
      upward_(upward) {
  device_.setEvents(this);
}

void PlaybackClock::start() {
  timer2_ = clock_.makeTimer([this] { timer2_timer(); });
  timer2_->setInterval(kTimer2Interval);
  engine_.setTimer2(timer2_.get());
  timer3_ = clock_.makeTimer([this] { timer3_timer(); });
  timer3_->setInterval(kTimer3Interval);
  refusalBox_ = clock_.makeTimer([this] { tellRefusal(); });
}

void PlaybackClock::statusUpdate() {
  if (state_.transport.scanCount != 0) return;
  const DeviceMode mode = device_.mode();
  if (mode == DeviceMode::Stopped) {
    display_.updateHeader(1, "Rewinding");
    if (state_.transport.playingFlag == kOn) ranOut();
  } else if (mode == DeviceMode::Playing) {
    state_.transport.deviceTrack = layer_.currentDeviceTrack();
    display_.updateHeader(state_.transport.deviceTrack, "Play");
    updateTrackTime(state_.transport.deviceTrack, layer_.currentTimeText());
  }
  display_.soundless(device_.soundless());
}

void PlaybackClock::playCompleted(int16_t error) { engine_.playCompleted(error); }

/// Stopped, and still marked as playing: the disc has run out under us.
void PlaybackClock::ranOut() {
  if (state_.transport.playMode != Cont) {
    state_.transport.trackGo = 0;
  } else if (state_.settings.repeatOn == kOn) {
    engine_.restart();
  } else {
    engine_.endOfDisc();
  }
}

void PlaybackClock::updateTrackTime(int16_t track, std::string_view timeText) {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  const DisplayState& display = state_.display;
  if (disc.discStarted == kOff) {
    disc.discStarted = kOn;
    transport.curTrack = firstTrack(disc);
    display_.track(transport.curTrack);
  }
  if (track > disc.trackCount) return;
  engine_.showPlace(track, timeText);
  if (track == 0) return;
  if (transport.playMode == Cont) {
    if (display.elapsedSec >= display.nearEndSec) engine_.advanceInCont();
  } else if (display.elapsedSec >= display.nearEndSec + 2 + disc.timeCorrection || track > transport.curTrack) {
    // With a large correction the device runs on into the next track first; that is the end as well.
    transport.trackGo = 0;
  }
}

void PlaybackClock::timer2_timer() {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  upward_.everyTick();
  answerOffer();
  if (disc.noDiscState > 0 || disc.drawerOpen == kOn) return;
  if (transport.scanCount != 0) scanStep();
  engine_.dueStep();
  modes_.abTick();
  if (display_.number() < 1) display_.word("");
  if (transport.curTrack <= 0 && (transport.playingFlag == kOn || transport.pausedFlag == kOn)) {
    transport.playingFlag = transport.pausedFlag = kOff;
    display_.word("");
  }
  load_.deferredTable();
  load_.clearOnRequest();
  if (state_.process.autoStartDone == kOff && state_.process.autoStartMode > 0) {
    autoStart();
    return;
  }
  if (transport.curTrack > disc.trackCount) {
    engine_.pastTheEnd();
  } else {
    engine_.endActions();
    modes_.lampTick();
    if (disc.discStarted == kOn && state_.display.elapsedSec <= 2) startOfNewTrack();
  }
  engine_.followState();
}

/// One step of a held scan key: the longer it is held, the wider. It ends at either end of the track, and
/// with the play.
void PlaybackClock::scanStep() {
  TransportState& transport = state_.transport;
  int16_t& count = transport.scanCount;
  count = static_cast<int16_t>(count > 0 ? count + 1 : count - 1);
  const int step = count > 0 ? (count < 8 ? 2 : count <= 12 ? 6 : 10) : (count >= -6 ? -4 : count >= -10 ? -8 : -12);
  const int percent = form_.CDStatusBar.floodPercent + step;
  const int16_t track = transport.curTrack;
  if (percent <= 0 || percent >= 100 || track < 1 || track > state_.disc.trackCount || transport.playingFlag != kOn) {
    engine_.endScan();
    return;
  }
  engine_.seekFraction(state_.disc.trackLengths[static_cast<size_t>(track)], form_.CDStatusBar.width * percent / 100.0);
  updateTrackTime(layer_.currentDeviceTrack(), layer_.currentTimeText());
  if (transport.curTrack != track || transport.trackGo == 0) engine_.endScan();
}

/// In the first two seconds of a track: the number, length and title follow.
void PlaybackClock::startOfNewTrack() {
  TransportState& transport = state_.transport;
  // Stopped at the end of a track, a program or the disc: the display stays at 0.
  if (transport.playingFlag == kOff && transport.pausedFlag == kOff && display_.number() == 0) return;
  transport.curTrack = static_cast<int16_t>(std::max<int16_t>(transport.curTrack, 1) + state_.program.skipStep);
  state_.program.skipStep = kOff;
  // Right after a jump the display shows the target, until the device has followed.
  if (state_.display.holdTrackLabel == kOn) {
    state_.display.holdTrackLabel = kOff;
  } else {
    display_.track(transport.curTrack);
  }
  display_.dropLeftOver();
}

}  // namespace orvanta
