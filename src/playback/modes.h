// Play modes and what is built on them: Pgm, One, Cont, Intro, shuffle, repeat, the A-B loop, the lamps.
#pragma once

#include "playback/engine.h"
#include "playback/ports.h"

namespace orvanta {

class Modes {
 public:
  Modes(const PlaybackPorts& ports, Engine& engine, Display& display, KeyLooks& looks, CDForm& form, SharedState& state);

  /// A mode key's release.
  void Image4_MouseUp(size_t mode);
  /// To the mode after the present one: Pgm, One, Cont, Intro.
  void nextMode();
  /// Ends Intro, when it runs.
  void stopintro();
  void shuffle();
  void repeatKey();
  /// One press sets A, the next B, the third ends the loop.
  void abKey();
  /// Puts the disc's stored program into the list.
  void rclpgm();
  /// A click on the program indicator: recalls and plays.
  void Label30_Click();

  // Of the clock.
  void abTick();
  void introTick();
  void lampTick();

 private:
  bool asleep() const { return state_.disc.asleep(); }
  void leaveOne();
  void enterPgm();
  void enterOne();
  void enterCont();
  void enterIntro();
  void fillWithChance();
  void setA();
  void setB();
  void abReturn();
  void abBlink();
  double placeOnBar() const;

  Clock& clock_;
  Files& files_;
  Screen& screen_;
  Engine& engine_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  int64_t lastBlink_ = 0;
};

}  // namespace orvanta
