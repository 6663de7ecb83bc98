// Which of the deck's windows has the keyboard, and which has it again when that one goes. Window managers pass it on to
// windows with a task button alone: the strip would lose it to nobody.
#pragma once

class QWidget;

namespace orvanta {

/// The user went to this window.
void keyboardTaken(QWidget& window);
/// The deck goes to it.
void giveKeyboardTo(QWidget& window);
/// Before it is taken away: the one that had the keyboard last has it again. Nothing for a window that has not got it.
void keyboardLeaves(QWidget& window);
/// One of the deck's windows has the keyboard, or will as soon as the window manager has heard of it.
bool keyboardIsOurs();
/// After a box: the window that had the keyboard last has it again.
void giveKeyboardBack();

}  // namespace orvanta
