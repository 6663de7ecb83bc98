// The level: from what the sliders show to attenuation and the device's value; mute, and the mixer in its place.
#pragma once

#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/mixer_driver.h"
#include "faceplate/ports.h"
#include "faceplate/slider_pair.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class AuxVolume;
class Dialogs;

/// The device's word: left channel in the low half, right in the high one.
uint32_t packedVolume(int32_t left, int32_t right);

class Volume {
 public:
  Volume(const FaceplatePorts& ports, Layout& layout, MixerDriver& mixer, InterfaceSounds& sounds, CDForm& form, SharedState& state);

  /// At each activation of the faceplate.
  void activate();
  /// Reads the device and sets the sliders. A device that cannot be read takes them away for this session.
  void cdvol();
  /// Bring to the device what PctL or PctR shows.
  void setVolumeL() { setVolume(SliderPair::Left); }
  void setVolumeR() { setVolume(SliderPair::Right); }

  SliderPair& sliders() { return sliders_; }
  const SliderPair& sliders() const { return sliders_; }
  /// Both, up (above 0) or down.
  void stepBoth(int steps);

  /// A click on a percent silences its channel.
  void PctL_Click() { silence(SliderPair::Left); }
  void PctR_Click() { silence(SliderPair::Right); }
  /// 1 mutes, 0 brings the sound back.
  void Image2_MouseUp(size_t index);
  void Image9_MouseUp(size_t index);
  void toggleLink() { Image9_MouseUp(linked() ? 1 : 0); }
  bool linked() const { return sliders_.linked(); }
  /// The right mouse button takes the sliders away, or back.
  void SSPanel1_RightClick();
  void Command3D16_RightClick();

  bool muted() const { return form_.Image2[0].visible; }
  /// There are sliders; else the mixer opens in their place.
  bool byHand() const { return state_.settings.soundMode != kNoSliders; }
  /// Sound as it was, before the process goes.
  void releaseMute();
  MixerDriver& mixer() { return mixer_; }

 private:
  using Side = SliderPair::Side;
  /// One channel's numbers.
  struct Channel {
    int32_t& raw;
    int16_t& atten;
    int16_t& attenPrev;
  };

  Channel channel(Side side);
  bool byMixer() const { return state_.settings.soundMode == kMixerProgram; }
  void setVolume(Side side);
  void silence(Side side);
  void unmuted();
  void write();
  bool findDevice();
  void report(int error);
  void slidersOff();

  AuxVolume& aux_;
  Dialogs& dialogs_;
  Layout& layout_;
  MixerDriver& mixer_;
  InterfaceSounds& sounds_;
  CDForm& form_;
  SharedState& state_;
  SliderPair sliders_;
  int16_t mutedBy_ = 0;  ///< soundMode when mute was pressed last
  bool fresh_ = true;    ///< the mixer program is not prepared yet
};

}  // namespace orvanta
