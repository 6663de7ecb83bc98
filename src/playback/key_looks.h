// The looks of the keys: which are masked, which are lit, whose legends are grey. Looks are rows of one
// table, a state of the deck each, and nothing else writes these controls.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Clock;
class Timer;

/// What the deck is doing, as its keys show it.
enum class DeckState : uint8_t { Stopped, Playing, Paused, DoorOpen, NoDisc, Leaving };

/// A row of the table. Transport keys are bits by TransportKey, legends by their place among the legends.
struct Look {
  uint8_t masked;
  uint8_t lit;
  bool scanMasked;
  uint16_t grey;   ///< legends that go grey
  uint16_t black;  ///< legends that come back
};

class KeyLooks {
 public:
  KeyLooks(Clock& clock, CDForm& form, const Settings& settings);
  ~KeyLooks();

  /// At the form's load: a deck at rest, no glow.
  void reset();
  /// After an act: the look of what the deck does now, and no glow.
  void show(DeckState state);
  /// At a tick: nothing while the state is the one shown, so that legends greyed by a mode key stay so.
  void follow(DeckState state);
  /// Once more, after the faceplate has changed its layout.
  void arrange();

  /// The glow of a key that was pressed: it lasts 0.3 s from the last press, over the look of the state.
  void flash(TransportKey key);

  /// Whether a person's press is taken: not under a mask, not on a lit key. A glow refuses nothing.
  bool accepts(size_t key) const;

  bool acceptsScan() const;
  bool acceptsShuffle() const;
  bool acceptsRepeat() const;

  /// A scan key's symbol while it is held; by place in the scan row.
  void lightScan(size_t key, bool lit);
  void darkenScan();

  /// Lights the key of a play mode and darkens the others.
  void lightMode(ModeKey mode);
  /// An enhanced disc starts with Intro unmarked.
  void darkenIntro();
  /// Shuffle and Repeat are not to be had now; record is where a program is stored.
  void greyChance(bool stored);
  void allowShuffle();
  void programStored(bool stored);
  /// The number keys of a disc of so many tracks, and the key for those above twenty.
  void numbers(int tracks);
  void timeLegend();
  /// The power key and its lamp, of a deck that goes off.
  void goingOff();
  /// The A-B key's legend goes with the display's indicator.
  void abLegend(Colour shade);

 private:
  void enter(DeckState state);
  void paint();
  void colour(unsigned which, Colour shade);

  CDForm& form_;
  const Settings& settings_;
  std::unique_ptr<Timer> glowEnd_;
  DeckState state_ = DeckState::Stopped;
  std::optional<TransportKey> glow_;
};

}  // namespace orvanta
