// The strip's own two sliders: the drag runs here, the device is written by the faceplate's alone.
#pragma once

#include "faceplate/volume.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripSliders {
 public:
  StripSliders(Volume& volume, VolCntl& form, SharedState& state);

  SliderPair& pair() { return sliders_; }
  /// Places, link and mute as the faceplate has them.
  void follow();

  /// Hand on where a slider stands.
  void setVolumeLV() { volume_.sliders().moveWith(SliderPair::Left, sliders_); }
  void setVolumeRV() { volume_.sliders().moveWith(SliderPair::Right, sliders_); }

 private:
  Volume& volume_;
  VolCntl& form_;
  const SharedState& state_;
  SliderPair sliders_;
};

}  // namespace orvanta
