// The other way to the level: the system's mixer program, started hidden and worked by key texts.
#pragma once

#include "faceplate/ports.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class MixerDriver {
 public:
  MixerDriver(const FaceplatePorts& ports, CDForm& form, SharedState& state) : ports_(ports), form_(form), state_(state) {}

  /// At the faceplate's first activation: balance to the middle, volume to the half, mute off.
  void prepare();
  /// Moves the mixer's slider to an attenuation of 0 to 100. Nothing while it is at work: its keys
  /// let events run.
  void setFVol(int attenuation);
  void setMute(bool mute);
  /// At the exit and before recording.
  void tidyUp();

 private:
  void start();
  void send(std::initializer_list<const char*> keys);
  void close();

  FaceplatePorts ports_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
