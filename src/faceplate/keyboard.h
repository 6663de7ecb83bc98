// The keyboard of the faceplate: its table of keys, arrows on a slider, and the entry of a track above twenty.
#pragma once

#include "faceplate/actions.h"
#include "faceplate/track_entry.h"
#include "platform/forms/input.h"

namespace orvanta {

class Keyboard {
 public:
  Keyboard(Actions& actions, TrackEntry& entry, Volume& volume) : actions_(actions), entry_(entry), volume_(volume) {}

  /// True when the key is used.
  bool keyDown(const forms::KeyPress& key);
  /// Of another window that stands in for the faceplate: the table alone.
  bool act(const forms::KeyPress& key);

 private:
  Actions& actions_;
  TrackEntry& entry_;
  Volume& volume_;
};

}  // namespace orvanta
