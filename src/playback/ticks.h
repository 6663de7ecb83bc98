// The 100 ms tick: what the play does while nobody touches it.
#pragma once

#include <memory>

#include "platform/ports/clock.h"
#include "playback/ports.h"
#include "playback/tick_parts.h"

namespace orvanta {

class Ticks {
 public:
  Ticks(const PlaybackPorts& ports, const TickParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward);

  /// From the faceplate's load on.
  void start();
  void timer2_timer();
  /// Something has changed: at the full pace again.
  void wake();

  static constexpr int kTimer2Interval = 100;  ///< milliseconds
  static constexpr int kRestInterval = 500;

 private:
  void tick();
  void restIfQuiet();
  void scanStep();
  void startOfNewTrack();
  void autoStart();

  Clock& clock_;
  Screen& screen_;
  TickParts on_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  std::unique_ptr<Timer> timer2_;
  int quiet_ = 0;  ///< ticks in a row without sound
};

}  // namespace orvanta
