// The disc door: what stands open or shut, and the deck without a disc that goes with it.
#pragma once

#include "playback/engine.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Clock;
class Files;
class InterfaceSounds;
class PlaybackUpward;
class Screen;

/// Panel3D7 and Panel3D10 at these tops: the drawer stands open.
constexpr int kOpenTrayTop = 600;
constexpr int kOpenTrayLowerTop = 1570;

class Drawer {
 public:
  Drawer(Ports& ports, Engine& engine, InterfaceSounds& sounds, CDForm& form, SharedState& state, PlaybackUpward& upward);

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
  InterfaceSounds& sounds_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool leaving_ = false;  ///< option 2 has been acted on
};

}  // namespace orvanta
