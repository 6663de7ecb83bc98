// What playback asks of the layers above it, in its own words.
#pragma once

#include <string>

namespace orvanta {

class PlaybackUpward {
 public:
  virtual ~PlaybackUpward() = default;
  /// Shows the door open and the deck without a disc.
  virtual void openDrawer() = 0;
  /// The power button: saves, stops and ends the process.
  virtual void exitProgram() = 0;
  /// Fills the disc's texts from a file of the disc family; false when it cannot be read.
  virtual bool readCdRecord(const std::string& cdFilePath) = 0;
};

}  // namespace orvanta
