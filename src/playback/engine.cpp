// The transport's procedures. Masks (icntlb, scntlb) disable keys, lit faces (icntlc) show state.
#include "playback/engine.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "playback/upward.h"
#include "state/marker_files.h"

namespace orvanta {

Engine::Engine(Ports& ports, TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : device_(ports.device),
      clock_(ports.clock),
      files_(ports.files),
      screen_(ports.screen),
      display_(display),
      form_(form),
      state_(state),
      upward_(upward) {}

void Engine::setTimer2Interval(int milliseconds) {
  if (timer2_ != nullptr) timer2_->setInterval(milliseconds);
}

void Engine::lightMode(size_t mode) {
  for (size_t key = 0; key < 4; ++key) {
    form_.Image3[key].visible = key == mode;
    form_.Image4[key].visible = key != mode;
  }
}

void Engine::startOfTrack() {
  state_.display.lastShownTrack = 0;
  state_.display.lastShownSec = 0;
  state_.transport.trackGo = 1;
}

void Engine::repeatLabel() {
  form_.Label21.foreColor = state_.settings.lcdColor[state_.settings.repeatOn == kOn ? kLcdRepeatOn : kLcdRepeatOff];
}

void Engine::MMControl1_PlayClick() {
  TransportState& transport = state_.transport;
  transport.pausedFlag = kOff;
  transport.playingFlag = kOn;
  if (transport.pausePosition > 0) {
    repeatLabel();
    device_.command("Resume");
    transport.pausePosition = 0;
    form_.Label21.caption = "Repeat";
    return;
  }
  if (transport.curTrack < 1 || transport.curTrack > state_.disc.trackCount) transport.curTrack = 1;
  display_.showTrack(transport.curTrack);
  setTimer2Interval(100);
  transport.playEnded = kOff;
  display_.showTimeModeLabel();
  if (transport.playMode == Pgm) {
    programStep();
    return;
  }
  device_.setUpdateInterval(1000);
  device_.setFrom(static_cast<uint32_t>(transport.curTrack));
  startOfTrack();
  // The small window's keys send nothing by themselves.
  if (state_.display.popupOpen == kOn) device_.command("Play");
}

void Engine::MMControl1_PauseClick() {
  TransportState& transport = state_.transport;
  transport.pausedFlag = kOn;
  transport.playingFlag = kOff;
  transport.pausePosition = static_cast<int32_t>(device_.position());
  form_.Label21.foreColor = state_.settings.lcdColor[kLcdLabelOn];
  form_.Label21.caption = "PAUSE";
  form_.Label21.visible = true;
}

void Engine::MMControl1_StopClick() {
  state_.transport.playingFlag = kOff;
  state_.transport.pausedFlag = kOff;
  state_.transport.pausePosition = 0;
  state_.display.lastShownSec = 0;
  display_.clearTime("00:00");
}

void Engine::mmcontrol1_EjectClick() {
  const auto& colour = state_.settings.lcdColor;
  const bool custom = state_.settings.lcdCustom == 1;
  state_.disc.discLoaded = kOn;
  clearMarker(files_, state_.settings.appDir, kRunningMarker);
  clrab();
  screen_.setPointer(Pointer::Hourglass);
  form_.Label14.foreColor = colour[kLcdDrawer];
  form_.Label30.foreColor = custom ? colour[kLcdDrawer] : 0x004040;
  form_.Label22[20].foreColor = custom ? colour[kLcdDrawer] : 0x004000;
  display_.lamps(20, kLcdDim);
  state_.disc.drawerOpen = kOn;
  if (state_.transport.introTrack > 0) {
    state_.transport.introTrack = 0;
    state_.transport.introStart = 0;
    showPlayMode("Cont");
    lightMode(Cont);
    form_.Label30.caption = "Pgm Stored";
  }
  state_.volume.leftAttenPrev = state_.volume.leftAtten;
  state_.volume.rightAttenPrev = state_.volume.rightAtten;
  state_.transport.playingFlag = kOff;
  state_.transport.pausedFlag = kOff;
  display_.showTrack(0);
  display_.clearTime("00:00");
  state_.disc.trackCount = 0;
  device_.command("stop");
  form_.Label12.caption = "";
  form_.Label13.caption = "";
  upward_.openDrawer();
  device_.command("Eject");
  device_.command("Close");
  form_.SSPanel3.backColor = colours::kYellow;
  upward_.closeTrackList();
  screen_.setPointer(Pointer::Normal);
}

void Engine::jump() {
  TransportState& transport = state_.transport;
  if (transport.playMode == Pgm) return;
  state_.display.holdTrackLabel = kOn;
  transport.pausedFlag = kOff;
  transport.playingFlag = kOn;
  form_.CDStatusBar.floodPercent = 0;
  playingLook();
  repeatLabel();
  transport.pausePosition = 0;
  form_.Label21.caption = "Repeat";
  state_.disc.discStarted = kOn;
  display_.showTimeModeLabel();
  const auto target = static_cast<int16_t>(transport.selTrack + 1);
  if (target > state_.disc.trackCount) return;
  form_.Label10.caption = "00:00";
  clrpgm();
  state_.program.pgmIndex = 0;
  const auto& colour = state_.settings.lcdColor;
  for (int16_t lamp = 1; transport.playMode == Cont && lamp <= state_.disc.lampCount; ++lamp) {
    form_.Label22[static_cast<size_t>(lamp - 1)].foreColor = colour[lamp <= transport.selTrack ? kLcdDim : kLcdLit];
  }
  transport.curTrack = target;
  transport.playEnded = kOff;
  setTimer2Interval(100);
  startOfTrack();
  seekFraction(state_.disc.trackLengths[static_cast<size_t>(target)], 0);
  device_.command("Pause");
  device_.setTo(static_cast<uint32_t>(target));
  device_.command("Seek");
  device_.setTrack(target);
  form_.Label8.caption = std::to_string(device_.track());
  device_.setUpdateInterval(1000);
  device_.setFrom(static_cast<uint32_t>(target));
  device_.command("Play");
}

void Engine::seekFraction(std::string_view length, double x) {
  const double fraction = x / std::max<int>(form_.CDStatusBar.width, 1);
  const int seconds = static_cast<int>(std::nearbyint(secondsOf(length) * fraction));
  device_.command("PAUSE");
  device_.setTo(packSeekTarget(state_.transport.curTrack, seconds));
  device_.command("SEEK");
  device_.command("PLAY");
}

/// The loop of A-B comes this way too, with its own places; the offset shifts its return a little.
void Engine::CDStatusBar_Click(double x) {
  const int16_t track = state_.transport.curTrack;
  if (state_.transport.playingFlag != kOn || state_.disc.drawerOpen == kOn || track < 1 || track > 100) return;
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  seekFraction(state_.disc.trackLengths[static_cast<size_t>(track)], std::abs(x - kBarMargin));
}

void Engine::clrpgm() {
  state_.program.pgmList.fill(0);
  state_.program.pgmCount = 0;
  display_.lamps(state_.disc.lampCount, kLcdDim);
}

void Engine::playCompleted(int16_t error) {
  if (error == device_error::kHardware) device_.command("Close");
}

void Engine::playKey() {
  form_.icntlc[Play].visible = true;
  MMControl1_PlayClick();
  device_.command("Play");
  playingLook();
}

void Engine::pauseKey() {
  pausedLook();
  MMControl1_PauseClick();
  device_.command("Pause");
}

void Engine::stopKey() {
  stoppedLook();
  MMControl1_StopClick();
  device_.command("Stop");
  form_.icntlb[Stop].visible = false;
  form_.icntlc[Stop].visible = true;
  form_.icntlc[Stop].refresh();
  clock_.delaySeconds(0.3);
  form_.icntlc[Stop].visible = false;
  form_.icntlb[Stop].visible = true;
}

void Engine::clrab() {
  state_.transport.abPointA = state_.transport.abPointB = 0;
  state_.transport.abTrack = 0;
  form_.Label16.foreColor = state_.settings.lcdColor[kLcdLabelOff];
  form_.Label17.foreColor = colours::kBlack;
}

void Engine::playingLook() {
  form_.icntlc[Play].visible = true;
  for (const size_t key : {0U, 3U}) form_.scntlb[key].visible = false;
  for (const size_t key : {Previous, Next, Pause, Stop, Record}) form_.icntlb[key].visible = false;
  for (const size_t key : {Pause, Stop}) form_.icntlc[key].visible = false;
  for (auto* label : {&form_.Label17, &form_.Label24, &form_.Label38, &form_.Label39}) label->foreColor = colours::kBlack;
}

void Engine::pausedLook() {
  for (const size_t key : {Stop, Previous, Next}) form_.icntlb[key].visible = true;
  for (const size_t key : {0U, 3U}) form_.scntlb[key].visible = true;
  form_.icntlc[Pause].visible = true;
  form_.icntlc[Play].visible = false;
  for (auto* label : {&form_.Label17, &form_.Label24, &form_.Label39}) label->foreColor = colours::kGrey;
}

void Engine::stoppedLook() {
  for (const size_t key : {0U, 3U}) form_.scntlb[key].visible = true;
  for (const size_t key : {Previous, Next, Pause, Stop}) form_.icntlb[key].visible = true;
  for (const size_t key : {Previous, Next, Play, Pause, Stop}) form_.icntlc[key].visible = false;
  form_.icntlb[Play].visible = false;
  form_.icntla[Play].visible = true;
}

void Engine::adoptRunningDisc() {
  state_.transport.curTrack = static_cast<int16_t>(unpackTmsf(device_.position()).track);
  state_.disc.discStarted = kOn;
  MMControl1_PlayClick();
  playingLook();
}

}  // namespace orvanta
