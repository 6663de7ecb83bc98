// What the deck is doing, as one value, and those who want to know.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "playback/engine.h"

namespace orvanta {

struct DeckStatus {
  DeckState state = DeckState::Stopped;
  int16_t track = 0;  ///< 0 for none
  int16_t tracks = 0;
  int second = 0;  ///< of the track that plays
  int length = 0;  ///< its seconds
  std::string artist;
  std::string title;       ///< of the disc; both "" while nobody knows it
  bool searching = false;  ///< the CDDB is asked for them
  std::string trackTitle;  ///< "" before a track was selected or played
  PlayMode playMode = Cont;
  bool repeat = false;
  bool shuffle = false;
  bool intro = false;
  bool loop = false;  ///< between A and B, or from A on
  bool discIn = false;
  bool muted = false;
  int left = 0;  ///< level in percent
  int right = 0;

  bool operator==(const DeckStatus&) const = default;
};

class StatusBoard {
 public:
  using Watcher = std::function<void(const DeckStatus&)>;

  StatusBoard(const Engine& engine, const CDForm& form, const SharedState& state) : engine_(engine), form_(form), state_(state) {}

  /// From the next change on.
  void watch(Watcher watcher) { watchers_.push_back(std::move(watcher)); }
  /// On every way out of a tick and after an act: tells the watchers when something differs from what they know.
  void tell();
  /// As last told.
  const DeckStatus& last() const { return last_; }

 private:
  DeckStatus now() const;

  const Engine& engine_;
  const CDForm& form_;
  const SharedState& state_;
  std::vector<Watcher> watchers_;
  DeckStatus last_;
};

}  // namespace orvanta
