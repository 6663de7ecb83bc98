// How the strip is laid out: folded or unfolded, with its border or without, with sliders or without.
#pragma once

#include "state/shared_state.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripLayout {
 public:
  StripLayout(VolCntl& form, SharedState& state) : form_(form), state_(state) {}

  /// At the load, from the design's places: folded.
  void apply();
  void fold() { lay(false); }
  void unfold() { lay(true); }

 private:
  void lay(bool unfolded);
  bool border() const { return state_.settings.faceplateBorder != kOff; }
  void takeBorderAway();
  void takeSlidersAway();

  VolCntl& form_;
  SharedState& state_;
};

}  // namespace orvanta
