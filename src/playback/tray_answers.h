// What the tray says to an image that was offered: a disc that can be played goes in, any other is told of.
#pragma once

#include <memory>
#include <string>

#include "platform/ports/clock.h"
#include "playback/engine.h"
#include "playback/ports.h"

namespace orvanta {

class TrayAnswers {
 public:
  TrayAnswers(const PlaybackPorts& ports, Engine& engine, SharedState& state);
  /// From either timer, also while the drawer stands open.
  void take();

 private:
  void tellRefusal();

  DiscTray& tray_;
  Dialogs& dialogs_;
  Engine& engine_;
  SharedState& state_;
  std::unique_ptr<Timer> box_;  ///< a timer of its own, so that none of the clocks stands still behind the box
  std::string refusal_;
};

}  // namespace orvanta
