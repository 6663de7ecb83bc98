// Amber, fading inwards.
#include "platform/qt/rim.h"

#include <QPainter>

#include "platform/qt/palette.h"

namespace orvanta {

Rim::Rim(QWidget& window, double factor) : QWidget(&window), factor_(factor) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  hide();
}

void Rim::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kDepth = 6;  // design pixels, fading inwards
  QPainter painter(this);
  for (int ring = 0; ring < kDepth; ++ring) {
    painter.setPen(QPen(QColor(kAmber.red(), kAmber.green(), kAmber.blue(), 235 - 200 * ring / kDepth), factor_));
    const double in = (ring + .5) * factor_;
    painter.drawRect(QRectF(rect()).adjusted(in, in, -in, -in));
  }
}

}  // namespace orvanta
