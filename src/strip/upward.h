// What the strip asks of the layers above it: the tray, the wallpaper, help, the way out.
#pragma once

namespace orvanta {

class StripUpward {
 public:
  virtual ~StripUpward() = default;
  /// Puts the deck's icon into the tray, where it stands in for the strip. False, and told where that is news, when there is
  /// no tray or it took no icon: the strip shows itself. True when the icon stands there already.
  virtual bool toTray() = 0;
  /// Takes the icon away, if there is one.
  virtual void leaveTray() = 0;
  virtual void hideWallpaper() = 0;
  /// Puts the wallpaper that shows behind the deck once more.
  virtual void renewWallpaper() = 0;
  virtual void showHelp(int topic) = 0;
  /// The exit, with the disc stopped whatever the options say. Comes back when the user would rather keep what was typed.
  virtual void exitStopped() = 0;
};

}  // namespace orvanta
