// An icon in the desktop's tray.
#pragma once

#include <string>

#include "platform/ports/menu.h"

namespace orvanta {

struct TrayIcon {
  int picture = 0;  ///< 0 the deck, 1 muted, 2 sound restored
  std::string tip;
  MenuItem menu;  ///< all of it can be chosen, whatever is `enabled`

  bool operator==(const TrayIcon&) const = default;
};

/// What comes back from it, when the program is next idle.
class TrayEvents {
 public:
  virtual ~TrayEvents() = default;
  /// The left button. The second press of a double click is none.
  virtual void clicked() = 0;
  /// An item of the menu, by its name.
  virtual void chosen(const std::string& item) = 0;
  /// The tray has gone, or never put the icon on the screen: there is none any more.
  virtual void gone() = 0;
};

class Tray {
 public:
  virtual ~Tray() = default;
  /// Whether the desktop has a tray now.
  virtual bool available() const = 0;
  /// False: it was not taken, and nothing will be told to `events`.
  virtual bool add(const TrayIcon& icon, TrayEvents& events) = 0;
  /// False: it looks as it looked before.
  virtual bool change(const TrayIcon& icon) = 0;
  /// False: it cannot be taken away. Nothing is told afterwards.
  virtual bool remove() = 0;
  /// The icon's menu is open, as far as the desktop tells.
  virtual bool menuOpen() const = 0;
};

}  // namespace orvanta
