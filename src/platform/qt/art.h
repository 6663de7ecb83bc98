// Drawing of controls, by the name of their art. Units are design pixels (15 or 12 twips).
#pragma once

#include <QPainter>

#include "platform/forms/control.h"
#include "platform/qt/fonts.h"
#include "platform/qt/scale.h"

namespace orvanta {

struct Art {
  QPainter& painter;  ///< scaled to design pixels, origin at the control's corner
  const forms::Control& control;
  Fonts& fonts;
  QTransform plain;  ///< the painter's transform before scaling, for text
  double factor;     ///< device pixels to a design pixel
  double k;          ///< size of symbols and fonts: 1 at 15 twips a pixel
  double w;          ///< of the control, in design pixels, snapped to device pixels
  double h;
  double windowX;    ///< of the control's corner in the window
  double windowY;
};

void paintControl(Art& art);

// The families of drawings; each returns false for an art that is not its own.
bool paintSurface(Art& art, std::string_view name, std::string_view detail);
bool paintKey(Art& art, std::string_view name, std::string_view detail);
void paintTray(Art& art, bool half);
bool paintDisplay(Art& art, std::string_view name, std::string_view detail);

}  // namespace orvanta
