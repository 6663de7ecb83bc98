// Colours of the faceplate's display and grid.
#pragma once

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class DisplayColours {
 public:
  DisplayColours(CDForm& form, SharedState& state) : form_(form), state_(state) {}

  /// All display colours, at the faceplate's load.
  void loadorvanta1();
  /// The track grid, once the track count is known.
  void loadorvanta1a();
  /// The look without an audio disc in the drive, with its prompt.
  void disabledLook();

 private:
  void customDisplay();
  void plainDisplay();

  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
