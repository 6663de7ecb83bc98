// Controls as a screen reader meets them.
#pragma once

#include "platform/forms/property.h"

namespace orvanta {

class ControlWidget;

/// Makes every ControlWidget known with its role, name, state and press.
void useAccessibleControls();

/// Tells a screen reader, if there is one, what changed.
void nameChanged(ControlWidget& widget, forms::Change change);

}  // namespace orvanta
