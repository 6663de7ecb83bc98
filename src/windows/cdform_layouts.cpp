// Tables of the faceplate's layouts.
#include "windows/cdform_layouts.h"

#include "platform/forms/control.h"

namespace orvanta::layouts {

namespace {

using forms::kNoIndex;

// clang-format off
constexpr DisplayRow kDisplayLefts[] = {
    // expanded, normal, small
    {"Panel3D1", 1440, 4560, 110},
    {"Panel3D5", 1440, 1440, 110},
    {"Label8", 3156, 36, 3156},
    {"Label10", 3840, 720, 3840},
    {"Label7", 3240, 120, 3240},
    {"Label11", 3834, 714, 3834},
    {"Label9", 4620, 1500, 4620},
    {"Label6", 5112, 1992, 5112},
    {"Label43", 5112, 1992, 5112},
    {"CDStatusBar", 3156, 36, 3156},
};
constexpr SmallRow kSmallSpots[] = {
    // at 12 twips a pixel, at 15
    {"Label1", kNoIndex, {80, 60}, {80, 60}},
    {"Label41", kNoIndex, {1160, 48}, {1240, 48}},
    {"Image12", kNoIndex, {4800, 72}, {4800, 75}},
    {"Image7", kNoIndex, {5070, 72}, {5070, 75}},
    {"Image11", kNoIndex, {5310, 72}, {5310, 75}},
    {"Image13", kNoIndex, {5310, 72}, {5310, 75}},
    {"Image6", kNoIndex, {5550, 72}, {5550, 75}},
    {"Shape3", kNoIndex, {170, 2120}, {170, 2120}},
    {"icntla", 0, {170, 2132}, {140, 2132}},
    {"icntla", 1, {1094, 2132}, {1064, 2132}},
    {"icntla", 2, {2018, 2132}, {1998, 2132}},
    {"icntla", 3, {2942, 2132}, {2932, 2132}},
    {"icntla", 4, {3866, 2132}, {3856, 2132}},
    {"icntla", 5, {4790, 2132}, {4790, 2132}},
    {"icntlb", 0, {530, 2300}, {480, 2280}},
    {"icntlb", 1, {1454, 2300}, {1404, 2280}},
    {"icntlb", 2, {2402, 2300}, {2372, 2280}},
    {"icntlb", 3, {3350, 2300}, {3340, 2280}},
    {"icntlb", 4, {4262, 2310}, {4252, 2300}},
    {"icntlb", 5, {5186, 2300}, {5176, 2280}},
    {"icntlc", 0, {530, 2300}, {480, 2280}},
    {"icntlc", 1, {1454, 2300}, {1404, 2280}},
    {"icntlc", 2, {2402, 2300}, {2372, 2280}},
    {"icntlc", 3, {3350, 2300}, {3340, 2280}},
    {"icntlc", 4, {4262, 2310}, {4252, 2300}},
    {"icntlc", 5, {5186, 2300}, {5176, 2280}},
};
// clang-format on

}  // namespace

std::span<const DisplayRow> displayLefts() { return kDisplayLefts; }
std::span<const SmallRow> smallSpots() { return kSmallSpots; }

}  // namespace orvanta::layouts
