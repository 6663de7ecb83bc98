// Changing mode: leave the old, switch, enter the new. Shuffle, repeat, programs.
#include "playback/modes.h"

#include <algorithm>
#include <random>

#include "base/times.h"
#include "platform/ports/clock.h"
#include "platform/ports/screen.h"
#include "playback/upward.h"

namespace orvanta {

Modes::Modes(Ports& ports, Engine& engine, TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : clock_(ports.clock), screen_(ports.screen), engine_(engine), display_(display), form_(form), state_(state), upward_(upward) {}

void Modes::Image4_MouseUp(size_t mode) {
  if (asleep()) return;
  stopintro();
  state_.transport.playEnded = kOff;
  engine_.setTimer2Interval(100);
  leaveOne();
  switch (mode) {
    case PgmKey: enterPgm(); break;
    case OneKey: enterOne(); break;
    case ContKey: enterCont(); break;
    default: enterIntro(); break;
  }
}

void Modes::leaveOne() {
  if (state_.transport.playMode == One) state_.transport.trackGo = 1;
}

void Modes::enterPgm() {
  engine_.showPlayMode("PGM");
  state_.disc.discStarted = kOn;
  state_.transport.playMode = Pgm;
  engine_.lightMode(PgmKey);
  display_.lamps(20, kLcdDim);
}

void Modes::enterOne() {
  engine_.showPlayMode("One");
  state_.transport.trackGo = 99;
  form_.Label38.foreColor = form_.Label39.foreColor = colours::kGrey;
  form_.Label40.foreColor = state_.program.pgmStored == kOn ? colours::kBlack : colours::kGrey;
  state_.disc.discStarted = kOn;
  engine_.clrpgm();
  state_.transport.playMode = One;
  engine_.lightMode(OneKey);
  if (state_.transport.curTrack < 1 || state_.transport.curTrack > state_.disc.trackCount) state_.transport.curTrack = 1;
}

void Modes::enterCont() {
  engine_.showPlayMode("Cont");
  form_.Label38.foreColor = colours::kBlack;
  engine_.clrpgm();
  state_.transport.playMode = Cont;
  engine_.lightMode(ContKey);
  display_.lamps(20, kLcdDim);
}

void Modes::enterIntro() {
  engine_.showPlayMode("Intro");
  state_.transport.introStart = 0;
  state_.transport.introTrack = 1;
  form_.Label30.caption = "Intro Play";
  form_.Label30.foreColor = state_.settings.lcdColor[kLcdLabelOn];
  engine_.clrpgm();
  state_.transport.playMode = Cont;
  engine_.lightMode(IntroKey);
  display_.lamps(20, kLcdDim);
}

void Modes::nextMode() {
  const bool intro = form_.Label6.caption == "Intro";
  Image4_MouseUp(intro ? size_t{PgmKey} : static_cast<size_t>(std::clamp<int>(state_.transport.playMode + 1, 0, 3)));
}

void Modes::stopintro() {
  if (state_.transport.introTrack <= 0) return;
  state_.transport.introStart = 0;
  state_.transport.introTrack = 0;
  engine_.showPlayMode("Cont");
  form_.Label30.caption = "Pgm Stored";
  form_.Label30.foreColor = state_.settings.lcdColor[state_.program.pgmStored == kOn ? kLcdLabelOn : kLcdLabelOff];
  screen_.setPointer(Pointer::Normal);
  if (state_.transport.playMode == Pgm) {
    engine_.stopKey();
    Image4_MouseUp(ContKey);
  } else {
    engine_.lightMode(ContKey);
  }
}

/// All tracks in an order of chance, each once. A disc of more tracks than lamps is shuffled whole,
/// though the count says no more than there are lamps.
void Modes::shuffle() {
  if (asleep() || form_.icntlc[Pause].visible || form_.Label38.foreColor == colours::kGrey) return;
  stopintro();
  ProgramState& program = state_.program;
  form_.Label38.foreColor = colours::kBlack;
  state_.disc.discStarted = kOn;
  engine_.lightMode(PgmKey);
  program.pgmList.fill(0);
  for (int16_t lamp = 1; lamp <= state_.disc.lampCount; ++lamp) {
    auto& label = form_.Label22[static_cast<size_t>(lamp - 1)];
    label.foreColor = state_.settings.lcdColor[kLcdLitInCont];
    label.caption = std::to_string(lamp);
  }
  for (int16_t i = 1; i <= state_.disc.trackCount; ++i) {
    std::minstd_rand chance(static_cast<uint32_t>(clock_.milliseconds() * 131 + int64_t{i} * 7919 + 1));
    chance.discard(3);
    std::uniform_int_distribution<int> draw(1, state_.disc.trackCount);
    const auto first = program.pgmList.begin() + 1;
    int16_t track = 0;
    do {
      track = static_cast<int16_t>(draw(chance));
    } while (std::find(first, first + (i - 1), track) != first + (i - 1));
    program.pgmList[static_cast<size_t>(i)] = track;
  }
  leaveOne();
  state_.transport.playMode = Pgm;
  engine_.showPlayMode("PGM");
  program.pgmIndex = 0;
  program.pgmCount = state_.disc.lampCount;
  engine_.playKey();
}

void Modes::repeatKey() {
  if (form_.Label39.foreColor != colours::kBlack) return;
  state_.settings.repeatOn = state_.settings.repeatOn == kOn ? kOff : kOn;
  engine_.repeatLabel();
}

void Modes::rclpgm() {
  if (state_.program.pgmStored != kOn) return;
  if (state_.transport.playMode != Pgm) Image4_MouseUp(PgmKey);
  ProgramState& program = state_.program;
  program.pgmCount = 0;
  // A pause of the disc before has nothing to resume in the program.
  state_.transport.pausePosition = 0;
  const auto values = upward_.readProgram();
  if (!values) return;
  program.pgmList.fill(0);
  for (size_t i = 0; i < values->size() && i < 100; ++i) {
    const int track = (*values)[i];
    const bool good = track >= 1 && track <= state_.disc.lampCount;
    program.pgmList[i + 1] = static_cast<int16_t>(good ? track : 0);
    if (good) ++program.pgmCount;
  }
  if (program.pgmCount < 1) {
    form_.Label30.foreColor = state_.settings.lcdColor[kLcdLabelOff];
    return;
  }
  state_.transport.playMode = Pgm;
  program.pgmIndex = 0;
}

void Modes::Label30_Click() {
  if (asleep() || form_.Label30.foreColor == state_.settings.lcdColor[kLcdLabelOff]) return;
  screen_.setPointer(Pointer::Hourglass);
  Image4_MouseUp(PgmKey);
  state_.disc.discStarted = kOn;
  rclpgm();
  engine_.MMControl1_PlayClick();
  engine_.playingLook();
  screen_.setPointer(Pointer::Normal);
}

}  // namespace orvanta
