// Next, previous, and the step through a program.
#include <algorithm>

#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "playback/engine.h"
#include "playback/tracks.h"

namespace orvanta {

namespace {

constexpr int16_t kStepAtOnce = 98;
constexpr int16_t kStepFromPopup = 99;

}  // namespace

bool Engine::canStep(int16_t track) const { return state_.disc.discStarted && isAudio(state_.disc, track); }

void Engine::previousKey() {
  const bool program = state_.transport.playMode == Pgm;
  // What a program has played is used up: without Repeat there is no way back.
  if (program ? state_.settings.repeatOn != kOn : !canStep(audioBefore(state_.disc, state_.transport.curTrack))) return;
  display_.clearTime("");
  MMControl1_PrevClick();
  showState();
  glow(Previous);
}

void Engine::nextKey() {
  if (state_.transport.playMode != Pgm && !canStep(audioFrom(state_.disc, state_.transport.curTrack + 1))) return;
  display_.clearTime("");
  device_.command("Stop");
  int16_t value = kStepAtOnce;
  MMControl1_NextClick(value);
  showState();
  glow(Next);
}

/// At the last track, and after an end until play is pressed, there is no next one; a pause stays what it was then.
void Engine::nextFromAnywhere() {
  if (heard() == DeckState::Playing) {
    nextKey();
    return;
  }
  TransportState& transport = state_.transport;
  const int16_t next = audioFrom(state_.disc, transport.curTrack + 1);
  if (transport.playEnded || (transport.playMode != Pgm && !canStep(next))) return;
  if (transport.playMode != Pgm) transport.curTrack = next;
  transport.pausePosition = 0;
  display_.clearTime("");
  display_.repeat();
  MMControl1_PlayClick();
  showState();
  glow(Next);
}

void Engine::MMControl1_NextClick(int16_t& value) {
  TransportState& transport = state_.transport;
  transport.pausedFlag = false;
  display_.repeat();
  if (transport.playMode == Pgm) {
    transport.pausePosition = 0;
    if (transport.playEnded) return;
    const bool atOnce = value == kStepAtOnce || (value == kStepFromPopup && state_.display.popupOpen);
    state_.program.skipStep = !atOnce;
    value = 0;
    MMControl1_PlayClick();
    return;
  }
  const int16_t next = audioFrom(state_.disc, transport.curTrack + 1);
  if (!canStep(next)) return;
  transport.pausePosition = 0;
  if (transport.playingFlag) {
    transport.curTrack = next;
    MMControl1_PlayClick();
    return;
  }
  // From stopped: play starts a track lower, and the higher number shows.
  transport.curTrack = std::max<int16_t>(static_cast<int16_t>(next - 1), 2);
  MMControl1_PlayClick();
  transport.curTrack = std::min(audioFrom(state_.disc, transport.curTrack + 1), state_.disc.trackCount);
  display_.track(transport.curTrack);
}

void Engine::MMControl1_PrevClick() {
  TransportState& transport = state_.transport;
  const bool program = transport.playMode == Pgm;
  const int16_t previous = audioBefore(state_.disc, transport.curTrack);
  if (program ? state_.settings.repeatOn != kOn : !canStep(previous)) return;
  transport.pausePosition = 0;
  transport.pausedFlag = false;
  transport.playingFlag = true;
  display_.repeat();
  if (program) {
    state_.program.pgmIndex = static_cast<int16_t>(state_.program.pgmIndex - 2);
    MMControl1_PlayClick();
    return;
  }
  display_.showTimeModeLabel();
  transport.curTrack = previous;
  display_.track(previous);
  startOfTrack();
  device_.command("Pause");
  device_.setTo(static_cast<uint32_t>(previous));
  device_.command("Seek");
  device_.setTrack(previous);
  device_.command("Play");
}

// ---- program

void Engine::programStep() {
  ProgramState& program = state_.program;
  const auto entryAt = [&](int index) -> int16_t& { return program.pgmList[static_cast<size_t>(std::clamp(index, 0, 101))]; };
  program.pgmIndex = std::clamp<int16_t>(program.pgmIndex, 0, 100);
  const int16_t played = entryAt(program.pgmIndex);
  if (state_.settings.repeatOn != kOn && played >= 1) {
    if (played < 21) display_.lamp(played, kLcdDim);
    entryAt(program.pgmIndex) = 0;
    if (entryAt(program.pgmIndex + 1) == 0) {
      programEnd();
      return;
    }
  }
  ++program.pgmIndex;
  if (entryAt(program.pgmIndex) == 0) program.pgmIndex = 1;
  programEntry(entryAt(program.pgmIndex));
}

void Engine::programEntry(int16_t entry) {
  TransportState& transport = state_.transport;
  ProgramState& program = state_.program;
  if (entry == 0) {
    emptyProgram();
    return;
  }
  if (entry == 1 && program.skipStep) {
    transport.curTrack = 0;
    program.skipStep = false;
    display_.track(1);
    --program.pgmIndex;
    device_.command("Stop");
    device_.command("Play");
    transport.trackGo = kTrackRuns;
    return;
  }
  const auto track = static_cast<int16_t>(entry - program.skipStep);
  if (track < 1) {
    programEnd();
    return;
  }
  transport.curTrack = track;
  display_.track(entry);
  display_.clearTime("");
  device_.command("Stop");
  playCurrent();
}

/// Nothing in the program: the disc plays as it stands, or plays on.
void Engine::emptyProgram() {
  state_.transport.playMode = Cont;
  display_.playMode("Cont");
  looks_.lightMode(ContKey);
  state_.program.skipStep = false;
  if (device_.mode() == DeviceMode::Playing) {
    // With a correction the device may be in the next track already.
    state_.transport.curTrack = static_cast<int16_t>(unpackTmsf(device_.position()).track);
    display_.track(state_.transport.curTrack);
    state_.transport.trackGo = kTrackRuns;
  } else {
    playCurrent();
  }
}

void Engine::programEnd() {
  TransportState& transport = state_.transport;
  ProgramState& program = state_.program;
  if (state_.settings.repeatOn != kOn) program.clearList();
  fallSilent();
  display_.clearBar();
  transport.playMode = Cont;
  display_.playMode("Cont");
  looks_.greyChance(program.pgmStored);
  looks_.lightMode(ContKey);
  transport.trackGo = kTrackRuns;
  transport.curTrack = 0;
  display_.track(0);
  if (program.skipStep) {
    program.skipStep = false;
    return;
  }
  transport.playEnded = true;
  display_.lamps(state_.disc.lampCount, kLcdDim);
  setTimer2Interval(0);
}

}  // namespace orvanta
