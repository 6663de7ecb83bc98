// What a window is to the desktop: above or below the others, with a task button or without.
#pragma once

#include <QWidget>

#include "platform/forms/form.h"

namespace orvanta {

Qt::WindowFlags flagsOf(const forms::WindowTraits& traits);

/// Before each showing: window managers forget it when a window is taken away.
void tellDesktop(QWidget& window, const forms::WindowTraits& traits);

/// Ends a move that the window manager was asked for and that nothing else will end.
void cancelSystemMove(QWidget& window);

}  // namespace orvanta
