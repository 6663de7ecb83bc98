// Qt's keys as the forms know them.
#pragma once

#include "platform/forms/input.h"

class QKeyEvent;

namespace orvanta {

forms::KeyPress keyPress(const QKeyEvent& event);

}  // namespace orvanta
