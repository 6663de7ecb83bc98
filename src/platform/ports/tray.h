// The icon in the system tray.
#pragma once

#include <string>

namespace orvanta {

class TrayEvents {
 public:
  virtual ~TrayEvents() = default;
  virtual void trayPressed(bool rightButton) = 0;
  virtual void trayDoubleClicked() = 0;
};

class Tray {
 public:
  virtual ~Tray() = default;
  /// False: nothing may be hidden to it.
  virtual bool available() const = 0;
  virtual void setEvents(TrayEvents* events) = 0;
  /// Shows the icon, or changes its tip.
  virtual void show(const std::string& toolTip) = 0;
  virtual void hide() = 0;
};

}  // namespace orvanta
