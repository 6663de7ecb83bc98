// The disc door: what stands open or shut, and the deck without a disc that goes with it.
#pragma once

#include "playback/engine.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Clock;
class Files;
class PlaybackUpward;
class Screen;

class Drawer {
 public:
  Drawer(Clock& clock, Files& files, Screen& screen, Engine& engine, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : clock_(clock), files_(files), screen_(screen), engine_(engine), form_(form), state_(state), upward_(upward) {}

  /// Nothing when it stands open. With option 2 and a disc it ejects and ends the process.
  void opendrawer();

  /// Leaves the hourglass: a new process follows. Nothing on the small or expanded faceplate.
  void closedrawer();

 private:
  bool isOpen() const;
  bool slides() const;
  void openFrames();
  void maskKeys();
  void greyLegends();

  Clock& clock_;
  Files& files_;
  Screen& screen_;
  Engine& engine_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool leaving_ = false;  ///< option 2 has been acted on
};

}  // namespace orvanta
