// Playing on after the deck was switched off: a small player without a window (orvplayon) takes the disc
// over from the deck, and gives it back to the next one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/disc/disc_source.h"
#include "platform/disc/player.h"

namespace orvanta {

/// A stretch of the disc that is to be played, in frames.
struct Stretch {
  int from = 0;
  int to = 0;
};

/// A stretch as play_on_talk.h writes it.
std::string playWords(const Stretch& stretch);
std::optional<Stretch> stretchOf(const std::string& words);

/// Hands a disc that plays to `program`, started with `arguments`. False, and the deck's sound stays as it
/// is, when it does not come up; true: the deck's player has stopped.
bool handOn(Player& player, int to, const std::string& drive, const std::string& program, const std::vector<std::string>& arguments);

/// Takes a disc over from a player without a window on `drive`; nullopt when there is none.
std::optional<Stretch> takeBack(const std::string& drive);

/// A drive that others may hold, for the moments before it is let go of.
class SharedDrive : public DiscSource {
 public:
  explicit SharedDrive(DiscSource& drive) : drive_(drive) {}
  bool lock() override { return true; }
  DriveStatus poll() override { return drive_.poll(); }
  const Toc& toc() const override { return drive_.toc(); }
  std::string firstEntry() const override { return drive_.firstEntry(); }
  SheetTexts texts() const override { return drive_.texts(); }
  std::string missing() const override { return drive_.missing(); }
  bool read(int frame, int count, int16_t* samples) override { return drive_.read(frame, count, samples); }
  void openTray() override { drive_.openTray(); }
  void closeTray() override { drive_.closeTray(); }
  std::string accept(const std::string& imagePath) override { return drive_.accept(imagePath); }

 private:
  DiscSource& drive_;
};

}  // namespace orvanta
