// The deck in the tray: an icon in the strip's place, its menu, and the ways back.
#pragma once

#include <span>
#include <string>

#include "platform/ports/tray.h"
#include "playback/deck_status.h"
#include "shell/ports.h"
#include "state/shared_state.h"
#include "strip/strip.h"

namespace orvanta {

class Help;
class ShellUpward;

/// Whom the icon's menu reaches.
struct TrayReach {
  Strip& strip;
  Help& help;
};

class TrayControl : public TrayEvents {
 public:
  TrayControl(const ShellPorts& ports, const TrayReach& on, StatusBoard& status, SharedState& state, ShellUpward& upward);

  /// Puts the icon there, upon which it stands in for the strip. False without a tray, and for one that refuses it, which is told.
  bool load();
  /// An icon that could not be taken away would stay in the tray for good: the program ends with it.
  void unload();

  void clicked() override;
  void chosen(const std::string& item) override;
  void gone() override;

 private:
  struct Row;
  static std::span<const Row> rows();
  TrayIcon icon() const;
  bool passedOver();
  void follow();
  void showPicture();
  void act(int picture);
  template <int Item>
  void light();
  template <size_t Key>
  void key();
  void eject();
  void exit();
  void help();
  void about();

  ShellPorts ports_;
  TrayReach on_;
  const StatusBoard& status_;
  SharedState& state_;
  ShellUpward& upward_;
  TrayIcon shown_;
  int iconState_ = 0;        ///< goes round with the clicks, whatever else mutes
  bool trayLoaded_ = false;  ///< the icon stands
  bool sits_ = false;        ///< the strip is hidden for it
  bool busy_ = false;        ///< what comes meanwhile is passed over
};

}  // namespace orvanta
