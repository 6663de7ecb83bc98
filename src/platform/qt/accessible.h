// Controls as a screen reader meets them.
#pragma once

#include "platform/forms/property.h"

namespace orvanta {

class ControlWidget;

/// ORVANTA_TEST_NAMES=1: descriptions are the controls' names, so that tests find them.
bool testNames();

/// Makes every ControlWidget known with its role, name, state and press.
void useAccessibleControls();

/// Tells a screen reader, if there is one, what changed.
void nameChanged(ControlWidget& widget, forms::Change change);

}  // namespace orvanta
