// What happens each tenth of a second.
#include "playback/ticks.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/screen.h"
#include "playback/tracks.h"
#include "playback/upward.h"

namespace orvanta {

Ticks::Ticks(const PlaybackPorts& ports, DiscLoad& load, Engine& engine, Modes& modes, TrackTime& time, TrayAnswers& answers,
             Display& display, StatusBoard& status, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : clock_(ports.clock),
      screen_(ports.screen),
      load_(load),
      engine_(engine),
      modes_(modes),
      time_(time),
      answers_(answers),
      display_(display),
      status_(status),
      form_(form),
      state_(state),
      upward_(upward) {}

void Ticks::start() {
  timer2_ = clock_.makeTimer([this] { timer2_timer(); });
  timer2_->setInterval(kTimer2Interval);
  engine_.setTimer2(timer2_.get());
}

void Ticks::timer2_timer() {
  tick();
  status_.tell();
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
  quiet_ = engine_.heard() == DeckState::Playing || state_.transport.scanCount != 0 ? 0 : std::min(quiet_ + 1, kQuiet);
  if (quiet_ == kQuiet && timer2_->interval() == kTimer2Interval) timer2_->setInterval(kRestInterval);
}

void Ticks::tick() {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  answers_.take();
  if (disc.asleep()) return;
  if (transport.scanCount != 0) scanStep();
  engine_.dueStep();
  modes_.abTick();
  if (display_.number() < 1) display_.word("");
  if (transport.curTrack <= 0 && (transport.playingFlag || transport.pausedFlag)) {
    transport.playingFlag = transport.pausedFlag = false;
    display_.word("");
  }
  load_.deferredTable();
  load_.clearOnRequest();
  if (!state_.process.autoStartDone && state_.process.autoStartMode) {
    autoStart();
    return;
  }
  if (transport.curTrack > disc.trackCount) {
    engine_.pastTheEnd();
  } else {
    engine_.endActions();
    modes_.lampTick();
    if (disc.discStarted && state_.display.elapsedSec <= 2) startOfNewTrack();
  }
  engine_.followState();
}

void Ticks::autoStart() {
  ProcessState& process = state_.process;
  if (process.commandWord == "RUNRIPPER") {
    form_.minimised = false;
    screen_.setPointer(Pointer::Normal);
    process.autoStartDone = true;
    process.commandWord.clear();
    modes_.stopintro();
    upward_.record();
    return;
  }
  process.autoStartDone = true;
  if (state_.program.pgmStored) {
    modes_.Label30_Click();
    return;
  }
  state_.transport.curTrack = firstTrack(state_.disc);
  engine_.playKey();
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
    engine_.endScan();
    return;
  }
  engine_.seekFraction(state_.disc.trackLengths[static_cast<size_t>(track)], form_.CDStatusBar.width * percent / 100.0);
  time_.update();
  if (transport.curTrack != track || transport.trackGo == kTrackOver) engine_.endScan();
}

/// In the first two seconds of a track: the number, length and title follow.
void Ticks::startOfNewTrack() {
  TransportState& transport = state_.transport;
  // Stopped at the end of a track, a program or the disc: the display stays at 0.
  if (!transport.playingFlag && !transport.pausedFlag && display_.number() == 0) return;
  transport.curTrack = static_cast<int16_t>(std::max<int16_t>(transport.curTrack, 1) + state_.program.skipStep);
  state_.program.skipStep = false;
  // Right after a jump the display shows the target, until the device has followed.
  if (state_.display.holdTrackLabel) {
    state_.display.holdTrackLabel = false;
  } else {
    display_.track(transport.curTrack);
  }
  display_.dropLeftOver();
}

}  // namespace orvanta
