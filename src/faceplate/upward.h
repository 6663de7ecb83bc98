// What the faceplate asks of the layers above it: windows and the ways out of the program.
#pragma once

namespace orvanta {

class FaceplateUpward {
 public:
  virtual ~FaceplateUpward() = default;
  virtual void showHelp(int topic) = 0;
  /// All that the deck can do; `byKey`: not where the mouse is.
  virtual void showMenu(bool byKey) = 0;
  /// Searches of the web for what plays.
  virtual void showSearches(bool byKey) = 0;
  virtual void startLibrary() = 0;
  virtual void switchWallpaper() = 0;
  virtual void showCdData() = 0;
  /// A disc is in, or its CD Data stands open still.
  virtual bool mayShowCdData() const = 0;
  virtual void showPlaylist() = 0;
  virtual void showTrackList() = 0;
  virtual void closeTrackList() = 0;
  virtual void showAbout() = 0;
  virtual void launchEnhancedDisc() = 0;
  /// The deck makes room: the strip or the tray stands in for it while a disc plays or pauses, else a task button alone.
  virtual void minimise() = 0;
  /// The faceplate comes back from whatever stands in for it; nothing while it is there.
  virtual void comeBack() = 0;
  /// Hands the disc to the recorder.
  virtual void record() = 0;
  /// The power button: saves, stops and ends the process. Comes back when the user would rather keep what was typed.
  virtual void exitProgram() = 0;
  /// The same without a question, as soon as no window or box of the user's stands.
  virtual void exitWhenFree() = 0;
  /// A window or a box of the user's stands: another process cannot take over yet.
  virtual bool restartWaits() const = 0;
};

}  // namespace orvanta
