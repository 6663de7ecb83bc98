// What playback asks of the layers above it, in its own words.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvanta {

class PlaybackUpward {
 public:
  virtual ~PlaybackUpward() = default;
  /// Shows the door open and the deck without a disc.
  virtual void openDrawer() = 0;
  /// Shows the door shut.
  virtual void closeDrawer() = 0;
  /// The look of a deck without a disc, with its prompt.
  virtual void showNoDisc() = 0;
  /// Starts a new process of the program for the disc in the drive and ends this one. Comes back
  /// when the new one died before it took over.
  virtual void restartForDisc() = 0;
  /// Runs the setup program, waits for it, and takes over what it wrote.
  virtual void runSetup() = 0;
  virtual void runMixer() = 0;
  virtual void muteKey() = 0;
  /// Both channels a step up, or down.
  virtual void volumeKey(bool up) = 0;
  virtual void showHelp(int topic) = 0;
  virtual void showMenu() = 0;
  virtual void showCdData() = 0;
  virtual void showPlaylist() = 0;
  virtual void showTrackList() = 0;
  virtual void closeTrackList() = 0;
  virtual void launchEnhancedDisc() = 0;
  /// Hands the disc to the recorder.
  virtual void record() = 0;
  /// The power button: saves, stops and ends the process. Comes back when the user would rather keep what was typed.
  virtual void exitProgram() = 0;
  /// The same without a question, as soon as no window or box of the user's stands.
  virtual void exitWhenFree() = 0;
  /// A window or a box of the user's stands: another process cannot take over yet.
  virtual bool restartWaits() const = 0;
  /// From each timer of the clock, also where nothing plays.
  virtual void everyTick() = 0;
  /// The disc's texts were cleared: windows that show them close, but for one in which a person writes.
  virtual void closeDiscWindows() = 0;
  /// The disc is known and no lookup ran yet: time for an automatic one, where it is wanted.
  virtual void automaticLookup() = 0;
  /// Fills the disc's texts from a file of the disc family; false when it cannot be read.
  virtual bool readCdRecord(const std::string& cdFilePath) = 0;
  /// The disc's time correction; 0 when it has none.
  virtual int16_t readTimeCorrection() = 0;
  /// The user's captions of the two free fields of a disc's texts.
  virtual void readUserCaptions() = 0;
  /// The values of the disc's program file as they stand; nullopt without a file.
  virtual std::optional<std::vector<int>> readProgram() = 0;
};

}  // namespace orvanta
