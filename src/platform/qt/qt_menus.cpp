// A menu runs a loop of its own; when the process ended in it, control does not come back.
#include "platform/qt/qt_menus.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/ports/screen.h"
#include "platform/qt/form_view.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

void setLooks(QAction& action, const MenuItem& item) {
  action.setText(toQt(item.caption));
  action.setEnabled(item.enabled);
  action.setVisible(item.shown);
  action.setCheckable(item.checked);
  action.setChecked(item.checked);
}

void addItem(QMenu& menu, const MenuItem& item) {
  if (item.caption.empty()) {
    menu.addSeparator();
    return;
  }
  QAction* action = nullptr;
  if (item.items.empty()) {
    action = menu.addAction(toQt(item.caption));
  } else {
    QMenu* part = menu.addMenu(toQt(item.caption));
    fillMenu(*part, item);
    action = part->menuAction();
  }
  action->setData(toQt(item.name));
  setLooks(*action, item);
}

bool standsFor(const QAction& action, const MenuItem& item) {
  if (item.caption.empty() || action.isSeparator()) return item.caption.empty() && action.isSeparator();
  return action.data().toString() == toQt(item.name) && (action.menu() == nullptr) == item.items.empty();
}

/// Where a key asked, or a press that the mouse did not make: below the control that shows the focus, else over the window in use.
QPoint placeOver(const QWidget* window, bool byKey) {
  const QPoint mouse = QCursor::pos();
  if (window == nullptr || (!byKey && window->frameGeometry().contains(mouse))) return mouse;
  const auto* deck = dynamic_cast<const FormWindow*>(window);
  if (const QRect focus = deck == nullptr ? QRect() : deck->focusPlace(); !focus.isEmpty()) return focus.bottomLeft() + QPoint(0, 1);
  constexpr int kPart = 8;  // of the window's width and height
  return window->mapToGlobal(QPoint(window->width() / kPart, window->height() / kPart));
}

/// As an arrow does it, which opens no submenu yet.
void markFirst(QMenu& menu) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(&menu, &down);
}

/// The second press of a double click belongs to the first: whoever clicks twice wants the menu, and does not see it go.
class DoubleClick : public QObject {
 public:
  bool eventFilter(QObject* /*menu*/, QEvent* event) override {
    if (event->type() == QEvent::Paint && !since_.isValid()) since_.start();
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (press) taken_ = isSoon() && isHere(*static_cast<QMouseEvent*>(event));
    return press ? taken_ : event->type() == QEvent::MouseButtonRelease && std::exchange(taken_, false);
  }

 private:
  bool isSoon() const { return !since_.isValid() || since_.elapsed() < QApplication::doubleClickInterval(); }
  bool isHere(const QMouseEvent& mouse) const {
    return (mouse.globalPosition().toPoint() - place_).manhattanLength() < QApplication::startDragDistance();
  }

  QPoint place_ = QCursor::pos();
  QElapsedTimer since_;  ///< the menu was seen
  bool taken_ = false;   ///< its release is still to come
};

}  // namespace

void fillMenu(QMenu& menu, const MenuItem& item) {
  menu.clear();
  qDeleteAll(menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
  for (const MenuItem& each : item.items) addItem(menu, each);
}

void updateMenu(QMenu& menu, const MenuItem& item) {
  const auto actions = menu.actions();
  if (!std::equal(actions.begin(), actions.end(), item.items.begin(), item.items.end(),
                  [](const QAction* action, const MenuItem& each) { return standsFor(*action, each); })) {
    fillMenu(menu, item);
    return;
  }
  for (qsizetype i = 0; i < actions.size(); ++i) {
    const MenuItem& each = item.items[static_cast<size_t>(i)];
    if (each.caption.empty()) continue;
    setLooks(*actions[i], each);
    if (actions[i]->menu() != nullptr) updateMenu(*actions[i]->menu(), each);
  }
}

std::string QtMenus::popUp(const MenuItem& item, bool byKey) {
  screen_.setPointer(Pointer::Normal);
  QMenu menu;
  fillMenu(menu, item);
  const QWidget* window = QApplication::activeWindow();
  menu.winId();
  if (window != nullptr && menu.windowHandle() != nullptr) menu.windowHandle()->setTransientParent(window->windowHandle());
  DoubleClick click;
  if (!byKey) menu.installEventFilter(&click);
  if (byKey) QTimer::singleShot(0, &menu, [&menu] { markFirst(menu); });
  const QAction* chosen = menu.exec(placeOver(window, byKey));
  gate_.leaveIfEnded();
  return chosen == nullptr ? std::string() : chosen->data().toString().toStdString();
}

}  // namespace orvanta
