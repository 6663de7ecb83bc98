// The change to a new process: for another disc, and for the setup program's answers.
#pragma once

#include <functional>
#include <string>

#include "app/ports.h"
#include "faceplate/volume.h"
#include "state/shared_state.h"

namespace orvanta {

class Restart {
 public:
  Restart(const LifePorts& ports, Volume& volume, SharedState& state) : ports_(ports), volume_(volume), state_(state) {}

  /// Saves, starts a new process and ends this one once the new one has taken the hand-over file
  /// away. Comes back when the new one died before that, or cannot be started.
  /// `meanwhile` is called again and again while it waits.
  void forDisc(const std::function<void()>& meanwhile = {});

 private:
  std::string wordsForNext() const;

  LifePorts ports_;
  Volume& volume_;
  SharedState& state_;
};

}  // namespace orvanta
