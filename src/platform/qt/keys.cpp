// Letters, digits and the blank have the same codes in both.
#include "platform/qt/keys.h"

#include <QKeyEvent>

namespace orvanta {

namespace {

int keyCode(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return forms::key::kTab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return forms::key::kEnter;
    case Qt::Key_Backspace: return forms::key::kBackspace;
    case Qt::Key_Escape: return forms::key::kEscape;
    case Qt::Key_Left: return forms::key::kLeft;
    case Qt::Key_Up: return forms::key::kUp;
    case Qt::Key_Right: return forms::key::kRight;
    case Qt::Key_Down: return forms::key::kDown;
    case Qt::Key_Help: return forms::key::kHelp;
    case Qt::Key_Menu: return forms::key::kMenu;
    default: break;
  }
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) return forms::key::kF1 + qtKey - Qt::Key_F1;
  const bool letter = qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z;
  const bool digit = qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9;
  return letter || digit || qtKey == Qt::Key_Space ? qtKey : 0;
}

}  // namespace

forms::KeyPress keyPress(const QKeyEvent& event) {
  const auto modifiers = event.modifiers();
  // As on keyboards without a key for the menu.
  const bool menu = event.key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier;
  return {menu ? forms::key::kMenu : keyCode(event.key()), (modifiers & Qt::ShiftModifier) != 0 || event.key() == Qt::Key_Backtab,
          (modifiers & Qt::ControlModifier) != 0, (modifiers & Qt::AltModifier) != 0, event.isAutoRepeat()};
}

}  // namespace orvanta
