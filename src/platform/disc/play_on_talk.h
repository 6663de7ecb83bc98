// The conversation of the player without a window with the deck: what each line does, and what it is answered.
#pragma once

#include <string>

#include "platform/disc/disc_player.h"

namespace orvanta {

/// One line each way: "ready" -> "ok" once the disc is known, "wait" before; "play FROM TO" -> "ok", or "no" for a
/// stretch that is not on the disc; "take" -> "FROM TO", upon which it stops. All else is answered "no".
class PlayOnTalk {
 public:
  explicit PlayOnTalk(DiscPlayer& player) : player_(player) {}

  std::string answer(const std::string& line);

  bool playing() const { return playing_; }
  /// The disc was given back, or has come to its end.
  bool over() const { return given_ || (playing_ && player_.state() == PlayState::Stopped); }

 private:
  std::string play(const std::string& words);

  DiscPlayer& player_;
  int to_ = 0;
  bool playing_ = false;
  bool given_ = false;
};

}  // namespace orvanta
