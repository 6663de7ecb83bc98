// Status event, end of track, tick. A disc tells nobody that a track ends: the end is worked out
// of position, table of lengths and a margin, while the device plays on by itself.
#include "playback/clock.h"

#include <algorithm>

#include "base/text.h"
#include "base/times.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/screen.h"
#include "playback/upward.h"

namespace orvanta {

namespace {

constexpr const char* kNoSound = "No sound output";

}  // namespace

PlaybackClock::PlaybackClock(Ports& ports, DeviceLayer& layer, DiscLoad& load, Engine& engine, Modes& modes, Buttons& buttons,
                             TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward)
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
}

void PlaybackClock::statusUpdate() {
  if (state_.transport.scanCount != 0) return;
  const DeviceMode mode = device_.mode();
  if (mode == DeviceMode::Stopped) {
    display_.updateHeader(1, "Rewinding");
    device_.setFrom(1);
    // Still marked as playing: the disc has run out under us.
    if (state_.transport.playingFlag == kOn) {
      if (state_.transport.playMode != Cont) {
        state_.transport.trackGo = 0;
      } else if (state_.settings.repeatOn == kOn) {
        restart();
      } else {
        endOfDisc();
      }
    }
  } else if (mode == DeviceMode::Playing) {
    state_.transport.deviceTrack = layer_.currentDeviceTrack();
    display_.updateHeader(state_.transport.deviceTrack, "Play");
    updateTrackTime(state_.transport.deviceTrack, layer_.currentTimeText());
  }
  tellSoundless();
}

std::string PlaybackClock::titleLine() const {
  const auto track = static_cast<size_t>(std::clamp<int16_t>(state_.transport.curTrack, 0, 100));
  return device_.soundless() ? kNoSound : state_.disc.trackTitles[track];
}

/// Without sound the time runs and nothing is heard: the title's line says why, for as long as that lasts.
void PlaybackClock::tellSoundless() {
  if (device_.soundless() || form_.Label13.caption == kNoSound) form_.Label13.caption = titleLine();
}

void PlaybackClock::playCompleted(int16_t error) { engine_.playCompleted(error); }

void PlaybackClock::updateTrackTime(int16_t track, std::string_view timeText) {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  DisplayState& display = state_.display;
  if (disc.discStarted == kOff) {
    disc.discStarted = kOn;
    transport.curTrack = 1;
    form_.Label8.caption = "1";
  }
  if (track > disc.trackCount) return;
  display_.updateBar(disc.trackLengths[static_cast<size_t>(track)], timeText);
  if (track == 0) return;
  device_.setTrack(track);
  const auto current = static_cast<size_t>(std::clamp<int16_t>(transport.curTrack, 0, 101));
  display.elapsedSec = secondsOf(timeText);
  display.nearEndSec = static_cast<int16_t>(secondsOf(disc.trackLengths[current]) - 5);
  // The last lamp's track runs to one second before its end; on a disc of more tracks than lamps
  // that is track 20.
  if (transport.playMode == Cont && transport.curTrack == disc.lampCount) display.nearEndSec += 4;
  display_.updateTime(timeText);
  if (transport.playMode == Cont) {
    if (display.elapsedSec >= display.nearEndSec) advanceInCont();
  } else if (display.elapsedSec >= display.nearEndSec + 2 + disc.timeCorrection || track > transport.curTrack) {
    // With a large correction the device runs on into the next track first; that is the end as well.
    transport.trackGo = 0;
  }
}

void PlaybackClock::advanceInCont() {
  TransportState& transport = state_.transport;
  const bool repeat = state_.settings.repeatOn == kOn;
  if (transport.curTrack < 1) {
    restart();
    return;
  }
  if (transport.curTrack > state_.disc.trackCount) {
    if (repeat) {
      restart();
    } else {
      endOfDisc();
    }
    return;
  }
  // The device changes track only seconds from now, and nearEndSec is already the next track's:
  // without this pause one end would count twice.
  if (secondsBetween(transport.lastAdvanceTime, clock_.secondsToday()) < 8) return;
  if (repeat && transport.curTrack == state_.disc.lampCount) {
    restart();
    return;
  }
  if (state_.disc.timeCorrection != 0) clock_.delaySeconds(3);
  ++transport.curTrack;
  transport.lastAdvanceTime = clock_.secondsToday();
}

void PlaybackClock::restart() {
  state_.transport.curTrack = 1;
  device_.command("Pause");
  device_.setTo(1);
  device_.command("Seek");
  device_.setTrack(1);
  form_.Label8.caption = "1";
  device_.setUpdateInterval(1000);
  engine_.startOfTrack();
  device_.setFrom(1);
  device_.command("Play");
  display_.lamps(state_.disc.lampCount, kLcdLit);
}

