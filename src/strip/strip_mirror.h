// The faceplate's display, keys and levels on the strip. It keeps nothing of its own: what differs is copied.
#pragma once

#include "playback/deck_status.h"
#include "strip/strip_colours.h"
#include "strip/strip_sliders.h"
#include "windows/cdform.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripMirror {
 public:
  StripMirror(StripColours& colours, StripSliders& sliders, VolCntl& form, const CDForm& faceplate, const SharedState& state)
      : colours_(colours), sliders_(sliders), form_(form), faceplate_(faceplate), state_(state) {}

  /// On every way out of a tick, and after an act of the strip's. Nothing while it is not loaded.
  void follow();

 private:
  void keys();
  void folded();
  void unfolded();
  void calendar();
  void time(forms::Label& label);

  StripColours& colours_;
  StripSliders& sliders_;
  VolCntl& form_;
  const CDForm& faceplate_;
  const SharedState& state_;
};

}  // namespace orvanta
