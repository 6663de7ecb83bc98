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

PlaybackClock::PlaybackClock(Ports& ports, DeviceLayer& layer, DiscLoad& load, Engine& engine, Buttons& buttons, TimeDisplay& display,
                             CDForm& form, SharedState& state, PlaybackUpward& upward)
    : device_(ports.device),
      clock_(ports.clock),
      tray_(ports.tray),
      dialogs_(ports.dialogs),
      screen_(ports.screen),
      layer_(layer),
      load_(load),
      engine_(engine),
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
    if (state_.transport.playingFlag == kOn && state_.transport.playMode == Cont) {
      if (state_.settings.repeatOn == kOn) {
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
  if (transport.playMode == Cont && display.elapsedSec >= display.nearEndSec) advanceInCont();
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
  for (size_t lamp = 0; lamp < static_cast<size_t>(state_.disc.lampCount); ++lamp) {
    form_.Label22[lamp].foreColor = state_.settings.lcdColor[kLcdLit];
  }
}

void PlaybackClock::endOfDisc() {
  TransportState& transport = state_.transport;
  transport.playEnded = kOn;
  for (size_t lamp = 0; lamp < static_cast<size_t>(state_.disc.lampCount); ++lamp) {
    form_.Label22[lamp].foreColor = state_.settings.lcdColor[kLcdLit];
  }
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
  if (transport.playMode == Cont) lampsInCont();
  if (disc.discStarted == kOff || state_.display.elapsedSec > 2) return;
  startOfNewTrack();
}

/// The last track has been counted, and the device is in its last second.
void PlaybackClock::pastTheEnd() {
  display_.showTrack(0);
  display_.clearTime("");
  form_.Label13.caption = "";
  if (form_.icntlc[Play].visible) engine_.stoppedLook();
}

/// The calendar shows what is still to come; a disc just read, or one that repeats, is lit whole.
void PlaybackClock::lampsInCont() {
  const auto& colour = state_.settings.lcdColor;
  const bool whole = state_.disc.discStarted == kOff || state_.settings.repeatOn == kOn;
  const int shown = whole ? 1 : std::max(1, static_cast<int>(leadingNumber(form_.Label8.caption.get())));
  for (int lamp = 1; lamp <= 20; ++lamp) {
    if (shown > 20 || lamp < shown) {
      form_.Label22[static_cast<size_t>(lamp - 1)].foreColor = colour[kLcdDim];
    } else if (lamp <= state_.disc.lampCount) {
      form_.Label22[static_cast<size_t>(lamp - 1)].foreColor = colour[kLcdLitInCont];
    }
  }
}

/// In the first two seconds of a track: the number, length and title follow.
void PlaybackClock::startOfNewTrack() {
  TransportState& transport = state_.transport;
  if (transport.playEnded == kOn) return;
  transport.curTrack = std::max<int16_t>(transport.curTrack, 1);
  // Right after a jump the label shows the target, until the device has followed.
  if (state_.display.holdTrackLabel == kOn) {
    state_.display.holdTrackLabel = kOff;
  } else {
    display_.showTrack(transport.curTrack);
  }
  const std::string& time = form_.Label10.caption;
  // Left over from the track before, which the display went on counting.
  if (state_.settings.timeMode == Time && leadingNumber(time.substr(0, 1)) > 0 && time != "0:00") display_.clearTime("0:00");
  form_.Label13.caption = state_.disc.trackTitles[static_cast<size_t>(transport.curTrack)];
}

}  // namespace orvanta
