// What happens each tenth of a second.
#include "playback/ticks.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/screen.h"
#include "playback/tracks.h"
#include "playback/upward.h"

namespace orvanta {

Ticks::Ticks(const PlaybackPorts& ports, const TickParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : clock_(ports.clock), screen_(ports.screen), on_(parts), form_(form), state_(state), upward_(upward) {}

void Ticks::start() {
  timer2_ = clock_.makeTimer([this] { timer2_timer(); });
  timer2_->setInterval(kTimer2Interval);
  on_.engine.setTimer2(timer2_.get());
}

void Ticks::timer2_timer() {
  tick();
  on_.status.tell();
  upward_.afterTick();
  restIfQuiet();
}

void Ticks::wake() {
  quiet_ = 0;
  if (timer2_ != nullptr && timer2_->interval() == kRestInterval) timer2_->setInterval(kTimer2Interval);
}

/// A deck that makes no sound has little to look at: waking for it is all that it costs then. A timer that is off stays so.
void Ticks::restIfQuiet() {
  constexpr int kQuiet = 30;
  quiet_ = on_.engine.heard() == DeckState::Playing || state_.transport.scanCount != 0 ? 0 : std::min(quiet_ + 1, kQuiet);
  if (quiet_ == kQuiet && timer2_->interval() == kTimer2Interval) timer2_->setInterval(kRestInterval);
}

void Ticks::tick() {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  on_.answers.take();
  if (disc.asleep()) return;
  if (transport.scanCount != 0) scanStep();
  on_.engine.dueStep();
  on_.modes.abTick();
  if (on_.display.number() < 1) on_.display.word("");
  if (transport.curTrack <= 0 && (transport.playingFlag || transport.pausedFlag)) {
    transport.playingFlag = transport.pausedFlag = false;
    on_.display.word("");
  }
  on_.load.deferredTable();
  on_.load.clearOnRequest();
  if (!state_.process.autoStartDone && state_.process.autoStartMode) {
    autoStart();
    return;
  }
  if (transport.curTrack > disc.trackCount) {
    on_.engine.pastTheEnd();
  } else {
    on_.engine.endActions();
    on_.modes.lampTick();
    if (disc.discStarted && state_.display.elapsedSec <= 2) startOfNewTrack();
  }
  on_.engine.followState();
}

void Ticks::autoStart() {
  ProcessState& process = state_.process;
  if (process.commandWord == "RUNRIPPER") {
    form_.minimised = false;
    screen_.setPointer(Pointer::Normal);
    process.autoStartDone = true;
    process.commandWord.clear();
    on_.modes.stopintro();
    upward_.record();
    return;
  }
  process.autoStartDone = true;
  if (state_.program.pgmStored) {
    on_.modes.Label30_Click();
    return;
  }
  state_.transport.curTrack = firstTrack(state_.disc);
  on_.engine.playKey();
  if (process.commandWord == "ORVLITE") {
    form_.minimised = true;
    screen_.setPointer(Pointer::Normal);
    process.commandWord.clear();
  }
}

/// One step of a held scan key: the longer it is held, the wider. It ends at either end of the track, and
/// with the play.
void Ticks::scanStep() {
  TransportState& transport = state_.transport;
  int16_t& count = transport.scanCount;
  count = static_cast<int16_t>(count > 0 ? count + 1 : count - 1);
  const int step = count > 0 ? (count < 8 ? 2 : count <= 12 ? 6 : 10) : (count >= -6 ? -4 : count >= -10 ? -8 : -12);
  const int percent = form_.CDStatusBar.floodPercent + step;
  const int16_t track = transport.curTrack;
  if (percent <= 0 || percent >= 100 || track < 1 || track > state_.disc.trackCount || !transport.playingFlag) {
    on_.engine.endScan();
    return;
  }
  on_.engine.seekFraction(state_.disc.trackLengths[static_cast<size_t>(track)], form_.CDStatusBar.width * percent / 100.0);
  on_.time.update();
  if (transport.curTrack != track || transport.trackGo == kTrackOver) on_.engine.endScan();
}

/// In the first two seconds of a track: the number, length and title follow.
void Ticks::startOfNewTrack() {
  TransportState& transport = state_.transport;
  // Stopped at the end of a track, a program or the disc: the display stays at 0.
  if (!transport.playingFlag && !transport.pausedFlag && on_.display.number() == 0) return;
  transport.curTrack = static_cast<int16_t>(std::max<int16_t>(transport.curTrack, 1) + state_.program.skipStep);
  state_.program.skipStep = false;
  // Right after a jump the display shows the target, until the device has followed.
  if (state_.display.holdTrackLabel) {
    state_.display.holdTrackLabel = false;
  } else {
    on_.display.track(transport.curTrack);
  }
  on_.display.dropLeftOver();
}

}  // namespace orvanta
