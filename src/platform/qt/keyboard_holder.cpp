// A window manager answers late, so what was asked of it counts until it has.
#include "platform/qt/keyboard_holder.h"

#include <QApplication>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace orvanta {

namespace {

/// There is one keyboard.
struct Holders {
  QVector<QPointer<QWidget>> order;  ///< whoever has had it, the last one at the end
  QPointer<QWidget> asked;           ///< it will have it
};

Holders& holders() {
  static Holders all;
  return all;
}

void putLast(QWidget& window) {
  holders().order.removeAll(nullptr);
  holders().order.removeAll(&window);
  holders().order.append(&window);
}

}  // namespace

void keyboardTaken(QWidget& window) {
  holders().asked = nullptr;
  putLast(window);
}

void giveKeyboardTo(QWidget& window) {
  putLast(window);
  if (!window.isActiveWindow()) holders().asked = &window;
  window.activateWindow();
}

void keyboardLeaves(QWidget& window) {
  const bool had = window.isVisible() && (window.isActiveWindow() || holders().asked == &window);
  holders().order.removeAll(&window);
  if (had) giveKeyboardBack();
}

bool keyboardIsOurs() { return QApplication::activeWindow() != nullptr || holders().asked != nullptr; }

void giveKeyboardBack() {
  holders().asked = nullptr;
  if (QApplication::activeModalWidget() != nullptr) return;
  const QVector<QPointer<QWidget>> order = holders().order;
  for (auto last = order.rbegin(); last != order.rend(); ++last) {
    if (*last == nullptr || !(*last)->isVisible() || (*last)->isMinimized()) continue;
    giveKeyboardTo(**last);
    return;
  }
}

}  // namespace orvanta
