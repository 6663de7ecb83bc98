// Icon, menu, and the watch over a tray that may die. What the user does is told when Qt is through with it, since the
// answer may take the icon away.
#include "platform/qt/qt_tray.h"

#include <QAction>
#include <QApplication>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QIcon>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_menus.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

constexpr int kLook = 500;     ///< milliseconds between two looks at the tray
constexpr int kPatience = 10;  ///< looks until an icon that is on no screen is given up

QIcon pictureOf(int picture) {
  static constexpr const char* kNames[] = {"tray-0-normal", "tray-1-muted", "tray-2-restored"};
  QIcon icon;
  for (const char* size : {"16", "24", "48"}) {
    icon.addFile(QStringLiteral(":/icons/%1-%2.png").arg(QLatin1String(kNames[std::clamp(picture, 0, 2)]), QLatin1String(size)));
  }
  return icon;
}

/// Qt takes what looks like it for a page; a desktop's tray may do so on its own.
QString tipOf(const std::string& text) { return toQt(text).replace(QLatin1Char('<'), QChar(0x2039)); }

/// The window that waits for an X tray to take it in; nullptr where the icon is a status notifier item.
const QWidget* dockedWindow() {
  const auto windows = QApplication::topLevelWidgets();
  const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* each) { return each->inherits("QSystemTrayIconSys"); });
  return found == windows.end() ? nullptr : *found;
}

}  // namespace

QtTray::QtTray(CoreGate& gate) : gate_(gate) {
  QObject::connect(&watch_, &QTimer::timeout, [this] { watch(); });
}

QtTray::~QtTray() = default;

/// A menu that the desktop shows itself may be opened without a word of its end, so that one does not count.
bool QtTray::menuOpen() const { return menu_ != nullptr && menu_->isVisible(); }

bool QtTray::available() const { return QSystemTrayIcon::isSystemTrayAvailable(); }

template <class Call>
void QtTray::later(Call call) {
  QTimer::singleShot(0, &watch_, [this, call] {
    if (events_ != nullptr) gate_.enter([&] { call(*events_); });
  });
}

bool QtTray::add(const TrayIcon& icon, TrayEvents& events) {
  if (icon_ != nullptr || !available()) return false;
  menu_ = std::make_unique<QMenu>();
  QObject::connect(menu_.get(), &QMenu::triggered, &watch_, [this](const QAction* action) {
    showMenu();  // Qt has turned the item's mark, which tells the deck's state
    later([item = action->data().toString().toStdString()](TrayEvents& to) { to.chosen(item); });
  });
  icon_ = std::make_unique<QSystemTrayIcon>();
  QObject::connect(icon_.get(), &QSystemTrayIcon::activated, &watch_, [this](QSystemTrayIcon::ActivationReason how) {
    if (how == QSystemTrayIcon::Trigger) later([](TrayEvents& to) { to.clicked(); });
  });
  events_ = &events;
  shown_ = {};
  change(icon);
  icon_->setContextMenu(menu_.get());
  icon_->show();
  docked_ = dockedWindow() != nullptr;
  notifiers_ = std::make_unique<QDBusServiceWatcher>(QStringLiteral("org.kde.StatusNotifierWatcher"), QDBusConnection::sessionBus(),
                                                     QDBusServiceWatcher::WatchForUnregistration);
  QObject::connect(notifiers_.get(), &QDBusServiceWatcher::serviceUnregistered, &watch_, [this] {
    if (!docked_) lost();
  });
  looks_ = 0;
  seen_ = false;
  watch_.start(kLook);
  return true;
}

bool QtTray::change(const TrayIcon& icon) {
  if (icon_ == nullptr) return false;
  const TrayIcon before = std::exchange(shown_, icon);
  if (icon_->icon().isNull() || before.picture != icon.picture) icon_->setIcon(pictureOf(icon.picture));
  if (before.tip != icon.tip) icon_->setToolTip(tipOf(icon.tip));
  if (before.menu != icon.menu) showMenu();
  return true;
}

void QtTray::showMenu() {
  MenuItem menu = shown_.menu;
  for (MenuItem& item : menu.items) item.enabled = true;
  updateMenu(*menu_, menu);
  const auto actions = menu_->actions();
  for (qsizetype i = 0; i < actions.size() && i < static_cast<qsizetype>(menu.items.size()); ++i) {
    if (menu.items[static_cast<size_t>(i)].isDefault) menu_->setDefaultAction(actions[i]);
  }
}

bool QtTray::remove() {
  watch_.stop();
  events_ = nullptr;
  notifiers_.reset();
  icon_.reset();
  menu_.reset();
  return true;
}

/// A status notifier's end is told by the bus; asking the bus here could wait for a desktop that hangs.
void QtTray::watch() {
  if (!docked_) return;
  const QWidget* window = dockedWindow();
  seen_ = seen_ || (window != nullptr && window->windowHandle() != nullptr && window->windowHandle()->isExposed());
  // A panel that hides itself hides the icon too: once seen it counts until its tray, or the window in it, has gone.
  if (window == nullptr || !available() || (!seen_ && ++looks_ > kPatience)) lost();
}

void QtTray::lost() {
  TrayEvents* events = events_;
  remove();
  if (events != nullptr) gate_.enter([&] { events->gone(); });
}

}  // namespace orvanta
