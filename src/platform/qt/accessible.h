// Controls as a screen reader meets them.
#pragma once

namespace orvanta {

class ControlWidget;
class FormWindow;

/// ORVANTA_TEST_NAMES=1: descriptions are the controls' names, so that tests find them.
bool testNames();

/// Makes windows and their ControlWidgets known, each with its role, name, state and press.
void useAccessibleControls();

// Tell a screen reader, if there is one, what changed.
void titleChanged(FormWindow& window);
void nameChanged(ControlWidget& widget);
void stateChanged(ControlWidget& widget);
void focusChanged(ControlWidget& widget);

}  // namespace orvanta
