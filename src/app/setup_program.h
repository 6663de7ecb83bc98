// The setup program: it is run beside the deck, and what it wrote is taken up.
#pragma once

#include "app/ports.h"
#include "app/start_up.h"
#include "faceplate/faceplate.h"

namespace orvanta {

class SetupProgram {
 public:
  SetupProgram(const LifePorts& ports, const StartUp& startUp, Display& display, Faceplate& faceplate, CDForm& form, SharedState& state)
      : ports_(ports), startUp_(startUp), display_(display), faceplate_(faceplate), form_(form), state_(state) {}

  /// Waits until it has ended.
  void run();
  /// The settings were changed from outside: they are read and shown.
  void takeUp();

 private:
  LifePorts ports_;
  const StartUp& startUp_;
  Display& display_;
  Faceplate& faceplate_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
