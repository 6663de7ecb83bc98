// The tray's icon by Qt: a status notifier item where the desktop has them, else a window that an X tray takes in.
#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>
#include <memory>

#include "platform/ports/core_gate.h"
#include "platform/ports/tray.h"

class QDBusServiceWatcher;

namespace orvanta {

class QtTray : public Tray {
 public:
  explicit QtTray(CoreGate& gate);
  ~QtTray() override;

  bool available() const override;
  bool add(const TrayIcon& icon, TrayEvents& events) override;
  bool change(const TrayIcon& icon) override;
  bool remove() override;
  bool menuOpen() const override;

 private:
  void watch();
  void lost();
  void showMenu();
  template <class Call>
  void later(Call call);

  CoreGate& gate_;
  TrayIcon shown_;
  TrayEvents* events_ = nullptr;
  std::unique_ptr<QMenu> menu_;
  std::unique_ptr<QSystemTrayIcon> icon_;
  std::unique_ptr<QDBusServiceWatcher> notifiers_;
  QTimer watch_;
  bool docked_ = false;  ///< an X tray takes its window in
  int looks_ = 0;        ///< at an icon that no tray has put on the screen yet
  bool seen_ = false;    ///< one has
};

}  // namespace orvanta
