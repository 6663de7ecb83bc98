// The ends of tracks, programs and discs. A disc tells nobody that a track ends: the clock works it out,
// and these say what follows.
#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "playback/engine.h"
#include "playback/tracks.h"

namespace orvanta {

namespace {

/// Seconds within which one track's end is not counted twice.
constexpr double kOneEnd = 8;
constexpr int64_t kCorrectionStep = 3000;  ///< milliseconds from the end found to the step

}  // namespace

void Engine::settle() {
  if (asleep()) return;
  if (state_.transport.curTrack <= state_.disc.trackCount) {
    endActions();
  } else if (state_.settings.repeatOn == kOn) {
    restart();
  } else {
    endOfDisc();
  }
}

void Engine::endActions() {
  TransportState& transport = state_.transport;
  const bool repeat = state_.settings.repeatOn == kOn;
  const bool again = repeat && transport.trackGo != kTrackRuns && transport.playMode != Pgm;
  if (again && !transport.playingFlag) {
    transport.trackGo = kTrackRuns;
  } else if (again) {
    device_.command("Stop");
    if (transport.playMode == Cont) transport.curTrack = firstTrack(state_.disc);
    display_.track(transport.curTrack);
    playCurrent();
    showState();
  } else if (transport.playMode == One && !repeat && transport.trackGo == kTrackOver) {
    fallSilent();
    display_.clearTime("00:00");
    state_.display.lastShownSec = 0;
    display_.track(0);
    transport.trackGo = kTrackRuns;
    showState();
  } else if (transport.playMode == Pgm && transport.trackGo == kTrackOver) {
    MMControl1_PlayClick();
    showState();
  }
}

void Engine::restart() {
  state_.transport.curTrack = firstTrack(state_.disc);
  const auto first = static_cast<uint32_t>(state_.transport.curTrack);
  endScan();
  device_.command("Pause");
  device_.setTo(first);
  device_.command("Seek");
  device_.setTrack(state_.transport.curTrack);
  display_.track(state_.transport.curTrack);
  playCurrent();
  display_.lamps(state_.disc.lampCount, kLcdLit);
  showState();
}

void Engine::endOfDisc() {
  state_.transport.playEnded = true;
  display_.lamps(state_.disc.lampCount, kLcdLit);
  fallSilent();
  display_.clearTime("");
  display_.track(0);
  state_.transport.curTrack = 0;
  showState();
}

void Engine::pastTheEnd() {
  display_.track(0);
  display_.clearTime("");
}

/// What every end has in common: nothing plays, and nothing that belonged to the play is left.
void Engine::fallSilent() {
  TransportState& transport = state_.transport;
  device_.command("Stop");
  transport.playingFlag = transport.pausedFlag = false;
  transport.pausePosition = 0;
  endScan();
  clrab();
  forgetAdvance();
}

void Engine::endScan() {
  state_.transport.scanCount = 0;
  looks_.darkenScan();
}

void Engine::forgetAdvance() {
  state_.transport.lastAdvanceTime = 0;
  dropStep();
}

void Engine::dropStep() { state_.transport.advanceDue = 0; }

void Engine::advanceInCont() {
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
  const double last = transport.lastAdvanceTime;
  if (transport.advanceDue > 0 || (last > 0 && secondsBetween(last, clock_.secondsToday()) < kOneEnd)) return;
  if (repeat && transport.curTrack == lastLampTrack(state_.disc)) {
    restart();
    return;
  }
  transport.advanceDue = clock_.milliseconds() + (state_.disc.timeCorrection != 0 ? kCorrectionStep : 0);
  dueStep();
}

void Engine::dueStep() {
  TransportState& transport = state_.transport;
  if (transport.advanceDue == 0 || clock_.milliseconds() < transport.advanceDue) return;
  transport.advanceDue = 0;
  transport.curTrack = audioFrom(state_.disc, transport.curTrack + 1);
  transport.lastAdvanceTime = clock_.secondsToday();
}

}  // namespace orvanta
