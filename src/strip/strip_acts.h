// What the strip's keys do, for the strip and for whoever presses them by program, as the tray's menu does.
#pragma once

#include "faceplate/actions.h"
#include "strip/strip_mirror.h"
#include "strip/upward.h"

namespace orvanta {

class StripActs {
 public:
  StripActs(Actions& actions, const Volume& volume, StripMirror& mirror, StripUpward& upward)
      : actions_(actions), volume_(volume), mirror_(mirror), upward_(upward) {}

  /// Previous, next, play, pause, stop, eject. The steps are to be had from a pause and from rest as well.
  void Image1_MouseUp(size_t key);
  /// Mutes; opens the mixer where there are no sliders. So does the next, which brings the sound back.
  void Image5_MouseUp();
  void Image7_MouseUp();
  /// The exit; nothing plays on after it.
  void Image12_MouseUp() { upward_.exitStopped(); }
  /// The faceplate comes back with its drawer open, and asks for a disc if it stood open already.
  void eject();

  static constexpr size_t kEject = 5;

 private:
  Actions& actions_;
  const Volume& volume_;
  StripMirror& mirror_;
  StripUpward& upward_;
};

}  // namespace orvanta
