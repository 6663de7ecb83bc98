// The deck's own sounds, and the launch of the mixer program.
#pragma once

#include "state/shared_state.h"

namespace orvanta {

struct Ports;

/// By their numbers; 2 is a number that never got a sound.
enum class Sound { Click, Minimise, Unused, Click1, Mixer, OpenDrawer };

class InterfaceSounds {
 public:
  InterfaceSounds(Ports& ports, SharedState& state) : ports_(ports), state_(state) {}

  /// Silent when the user wants it so, and on the small faceplate.
  void play(Sound sound);
  /// What tells that something cannot be had now.
  void beep();
  /// Starts the user's mixer program unless it runs; tells how to choose one when there is none.
  void runMixer();

 private:
  Ports& ports_;
  SharedState& state_;
};

}  // namespace orvanta
