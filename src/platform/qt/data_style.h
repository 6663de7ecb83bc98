// The look of the data windows: the deck's metal and lettering on the desktop's widgets.
#pragma once

class QWidget;

namespace orvanta {

void dress(QWidget& window, double factor);

}  // namespace orvanta
