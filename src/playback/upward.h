// What playback asks of the layers above it, in its own words.
#pragma once

namespace orvanta {

class PlaybackUpward {
 public:
  virtual ~PlaybackUpward() = default;
  /// Shows the door open and the deck without a disc; what was shown or looked up of the disc goes.
  virtual void openDrawer() = 0;
  /// Shows the door shut.
  virtual void closeDrawer() = 0;
  /// The look of a deck without a disc, with its prompt.
  virtual void showNoDisc() = 0;
  /// Starts a new process of the program for the disc in the drive and ends this one. Comes back
  /// when the new one died before it took over.
  virtual void restartForDisc() = 0;
  /// A window or a box of the user's stands: another process cannot take over yet.
  virtual bool restartWaits() const = 0;
  /// Runs the setup program, waits for it, and takes over what it wrote.
  virtual void runSetup() = 0;
  /// Hands the disc to the recorder.
  virtual void record() = 0;
  /// The disc's texts were cleared: windows that show them close, but for one in which a person writes.
  virtual void closeDiscWindows() = 0;
  /// The disc is known and no lookup ran yet: time for an automatic one, where it is wanted.
  virtual void automaticLookup() = 0;
  /// On every way out of a tick, also where nothing plays, when the status has been told.
  virtual void afterTick() = 0;
};

}  // namespace orvanta
