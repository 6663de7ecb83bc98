// Changing mode: leave the old, switch, enter the new. Shuffle, repeat, programs.
#include "playback/modes.h"

#include <algorithm>
#include <random>

#include "platform/ports/clock.h"
#include "platform/ports/screen.h"
#include "playback/tracks.h"
#include "records/disc_files.h"

namespace orvanta {

Modes::Modes(const PlaybackPorts& ports, Engine& engine, Display& display, KeyLooks& looks, CDForm& form, SharedState& state)
    : clock_(ports.clock),
      files_(ports.files),
      screen_(ports.screen),
      engine_(engine),
      display_(display),
      looks_(looks),
      form_(form),
      state_(state) {}

void Modes::Image4_MouseUp(size_t mode) {
  if (asleep()) return;
  stopintro();
  engine_.settle();
  engine_.dropStep();
  state_.transport.playEnded = false;
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
  if (state_.transport.playMode == One) state_.transport.trackGo = kTrackRuns;
}

void Modes::enterPgm() {
  display_.playMode("PGM");
  state_.disc.discStarted = true;
  state_.transport.playMode = Pgm;
  looks_.lightMode(PgmKey);
  display_.lamps(20, kLcdDim);
}

void Modes::enterOne() {
  display_.playMode("One");
  state_.transport.trackGo = kEnteringOne;
  looks_.greyChance(state_.program.pgmStored);
  state_.disc.discStarted = true;
  engine_.clrpgm();
  state_.transport.playMode = One;
  looks_.lightMode(OneKey);
  state_.transport.curTrack = playable(state_.disc, state_.transport.curTrack);
}

void Modes::enterCont() {
  display_.playMode("Cont");
  looks_.allowShuffle();
  engine_.clrpgm();
  state_.transport.playMode = Cont;
  looks_.lightMode(ContKey);
  display_.lamps(20, kLcdDim);
}

void Modes::enterIntro() {
  display_.intro();
  state_.transport.introStart = 0;
  state_.transport.introTrack = 1;
  engine_.clrpgm();
  state_.transport.playMode = Cont;
  looks_.lightMode(IntroKey);
  display_.lamps(20, kLcdDim);
}

void Modes::nextMode() {
  const bool intro = display_.introShown();
  Image4_MouseUp(intro ? size_t{PgmKey} : static_cast<size_t>(std::clamp<int>(state_.transport.playMode + 1, 0, 3)));
}

void Modes::stopintro() {
  if (state_.transport.introTrack <= 0) return;
  state_.transport.introStart = 0;
  state_.transport.introTrack = 0;
  display_.playMode("Cont");
  display_.program(state_.program.pgmStored);
  screen_.setPointer(Pointer::Normal);
  if (state_.transport.playMode == Pgm) {
    engine_.stopKey();
    Image4_MouseUp(ContKey);
  } else {
    looks_.lightMode(ContKey);
  }
}

/// All tracks in an order of chance, each once. A disc of more tracks than lamps is shuffled whole,
/// though the count says no more than there are lamps.
void Modes::shuffle() {
  if (asleep()) return;
  stopintro();
  engine_.settle();
  if (state_.transport.pausedFlag || !looks_.acceptsShuffle()) return;
  ProgramState& program = state_.program;
  looks_.allowShuffle();
  state_.disc.discStarted = true;
  looks_.lightMode(PgmKey);
  display_.lamps(state_.disc.lampCount, kLcdLitInCont);
  display_.lampNumbers(state_.disc.lampCount);
  fillWithChance();
  leaveOne();
  state_.transport.playMode = Pgm;
  display_.playMode("PGM");
  program.pgmIndex = 0;
  program.pgmCount = state_.disc.lampCount;
  engine_.playKey();
}

/// Drawn anew until a track comes that is not in the list yet, so that every order is as likely as any other.
void Modes::fillWithChance() {
  const DiscState& disc = state_.disc;
  state_.program.clearList();
  state_.program.shuffled = true;
  auto& list = state_.program.pgmList;
  int tracks = 0;
  for (int track = 1; track <= disc.trackCount; ++track) tracks += isAudio(disc, track) ? 1 : 0;
  std::random_device seed;
  std::mt19937 chance(seed());
  std::uniform_int_distribution<int> draw(1, std::max<int>(disc.trackCount, 1));
  for (auto entry = list.begin() + 1; entry - list.begin() <= tracks; ++entry) {
    int track = 0;
    do {
      track = draw(chance);
    } while (!isAudio(disc, track) || std::find(list.begin() + 1, entry, track) != entry);
    *entry = static_cast<int16_t>(track);
  }
}

void Modes::repeatKey() {
  if (!looks_.acceptsRepeat()) return;
  engine_.endActions();
  state_.settings.repeatOn = state_.settings.repeatOn == kOn ? kOff : kOn;
  display_.repeat();
}

void Modes::rclpgm() {
  if (!state_.program.pgmStored) return;
  if (state_.transport.playMode != Pgm) Image4_MouseUp(PgmKey);
  ProgramState& program = state_.program;
  // A pause of the disc before has nothing to resume in the program.
  state_.transport.pausePosition = 0;
  const auto values = DiscFiles(files_, state_.disc.cdFilePath).program();
  if (!values) return;
  program.clearList();
  for (size_t i = 0; i < values->size() && i < 100; ++i) {
    const int track = (*values)[i];
    const bool good = track >= 1 && track <= state_.disc.lampCount;
    program.pgmList[i + 1] = static_cast<int16_t>(good ? track : 0);
    if (good) ++program.pgmCount;
  }
  if (program.pgmCount < 1) {
    display_.program(false);
    return;
  }
  state_.transport.playMode = Pgm;
  program.pgmIndex = 0;
}

void Modes::Label30_Click() {
  if (asleep() || !state_.program.pgmStored) return;
  screen_.setPointer(Pointer::Hourglass);
  Image4_MouseUp(PgmKey);
  state_.disc.discStarted = true;
  rclpgm();
  engine_.playKey();
  screen_.setPointer(Pointer::Normal);
}

}  // namespace orvanta
