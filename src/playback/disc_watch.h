// The slow tick: discs that come and go, the end of the disc, Intro, and the setup program's turn.
#pragma once

#include <memory>

#include "platform/ports/clock.h"
#include "playback/ports.h"
#include "playback/tick_parts.h"

namespace orvanta {

class DiscWatch {
 public:
  DiscWatch(const PlaybackPorts& ports, const TickParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward);

  /// From the faceplate's load on.
  void start();
  void timer3_timer();

  static constexpr int kTimer3Interval = 1100;  ///< milliseconds

 private:
  void tick();
  void drawerIsOpen();
  bool discCameLater();
  bool afterTheEnd();
  void discGone();

  Clock& clock_;
  CdDevice& device_;
  Screen& screen_;
  TickParts on_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  std::unique_ptr<Timer> timer3_;
  bool restartFailed_ = false;  ///< for the disc that is in the drive; another try waits for another disc
};

}  // namespace orvanta
