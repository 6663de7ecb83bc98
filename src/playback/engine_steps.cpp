// Next, previous, and the step through a program.
#include <algorithm>

#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "playback/engine.h"

namespace orvanta {

namespace {

constexpr double kKeyPause = 0.3;  ///< seconds a step key holds things up: the drive follows at its own pace
constexpr int16_t kStepAtOnce = 98;
constexpr int16_t kStepFromPopup = 99;

}  // namespace

void Engine::previousKey() {
  form_.icntlc[Previous].visible = true;
  form_.icntlc[Play].visible = false;
  form_.icntlb[Play].visible = true;
  display_.clearTime("");
  MMControl1_PrevClick();
  clock_.delaySeconds(kKeyPause);
  form_.icntlc[Play].visible = true;
  form_.icntlc[Previous].visible = false;
  form_.icntlb[Play].visible = false;
}

void Engine::nextKey() {
  form_.icntlc[Next].visible = true;
  form_.icntlc[Play].visible = false;
  form_.icntlb[Play].visible = true;
  display_.clearTime("");
  device_.command("Stop");
  int16_t value = kStepAtOnce;
  MMControl1_NextClick(value);
  device_.command("Play");
  clock_.delaySeconds(kKeyPause);
  // A program's last step has ended it meanwhile: then nothing plays that could be lit.
  const bool plays = state_.transport.playingFlag == kOn;
  form_.icntlc[Play].visible = plays;
  form_.icntlc[Next].visible = false;
  form_.icntlb[Play].visible = false;
}

void Engine::MMControl1_NextClick(int16_t& value) {
  TransportState& transport = state_.transport;
  clock_.delaySeconds(kKeyPause);
  transport.pausedFlag = kOff;
  repeatLabel();
  form_.Label21.caption = "Repeat";
  if (transport.playMode == Pgm) {
    transport.pausePosition = 0;
    transport.playingFlag = kOn;
    if (transport.playEnded == kOn) return;
    const bool atOnce = value == kStepAtOnce || (value == kStepFromPopup && state_.display.popupOpen == kOn);
    state_.program.skipStep = atOnce ? kOff : kOn;
    value = 0;
    MMControl1_PlayClick();
    return;
  }
  if (transport.curTrack + 1 > state_.disc.trackCount || state_.disc.discStarted == kOff) return;
  display_.showTimeModeLabel();
  transport.curTrack = std::max<int16_t>(static_cast<int16_t>(transport.curTrack + 1), 2);
  display_.showTrack(transport.curTrack);
  form_.Label10.caption = "";
  transport.pausePosition = 0;
  if (transport.playingFlag == kOn) {
    MMControl1_PlayClick();
    return;
  }
  // From stopped: play starts a track lower, and the higher number shows.
  transport.curTrack = std::max<int16_t>(static_cast<int16_t>(transport.curTrack - 1), 2);
  MMControl1_PlayClick();
  device_.command("Play");
  ++transport.curTrack;
  display_.showTrack(transport.curTrack);
}

void Engine::MMControl1_PrevClick() {
  TransportState& transport = state_.transport;
  const bool repeat = state_.settings.repeatOn == kOn;
  // What a program has played is used up: without Repeat there is no way back.
  if (transport.playMode == Pgm && !repeat) return;
  transport.pausePosition = 0;
  clock_.delaySeconds(kKeyPause);
  transport.pausedFlag = kOff;
  repeatLabel();
  form_.Label21.caption = "Repeat";
  if (transport.playMode == Pgm) {
    transport.playingFlag = kOn;
    state_.program.pgmIndex = static_cast<int16_t>(state_.program.pgmIndex - 2);
    MMControl1_PlayClick();
    device_.command("Play");
    return;
  }
  if (transport.curTrack - 1 < 1 || state_.disc.discStarted == kOff) return;
  transport.playingFlag = kOn;
  display_.showTimeModeLabel();
  --transport.curTrack;
  display_.showTrack(transport.curTrack);
  form_.Label10.caption = "";
  startOfTrack();
  device_.command("Pause");
  device_.setTo(static_cast<uint32_t>(transport.curTrack));
  device_.command("Seek");
  device_.setTrack(transport.curTrack);
  device_.command("Play");
}

void Engine::programStep() {
  TransportState& transport = state_.transport;
  ProgramState& program = state_.program;
  const auto entryAt = [&](int index) -> int16_t& { return program.pgmList[static_cast<size_t>(std::clamp(index, 0, 101))]; };
  program.pgmIndex = std::clamp<int16_t>(program.pgmIndex, 0, 100);
  if (state_.settings.repeatOn != kOn) {
    const int16_t played = entryAt(program.pgmIndex);
    if (played >= 1) {
      if (played < 21) form_.Label22[static_cast<size_t>(played - 1)].foreColor = state_.settings.lcdColor[kLcdDim];
      entryAt(program.pgmIndex) = 0;
      if (entryAt(program.pgmIndex + 1) == 0) {
        programEnd();
        return;
      }
    }
  }
  ++program.pgmIndex;
  if (entryAt(program.pgmIndex) == 0) program.pgmIndex = 1;
  const int16_t entry = entryAt(program.pgmIndex);
  if (entry == 1 && program.skipStep == kOn) {
    transport.curTrack = 0;
    program.skipStep = kOff;
    form_.Label8.caption = "1";
    --program.pgmIndex;
    device_.command("Stop");
    device_.command("Play");
    transport.trackGo = 1;
    return;
  }
  if (entry == 0) {
    // Nothing in the program: the disc plays as it stands.
    transport.playMode = Cont;
    showPlayMode("Cont");
    lightMode(Cont);
    MMControl1_PlayClick();
    return;
  }
  const auto track = static_cast<int16_t>(entry - program.skipStep);
  if (track < 1) {
    programEnd();
    return;
  }
  transport.curTrack = track;
  display_.showTrack(track);
  form_.Label8.caption = std::to_string(track + program.skipStep);
  startOfTrack();
  device_.setUpdateInterval(1000);
  device_.command("Stop");
  device_.setFrom(static_cast<uint32_t>(track));
  device_.command("Play");
}

void Engine::programEnd() {
  TransportState& transport = state_.transport;
  if (state_.settings.repeatOn != kOn) {
    state_.program.pgmList.fill(0);
    state_.program.pgmCount = 0;
  }
  device_.command("Stop");
  clock_.delaySeconds(0.5);
  form_.CDStatusBar.floodPercent = 0;
  stoppedLook();
  transport.playMode = Cont;
  showPlayMode("Cont");
  form_.Label38.foreColor = form_.Label39.foreColor = colours::kGrey;
  form_.Label40.foreColor = state_.program.pgmStored == kOn ? colours::kBlack : colours::kGrey;
  lightMode(Cont);
  transport.trackGo = 1;
  transport.curTrack = 0;
  form_.Label13.caption = "";
  device_.setUpdateInterval(1000);
  device_.command("Stop");
  device_.setFrom(0);
  display_.showTrack(0);
  if (state_.program.skipStep != kOff) {
    state_.program.skipStep = kOff;
    return;
  }
  transport.playEnded = kOn;
  display_.lamps(state_.disc.lampCount, kLcdDim);
  setTimer2Interval(0);
  device_.command("Stop");
  transport.playingFlag = transport.pausedFlag = kOff;
}

}  // namespace orvanta
