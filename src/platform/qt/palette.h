// Colours that several drawings share.
#pragma once

#include <QColor>

namespace orvanta {

constexpr QColor kAmber(0xFF, 0xC2, 0x47);  ///< of focus, of what is taken, of lit signs

}  // namespace orvanta
