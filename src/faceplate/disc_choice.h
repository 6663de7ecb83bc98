// How a person puts a disc in: a click on the open tray, or a file that is dropped on the deck.
#pragma once

#include <string>

#include "faceplate/ports.h"
#include "state/shared_state.h"

namespace orvanta {

class DiscChoice {
 public:
  DiscChoice(const FaceplatePorts& ports, SharedState& state)
      : device_(ports.device), tray_(ports.tray), dialogs_(ports.dialogs), state_(state) {}

  /// The drawer is open, or nothing lies in it.
  bool discWanted() const { return state_.disc.asleep(); }
  /// A real tray is pushed shut, the tray of images asks which one to take.
  void ask();
  bool takesFile(const std::string& path) const;
  void offer(const std::string& path);

 private:
  CdDevice& device_;
  DiscTray& tray_;
  Dialogs& dialogs_;
  SharedState& state_;
};

}  // namespace orvanta
