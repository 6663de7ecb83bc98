// The strip's own two sliders: the drag runs here, the device is written by the faceplate's alone.
#pragma once

#include "faceplate/volume.h"
#include "platform/forms/input.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripSliders {
 public:
  StripSliders(Volume& volume, VolCntl& form, SharedState& state);

  // False for a control that is part of no slider.
  bool mouseDown(const forms::Control& control, const forms::Mouse& mouse);
  bool mouseMove(const forms::Control& control, const forms::Mouse& mouse);
  bool mouseUp(const forms::Control& control);
  bool step(const forms::Control& control, int steps);
  /// A drag that the window's end cuts off is over.
  void letGo();

  /// Places, link and mute as the faceplate has them.
  void follow();

  /// Hand on where a slider stands.
  void setVolumeLV() { volume_.moveWith(SliderPair::Left, sliders_); }
  void setVolumeRV() { volume_.moveWith(SliderPair::Right, sliders_); }

 private:
  bool byMixer() const { return state_.settings.soundMode == kMixerProgram; }
  void moved(SliderPair::Side side);

  Volume& volume_;
  VolCntl& form_;
  SharedState& state_;
  SliderPair sliders_;
};

}  // namespace orvanta