void PlaybackClock::endOfDisc() {
  TransportState& transport = state_.transport;
  transport.playEnded = kOn;
  display_.lamps(state_.disc.lampCount, kLcdLit);
  device_.command("Stop");
  if (form_.icntlc[Play].visible) engine_.stoppedLook();
  transport.playingFlag = kOff;
  transport.pausedFlag = kOff;
  display_.clearTime("");
  form_.Label13.caption = "";
  form_.Label8.caption = "0";
  transport.curTrack = 0;
}

void PlaybackClock::timer2_timer() {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  answerOffer();
  if (disc.noDiscState > 0 || disc.drawerOpen == kOn) return;
  if (transport.scanCount != 0) scanStep();
  modes_.abTick();
  if (leadingNumber(form_.Label8.caption.get()) < 1) form_.Label13.caption = "";
  if (transport.curTrack <= 0 && (transport.playingFlag == kOn || transport.pausedFlag == kOn)) {
    transport.playingFlag = transport.pausedFlag = kOff;
    form_.Label13.caption = "";
  }
  load_.deferredTable();
  load_.clearOnRequest();
  if (state_.process.autoStartDone == kOff && state_.process.autoStartMode > 0) {
    autoStart();
    return;
  }
  if (transport.curTrack > disc.trackCount) {
    pastTheEnd();
    return;
  }
  endActions();
  modes_.lampTick();
  if (disc.discStarted == kOff || state_.display.elapsedSec > 2) return;
  startOfNewTrack();
}

/// One step of a held scan key: the longer it is held, the wider. At either end of the track it stops.
void PlaybackClock::scanStep() {
  TransportState& transport = state_.transport;
  int16_t& count = transport.scanCount;
  count = static_cast<int16_t>(count > 0 ? count + 1 : count - 1);
  const int step = count > 0 ? (count < 8 ? 2 : count <= 12 ? 6 : 10) : (count >= -6 ? -4 : count >= -10 ? -8 : -12);
  const int percent = form_.CDStatusBar.floodPercent + step;
  if (percent <= 0 || percent >= 100 || transport.curTrack < 1 || transport.curTrack > 100) {
    count = 0;
    return;
  }
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  engine_.seekFraction(state_.disc.trackLengths[static_cast<size_t>(transport.curTrack)], form_.CDStatusBar.width * percent / 100.0);
  updateTrackTime(layer_.currentDeviceTrack(), layer_.currentTimeText());
}

/// What follows the end of a track, by mode.
void PlaybackClock::endActions() {
  TransportState& transport = state_.transport;
  const bool repeat = state_.settings.repeatOn == kOn;
  const bool again = repeat && transport.trackGo != 1 && transport.playMode != Pgm;
  if (again && transport.playMode == One && transport.playingFlag != kOn) {
    transport.trackGo = 1;
  } else if (again) {
    device_.command("Stop");
    if (transport.playMode == Cont) transport.curTrack = 1;
    engine_.startOfTrack();
    device_.setUpdateInterval(1000);
    device_.setFrom(static_cast<uint32_t>(transport.curTrack));
    device_.command("Play");
  } else if (transport.playMode == One && !repeat && transport.trackGo == 0) {
    stoppedInOne();
  } else if (transport.playMode == Pgm && transport.trackGo == 0) {
    engine_.MMControl1_PlayClick();
  }
}

void PlaybackClock::stoppedInOne() {
  device_.command("Stop");
  state_.transport.playingFlag = state_.transport.pausedFlag = kOff;
  state_.display.lastShownSec = 0;
  display_.showTrack(0);
  display_.clearTime("00:00");
  engine_.stoppedLook();
  state_.transport.trackGo = 1;
}

/// The last track has been counted, and the device is in its last second.
void PlaybackClock::pastTheEnd() {
  display_.showTrack(0);
  display_.clearTime("");
  form_.Label13.caption = "";
  if (form_.icntlc[Play].visible) engine_.stoppedLook();
}

/// In the first two seconds of a track: the number, length and title follow.
void PlaybackClock::startOfNewTrack() {
  TransportState& transport = state_.transport;
  // Stopped at the end of a track, a program or the disc: the display stays at 0.
  if (transport.playingFlag == kOff && transport.pausedFlag == kOff && form_.Label8.caption == "0") return;
  transport.curTrack = static_cast<int16_t>(std::max<int16_t>(transport.curTrack, 1) + state_.program.skipStep);
  state_.program.skipStep = kOff;
  // Right after a jump the label shows the target, until the device has followed.
  if (state_.display.holdTrackLabel == kOn) {
    state_.display.holdTrackLabel = kOff;
  } else {
    display_.showTrack(transport.curTrack);
  }
  const std::string& time = form_.Label10.caption;
  // Left over from the track before, which the display went on counting.
  if (state_.settings.timeMode == Time && leadingNumber(time.substr(0, 1)) > 0 && time != "0:00") display_.clearTime("0:00");
  form_.Label13.caption = titleLine();
}

}  // namespace orvanta
