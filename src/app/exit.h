// The power button: the one way out.
#pragma once

#include "platform/ports/ports.h"
#include "playback/engine.h"

namespace orvanta {

class Exit {
 public:
  Exit(Ports& ports, Engine& engine, CDForm& form, SharedState& state) : ports_(ports), engine_(engine), form_(form), state_(state) {}
  /// Saves, stops the disc unless option 5 leaves it playing, and ends the process.
  [[noreturn]] void exitProgram();

 private:
  Ports& ports_;
  Engine& engine_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
