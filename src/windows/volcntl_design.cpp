// Design values of the strip, folded and with its border, for both metric variants. Places are twips; a colour is 0x00BBGGRR.
// Columns as in DesignRow.
#include "platform/forms/design.h"
#include "windows/volcntl.h"

namespace orvanta {

namespace {

using forms::Align;
using forms::kLcdFont;
using forms::kNoIndex;
using forms::kSmallFont;

// clang-format off
constexpr forms::DesignRow kStripDesign[] = {
    // name, index, parent, z, place at 12 twips a pixel, at 15, caption, fore, back, font, points, bold, visible, align, wrap, tab stop, passes mouse, art, tool tip, says
    {"VolCntl", kNoIndex, "", 0, {0, 0, 3358, 526}, {0, 0, 3972, 600}, "ORV Volume", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "", "", ""},
    {"frame", kNoIndex, "VolCntl", 1, {5, 5, 3348, 516}, {5, 5, 3952, 580}, "", 0x000000, 0xA8A29C, "", 0, false, true, Align::Left, false, false, true, "strip:rim", "", ""},
    {"SSPanel2", kNoIndex, "VolCntl", 2, {24, 24, 3312, 480}, {25, 25, 3912, 540}, "", 0x000000, 0x332E2B, "", 0, false, true, Align::Left, false, false, false, "clear", "", ""},
    {"Image10", kNoIndex, "SSPanel2", 0, {0, 0, 3312, 480}, {0, 0, 3912, 540}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "strip", "", ""},
    {"Image1", 0, "SSPanel2", 5, {48, 50, 310, 270}, {68, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:prev", "", "Previous"},
    {"Image1", 1, "SSPanel2", 5, {360, 50, 310, 270}, {450, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:next", "", "Next"},
    {"Image1", 2, "SSPanel2", 5, {672, 50, 310, 270}, {825, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:play", "", "Play"},
    {"Image1", 3, "SSPanel2", 5, {984, 50, 310, 270}, {1200, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:pause", "", "Pause"},
    {"Image1", 4, "SSPanel2", 5, {1296, 50, 310, 270}, {1575, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:stop", "", "Stop"},
    {"Image1", 5, "SSPanel2", 5, {1608, 50, 310, 270}, {1950, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:eject", "", "Eject"},
    {"Image2", 0, "SSPanel2", 5, {48, 50, 310, 270}, {68, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:prev", "", "Previous"},
    {"Image2", 1, "SSPanel2", 5, {360, 50, 310, 270}, {450, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:next", "", "Next"},
    {"Image2", 2, "SSPanel2", 5, {672, 50, 310, 270}, {825, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:play", "", "Play"},
    {"Image2", 3, "SSPanel2", 5, {984, 50, 310, 270}, {1200, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:pause", "", "Pause"},
    {"Image2", 4, "SSPanel2", 5, {1296, 50, 310, 270}, {1575, 40, 380, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:stop", "", "Stop"},
    {"Image2", 5, "SSPanel2", 5, {1608, 50, 310, 270}, {1950, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-lit:eject", "", "Eject"},
    {"Image4", 0, "SSPanel2", 5, {48, 50, 310, 270}, {68, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:prev", "", "Previous"},
    {"Image4", 1, "SSPanel2", 5, {360, 50, 310, 270}, {450, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:next", "", "Next"},
    {"Image4", 2, "SSPanel2", 5, {672, 50, 310, 270}, {825, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:play", "", "Play"},
    {"Image4", 3, "SSPanel2", 5, {984, 50, 310, 270}, {1200, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:pause", "", "Pause"},
    {"Image4", 4, "SSPanel2", 5, {1296, 50, 310, 270}, {1575, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:stop", "", "Stop"},
    {"Image4", 5, "SSPanel2", 5, {1608, 50, 310, 270}, {1950, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-dead:eject", "", "Eject"},
    {"Image5", kNoIndex, "SSPanel2", 5, {1920, 50, 310, 270}, {2355, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:mute", "", "Mute"},
    {"Image7", kNoIndex, "SSPanel2", 5, {1920, 50, 310, 270}, {2355, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-key:muted", "", "Mute"},
    {"Image6", kNoIndex, "SSPanel2", 5, {2232, 50, 310, 270}, {2760, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "strip-key:unfold", "", "Unfold"},
    {"Image8", kNoIndex, "SSPanel2", 5, {2232, 50, 310, 270}, {2760, 40, 390, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "strip-key:fold", "", "Fold"},
    {"Label10", kNoIndex, "SSPanel2", 4, {1920, 322, 310, 146}, {2355, 375, 390, 160}, "Mute", 0xD4CEC9, 0x332E2B, kSmallFont, 7, true, true, Align::Center, false, false, true, "engraved", "", ""},
    {"Label1", kNoIndex, "SSPanel2", 4, {2232, 322, 310, 146}, {2760, 375, 390, 160}, "Vol", 0xD4CEC9, 0x332E2B, kSmallFont, 7, true, true, Align::Center, false, false, true, "engraved", "", ""},
    {"Image13", kNoIndex, "SSPanel2", 6, {2568, 36, 240, 228}, {3180, 36, 240, 240}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "title:tray", "To the Systray", "To the tray"},
    {"Image3", kNoIndex, "SSPanel2", 6, {2808, 36, 240, 228}, {3420, 36, 240, 240}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "title:large", "Display Faceplate", "Faceplate"},
    {"Image12", kNoIndex, "SSPanel2", 6, {3048, 36, 240, 228}, {3660, 36, 240, 240}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "title:exit", "Exit", "Exit"},
    {"Shape7", kNoIndex, "SSPanel2", 3, {48, 50, 310, 270}, {68, 40, 380, 330}, "", 0x080706, 0x080706, "", 0, false, false, Align::Left, false, false, true, "hole", "", ""},
    {"vcntlstatusbar", kNoIndex, "SSPanel2", 4, {60, 366, 1800, 78}, {75, 414, 2265, 96}, "", 0x60D818, 0x000000, "", 0, false, true, Align::Left, false, false, false, "segments", "", "Progress"},
    {"MiniBay", kNoIndex, "SSPanel2", 1, {2580, -876, 696, 1332}, {3195, -832, 690, 1357}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, true, "clear", "", ""},
    {"SSPanel1", kNoIndex, "MiniBay", 1, {0, 1152, 696, 180}, {0, 1132, 690, 225}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, true, "glass:mini", "", ""},
    {"Label3", kNoIndex, "SSPanel1", 2, {18, 12, 175, 156}, {15, 30, 175, 165}, "1", 0x00FF00, 0x000000, kLcdFont, 5.25, true, true, Align::Right, false, false, true, "digits:number", "", ""},
    {"Label4", kNoIndex, "SSPanel1", 2, {198, 12, 480, 156}, {195, 30, 480, 165}, "00:00", 0x00FF00, 0x000000, kLcdFont, 5.25, true, true, Align::Right, false, false, true, "digits:time", "", ""},
    {"Panel3D1", kNoIndex, "SSPanel2", 2, {60, 540, 3192, 1536}, {75, 600, 3765, 1455}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "glass:words", "", ""},
    {"Label12", kNoIndex, "Panel3D1", 2, {108, 54, 2976, 396}, {108, 50, 3549, 390}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, true, false, false, "lit", "", ""},
    {"Label13", kNoIndex, "Panel3D1", 2, {108, 474, 2976, 396}, {108, 450, 3549, 390}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, true, true, Align::Left, true, false, false, "lit", "", ""},
    {"Label7", kNoIndex, "Panel3D1", 2, {120, 906, 540, 168}, {120, 864, 540, 165}, "TRACK", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Center, false, false, false, "lit", "", ""},
    {"Label11", kNoIndex, "Panel3D1", 2, {1056, 906, 684, 168}, {1185, 864, 700, 165}, "MIN : SEC", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, false, "lit", "", ""},
    {"Label9", kNoIndex, "Panel3D1", 2, {1776, 906, 528, 168}, {1950, 864, 480, 165}, "Time", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Right, false, false, false, "lit", "", ""},
    {"Label8", kNoIndex, "Panel3D1", 2, {60, 1104, 612, 384}, {60, 1050, 660, 375}, "1", 0x00FF00, 0x000000, kLcdFont, 18, true, true, Align::Right, false, false, false, "digits:number", "", ""},
    {"Label5", kNoIndex, "Panel3D1", 2, {684, 1104, 1620, 384}, {780, 1050, 1650, 375}, "00:00", 0x00FF00, 0x000000, kLcdFont, 18, true, true, Align::Right, false, false, true, "digits:time", "", ""},
    {"Label14", kNoIndex, "Panel3D1", 2, {2376, 906, 708, 168}, {2640, 864, 1017, 165}, "DISC", 0x00FF00, 0x000000, kSmallFont, 7, true, true, Align::Right, false, false, false, "lit", "", ""},
    {"Label21", kNoIndex, "Panel3D1", 2, {2376, 1104, 708, 168}, {2640, 1056, 1017, 165}, "Repeat", 0x404000, 0x000000, kSmallFont, 7, true, true, Align::Right, false, false, false, "indicator", "", ""},
    {"Label30", kNoIndex, "Panel3D1", 2, {2376, 1302, 708, 168}, {2640, 1248, 1017, 165}, "Pgm Stored", 0x004040, 0x000000, kSmallFont, 7, true, true, Align::Right, false, false, false, "indicator", "", ""},
    {"Panel3D5", kNoIndex, "SSPanel2", 2, {1248, 2160, 2004, 1728}, {1290, 2145, 2550, 1635}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "glass:calendar", "", ""},
    {"Label23", kNoIndex, "Panel3D5", 2, {84, 84, 876, 180}, {90, 75, 900, 180}, "TRACKS", 0x00FF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, false, "lit", "", ""},
    {"Label22", 0, "Panel3D5", 2, {84, 360, 348, 300}, {90, 330, 450, 285}, "1", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 1"},
    {"Label22", 1, "Panel3D5", 2, {456, 360, 348, 300}, {570, 330, 450, 285}, "2", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 2"},
    {"Label22", 2, "Panel3D5", 2, {828, 360, 348, 300}, {1050, 330, 450, 285}, "3", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 3"},
    {"Label22", 3, "Panel3D5", 2, {1200, 360, 348, 300}, {1530, 330, 450, 285}, "4", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 4"},
    {"Label22", 4, "Panel3D5", 2, {1572, 360, 348, 300}, {2010, 330, 450, 285}, "5", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 5"},
    {"Label22", 5, "Panel3D5", 2, {84, 684, 348, 300}, {90, 630, 450, 285}, "6", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 6"},
    {"Label22", 6, "Panel3D5", 2, {456, 684, 348, 300}, {570, 630, 450, 285}, "7", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 7"},
    {"Label22", 7, "Panel3D5", 2, {828, 684, 348, 300}, {1050, 630, 450, 285}, "8", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 8"},
    {"Label22", 8, "Panel3D5", 2, {1200, 684, 348, 300}, {1530, 630, 450, 285}, "9", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 9"},
    {"Label22", 9, "Panel3D5", 2, {1572, 684, 348, 300}, {2010, 630, 450, 285}, "10", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 10"},
    {"Label22", 10, "Panel3D5", 2, {84, 1008, 348, 300}, {90, 930, 450, 285}, "11", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 11"},
    {"Label22", 11, "Panel3D5", 2, {456, 1008, 348, 300}, {570, 930, 450, 285}, "12", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 12"},
    {"Label22", 12, "Panel3D5", 2, {828, 1008, 348, 300}, {1050, 930, 450, 285}, "13", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 13"},
    {"Label22", 13, "Panel3D5", 2, {1200, 1008, 348, 300}, {1530, 930, 450, 285}, "14", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 14"},
    {"Label22", 14, "Panel3D5", 2, {1572, 1008, 348, 300}, {2010, 930, 450, 285}, "15", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 15"},
    {"Label22", 15, "Panel3D5", 2, {84, 1332, 348, 300}, {90, 1230, 450, 285}, "16", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 16"},
    {"Label22", 16, "Panel3D5", 2, {456, 1332, 348, 300}, {570, 1230, 450, 285}, "17", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 17"},
    {"Label22", 17, "Panel3D5", 2, {828, 1332, 348, 300}, {1050, 1230, 450, 285}, "18", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 18"},
    {"Label22", 18, "Panel3D5", 2, {1200, 1332, 348, 300}, {1530, 1230, 450, 285}, "19", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 19"},
    {"Label22", 19, "Panel3D5", 2, {1572, 1332, 348, 300}, {2010, 1230, 450, 285}, "20", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, true, false, "cell", "", "Track 20"},
    {"SSPanel3", kNoIndex, "SSPanel2", 2, {60, 2160, 1104, 1728}, {75, 2145, 1130, 1635}, "", 0x000000, 0x2B2724, "", 0, false, true, Align::Left, false, false, false, "metal:level", "", ""},
    {"PctL", kNoIndex, "SSPanel3", 2, {72, 60, 348, 180}, {75, 60, 345, 180}, "75", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, false, false, "percent", "", ""},
    {"VolumeL", kNoIndex, "SSPanel3", 2, {120, 288, 252, 1188}, {120, 270, 255, 1200}, "", 0x000000, 0x2B2724, "", 0, false, true, Align::Left, false, true, false, "clear", "", "Left volume"},
    {"VbarbtmL", kNoIndex, "VolumeL", 1, {72, 65, 108, 1110}, {75, 65, 105, 1110}, "", 0x000000, 0x60D818, "", 0, false, true, Align::Left, false, false, false, "slot", "", ""},
    {"VbartopL", kNoIndex, "VolumeL", 2, {96, 90, 60, 235}, {100, 90, 55, 235}, "", 0x000000, 0x100E0C, "", 0, false, true, Align::Left, false, false, false, "cover", "", ""},
    {"ThumbL", kNoIndex, "VolumeL", 3, {48, 325, 156, 80}, {45, 325, 165, 80}, "", 0xB8B8BA, 0xB8B8BA, "", 0, false, true, Align::Left, false, false, true, "thumb", "", ""},
    {"TlineL", 0, "VolumeL", 4, {48, 325, 156, 0}, {44, 325, 156, 0}, "", 0xF4F2F0, 0x000000, "", 0, false, true, Align::Left, false, false, true, "highlight", "", ""},
    {"TlineL", 1, "VolumeL", 4, {48, 325, 0, 79}, {44, 325, 0, 79}, "", 0xF4F2F0, 0x000000, "", 0, false, true, Align::Left, false, false, true, "highlight", "", ""},
    {"PctR", kNoIndex, "SSPanel3", 2, {684, 60, 348, 180}, {710, 60, 345, 180}, "75", 0x00FF00, 0x000000, kSmallFont, 8, true, true, Align::Center, false, false, false, "percent", "", ""},
    {"VolumeR", kNoIndex, "SSPanel3", 2, {732, 288, 252, 1188}, {755, 270, 255, 1200}, "", 0x000000, 0x2B2724, "", 0, false, true, Align::Left, false, true, false, "clear", "", "Right volume"},
    {"VbarbtmR", kNoIndex, "VolumeR", 1, {72, 65, 108, 1110}, {75, 65, 105, 1110}, "", 0x000000, 0x60D818, "", 0, false, true, Align::Left, false, false, false, "slot", "", ""},
    {"VbartopR", kNoIndex, "VolumeR", 2, {96, 90, 60, 235}, {100, 90, 55, 235}, "", 0x000000, 0x100E0C, "", 0, false, true, Align::Left, false, false, false, "cover", "", ""},
    {"ThumbR", kNoIndex, "VolumeR", 3, {48, 325, 156, 80}, {45, 325, 165, 80}, "", 0xB8B8BA, 0xB8B8BA, "", 0, false, true, Align::Left, false, false, true, "thumb", "", ""},
    {"TlineR", 0, "VolumeR", 4, {48, 325, 156, 0}, {44, 325, 156, 0}, "", 0xF4F2F0, 0x000000, "", 0, false, true, Align::Left, false, false, true, "highlight", "", ""},
    {"TlineR", 1, "VolumeR", 4, {48, 325, 0, 79}, {44, 325, 0, 79}, "", 0xF4F2F0, 0x000000, "", 0, false, true, Align::Left, false, false, true, "highlight", "", ""},
    {"Image9", 0, "SSPanel3", 4, {432, 1284, 240, 240}, {400, 1230, 330, 330}, "", 0x000000, 0x000000, "", 0, false, false, Align::Left, false, true, false, "key:unlinked", "", "Link channels"},
    {"Image9", 1, "SSPanel3", 4, {432, 1284, 240, 240}, {400, 1230, 330, 330}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "key:linked", "", "Link channels"},
};
// clang-format on

}  // namespace

std::span<const forms::DesignRow> VolCntl::design() const { return kStripDesign; }

}  // namespace orvanta
