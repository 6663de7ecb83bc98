// The deck's own sounds, and the launch of the mixer program.
#pragma once

#include <string>
#include <vector>

#include "faceplate/ports.h"
#include "launch/known_applications.h"
#include "state/shared_state.h"

namespace orvanta {

/// By their numbers; 2 is a number that never got a sound.
enum class Sound { Click, Minimise, Unused, Click1, Mixer, OpenDrawer };

class InterfaceSounds {
 public:
  InterfaceSounds(const FaceplatePorts& ports, SharedState& state) : ports_(ports), known_(ports.dialogs, ports.processes), state_(state) {}

  /// Silent when the user wants it so, and on the small faceplate.
  void play(Sound sound);
  /// What tells that something cannot be had now.
  void beep();
  /// Starts the user's mixer program unless it runs; tells how to choose one when there is none.
  void runMixer();
  /// The same at the deck's own start, which says nothing of a mixer that is open already.
  void runMixerAtStart();

 private:
  std::vector<std::string> mixer() const;
  void start(const std::vector<std::string>& mixer);

  FaceplatePorts ports_;
  KnownApplications known_;
  SharedState& state_;
};

}  // namespace orvanta
