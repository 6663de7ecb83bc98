// The record key: the disc goes to the recorder, and this program ends.
#pragma once

#include "faceplate/position.h"
#include "faceplate/volume.h"
#include "platform/ports/ports.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class RecorderLaunch {
 public:
  RecorderLaunch(Ports& ports, Position& position, Volume& volume, CDForm& form, SharedState& state)
      : ports_(ports), position_(position), volume_(volume), form_(form), state_(state) {}
  /// Saves, lets go of the drive, starts the recorder with the disc's texts, and ends the process.
  [[noreturn]] void run();

 private:
  void writeTexts();

  Ports& ports_;
  Position& position_;
  Volume& volume_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
