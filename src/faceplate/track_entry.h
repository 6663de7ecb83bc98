// The entry for a track above twenty, in the place of its key. While it is open it takes the keys.
#pragma once

#include "faceplate/buttons.h"
#include "platform/forms/input.h"

namespace orvanta {

class TrackEntry {
 public:
  TrackEntry(Buttons& buttons, Display& display, CDForm& form, const SharedState& state)
      : buttons_(buttons), display_(display), form_(form), state_(state) {}

  bool open() const { return form_.Text1.visible; }
  bool keyDown(const forms::KeyPress& key);
  /// Without a jump: the key takes its place again.
  void close();

 private:
  void take();

  Buttons& buttons_;
  Display& display_;
  CDForm& form_;
  const SharedState& state_;
};

}  // namespace orvanta
