// The power button: the one way out.
#pragma once

#include "app/ports.h"
#include "faceplate/volume.h"
#include "playback/key_looks.h"

namespace orvanta {

class Exit {
 public:
  Exit(const LifePorts& ports, KeyLooks& looks, Volume& volume, InterfaceSounds& sounds, CDForm& form, SharedState& state)
      : ports_(ports), looks_(looks), volume_(volume), sounds_(sounds), form_(form), state_(state) {}
  /// Saves, stops the disc unless option 5 leaves it playing, and ends the process.
  [[noreturn]] void exitProgram();
  /// The same where the session ends: without a sound.
  [[noreturn]] void endOfSession();
  /// Mute is released and the settings are saved.
  void save();

 private:
  [[noreturn]] void leave();

  LifePorts ports_;
  KeyLooks& looks_;
  Volume& volume_;
  InterfaceSounds& sounds_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
