// The keys of CDForm: transport and scan rows, number, small and mode keys, the bar, the keyboard.
#pragma once

#include <optional>

#include "platform/forms/input.h"
#include "playback/modes.h"

namespace orvanta {

/// Indices of the scan row and of the small keys.
enum ScanKey : size_t { ScanBack, TimeKey, AbKey, ScanForward };
enum SmallKey : size_t { Above20, Shuffle, Repeat, Rip, Info };

class Buttons {
 public:
  Buttons(Engine& engine, Modes& modes, Display& display, KeyLooks& looks, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : engine_(engine), modes_(modes), display_(display), looks_(looks), form_(form), state_(state), upward_(upward) {}

  /// A person's press of a transport key: ends Intro and what a tick would find ended, whether or not the key
  /// is taken then. False for one that is not: under a mask, or lit.
  bool pressStarts(size_t key);
  /// A person's release: what has happened since the press may have taken the key away.
  void pressEnds(size_t key);
  /// The face that went down comes back; nothing is done.
  void faceUp(size_t key);
  // A press moves the face and shows its shadow, the release acts. Called by program they always act.
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
  void jumpTo(int track);
  void timeMode();
  bool entryKey(const forms::KeyPress& key);
  void closeEntry();
  bool transportKey(int code);
  bool otherKey(int code);

  Engine& engine_;
  Modes& modes_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  std::optional<size_t> down_;  ///< the transport key whose face has given way
};

}  // namespace orvanta
