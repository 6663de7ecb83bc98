// The wallpaper's table: its window alone, since its tiles lie where the picture's size puts them.
#include "windows/form26.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::Align;
using forms::kNoIndex;

// clang-format off
constexpr forms::DesignRow kWallpaper[] = {
    {"Form26", kNoIndex, "", 0, {}, {}, "Orvanta Wallpaper", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "", "", ""},
};
// clang-format on

}  // namespace

std::span<const forms::DesignRow> Form26::design() const { return kWallpaper; }

}  // namespace orvanta
