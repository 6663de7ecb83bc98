// Colours as the settings files hold them, and the twip.
#pragma once

#include <cstdint>

namespace orvanta {

/// 0x00BBGGRR: red is the low byte.
using Colour = uint32_t;

namespace colours {
constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kGrey = 0x808080;  ///< a caption in this colour marks its key as disabled
constexpr Colour kRed = 255;
constexpr Colour kDarkRed = 192;
constexpr Colour kYellow = 65535;
}  // namespace colours

/// How well one can be read on the other: 1 for equals to 21 for black on white; 3 is the least for a legend.
double contrast(Colour a, Colour b);

/// 1440 to the inch; 15 to a pixel at 96 dots per inch.
constexpr int kTwipsPerPixel = 15;

}  // namespace orvanta
