// The keys of CDForm: transport and scan rows, number, small and mode keys, the bar, the keyboard.
#pragma once

#include "platform/forms/input.h"
#include "playback/modes.h"

namespace orvanta {

/// Indices of the scan row and of the small keys.
enum ScanKey : size_t { ScanBack, TimeKey, AbKey, ScanForward };
enum SmallKey : size_t { Above20, Shuffle, Repeat, Rip, Info };

class Buttons {
 public:
  Buttons(Engine& engine, Modes& modes, TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : engine_(engine), modes_(modes), display_(display), form_(form), state_(state), upward_(upward) {}

  /// Whether a person's press is taken: not under a mask, not on a lit key. A release by program
  /// always acts.
  bool accepts(size_t key) const;
  // A press moves the face and shows its shadow, the release acts.
  void icntla_MouseDown(size_t key);
  void icntla_MouseUp(size_t key);

  void scntla_MouseDown(size_t key);
  void scntla_MouseUp(size_t key);
  /// Number keys 1 to 20, by index from 0.
  void Image17_MouseUp(size_t key);
  void Image16_MouseUp(size_t key);
  void Label9_Click();
  /// `x` twips along the bar.
  void CDStatusBar_Click(int x);

  /// The key table; true when the key is one of it.
  bool keyDown(const forms::KeyPress& key);

 private:
  bool asleep() const { return state_.disc.noDiscState > 0 || state_.disc.drawerOpen == kOn; }
  void pressed(size_t key);
  void timeMode();
  bool entryKey(const forms::KeyPress& key);
  void closeEntry();
  bool transportKey(int code);
  bool otherKey(int code);

  Engine& engine_;
  Modes& modes_;
  TimeDisplay& display_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool down_ = false;
};

}  // namespace orvanta
