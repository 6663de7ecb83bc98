// The transport row and the keyboard of CDForm.
#pragma once

#include "platform/forms/input.h"
#include "playback/engine.h"

namespace orvanta {

class Buttons {
 public:
  Buttons(CdDevice& device, Clock& clock, Engine& engine, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : device_(device), clock_(clock), engine_(engine), form_(form), state_(state), upward_(upward) {}

  /// Whether a person's press is taken: not under a mask, not on a lit key. A release by program
  /// always acts.
  bool accepts(size_t key) const;
  // A press moves the face and shows its shadow, the release acts.
  void icntla_MouseDown(size_t key);
  void icntla_MouseUp(size_t key);

  /// The key table; true when the key is one of it.
  bool keyDown(const forms::KeyPress& key);

 private:
  void pressed(TransportKey key);
  void playKey();
  void pauseKey();
  void stopKey();

  CdDevice& device_;
  Clock& clock_;
  Engine& engine_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool down_ = false;
};

}  // namespace orvanta
