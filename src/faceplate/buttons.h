// The keys of CDForm by their given names: transport and scan rows, number and small keys, the bar.
#pragma once

#include <optional>

#include "faceplate/sunken_key.h"
#include "playback/modes.h"

namespace orvanta {

class FaceplateUpward;

class Buttons {
 public:
  Buttons(Engine& engine, Modes& modes, Display& display, KeyLooks& looks, CDForm& form, SharedState& state, FaceplateUpward& upward)
      : engine_(engine), modes_(modes), display_(display), looks_(looks), form_(form), state_(state), upward_(upward) {}

  /// A person's press of a transport key: ends Intro and what a tick would find ended, whether or not the key
  /// is taken then. False for one that is not: under a mask, or lit.
  bool pressStarts(size_t key);
  /// A person's release: what has happened since the press may have taken the key away.
  void pressEnds(size_t key);
  /// The face that went down comes back; nothing is done.
  void faceUp(size_t key);
  /// What a key stands for. Called by program it always acts.
  void icntla_MouseUp(size_t key);

  void scntla_MouseDown(size_t key);
  void scntla_MouseUp(size_t key);
  /// Number keys 1 to 20, by index from 0.
  void Image17_MouseUp(size_t key);
  void Image16_MouseUp(size_t key);
  /// `x` twips along the bar.
  void CDStatusBar_Click(int x);
  /// What the number keys do.
  void jumpTo(int track);

 private:
  bool asleep() const { return state_.disc.asleep(); }
  /// A pressed key lies a little deeper, over its shadow.
  void faceDown(size_t key);
  void timeMode();

  Engine& engine_;
  Modes& modes_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  FaceplateUpward& upward_;
  SunkenKey face_;
  std::optional<size_t> down_;  ///< the transport key whose face has given way
};

}  // namespace orvanta
