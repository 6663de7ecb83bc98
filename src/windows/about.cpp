// The About box's table: it looks like the deck. Places are twips, the same in both metric variants.
#include "windows/about.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::Align;
using forms::kLcdFont;
using forms::kNoIndex;
using forms::kSmallFont;

// clang-format off
constexpr forms::DesignRow kDesign[] = {
    // name, index, parent, z, place at 12 twips a pixel, at 15, caption, fore, back, font, points, bold, visible, align, wrap, tab stop, passes mouse, art, tool tip, says
    {"AboutBox", kNoIndex, "", 0, {0, 0, 7650, 4890}, {0, 0, 7650, 4890}, "About Orvanta", 0x000000, 0x332E2B, "", 0, false, true, Align::Left, false, false, false, "", "", ""},
    {"AboutPlate", kNoIndex, "AboutBox", 0, {0, 0, 7650, 4890}, {0, 0, 7650, 4890}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, false, "faceplate", "", ""},
    {"AboutMaker", kNoIndex, "AboutBox", 5, {120, 84, 1155, 210}, {120, 84, 1155, 210}, "ORVANTA", 0xE6E1DC, 0x332E2B, "Roboto Condensed", 10, true, true, Align::Left, false, false, true, "maker", "", ""},
    {"AboutModel", kNoIndex, "AboutBox", 5, {1305, 72, 2700, 234}, {1305, 72, 2700, 234}, "LX COMPACT DISC PLAYER", 0xB2A68F, 0x000000, "Roboto Condensed", 7, false, true, Align::Left, false, false, true, "engraved", "", ""},
    {"AboutPanel", kNoIndex, "AboutBox", 1, {120, 450, 2190, 4260}, {120, 450, 2190, 4260}, "", 0x000000, 0x2B2724, "", 0, false, true, Align::Left, false, false, true, "metal", "", ""},
    {"AboutDisc", kNoIndex, "AboutPanel", 1, {45, 195, 2100, 3015}, {45, 195, 2100, 3015}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, true, "disc", "", ""},
    {"AboutGlass", kNoIndex, "AboutBox", 1, {2460, 450, 5055, 2010}, {2460, 450, 5055, 2010}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, true, "glass:rule", "", ""},
    {"AboutName", kNoIndex, "AboutGlass", 1, {135, 120, 3000, 360}, {135, 120, 3000, 360}, "Orvanta LX", 0x50C8FF, 0x000000, "Roboto Condensed", 16, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutWords", kNoIndex, "AboutGlass", 1, {135, 570, 3300, 240}, {135, 570, 3300, 240}, "A compact disc deck for the desktop", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutVersionHead", kNoIndex, "AboutGlass", 1, {3570, 105, 1320, 165}, {3570, 105, 1320, 165}, "VERSION", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Right, false, false, true, "lit", "", ""},
    {"AboutVersion", kNoIndex, "AboutGlass", 1, {3270, 330, 1620, 480}, {3270, 330, 1620, 480}, "", 0x00FF00, 0x000000, kLcdFont, 18, true, true, Align::Right, false, false, true, "digits:same", "", ""},
    {"AboutHead", 0, "AboutGlass", 1, {135, 1050, 900, 195}, {135, 1050, 900, 195}, "SYSTEM", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutText", 0, "AboutGlass", 1, {1080, 1050, 3825, 195}, {1080, 1050, 3825, 195}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, false, "lit", "", ""},
    {"AboutHead", 1, "AboutGlass", 1, {135, 1275, 900, 195}, {135, 1275, 900, 195}, "WINDOWS BY", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutText", 1, "AboutGlass", 1, {1080, 1275, 3825, 195}, {1080, 1275, 3825, 195}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, false, "lit", "", ""},
    {"AboutHead", 2, "AboutGlass", 1, {135, 1500, 900, 195}, {135, 1500, 900, 195}, "SOUND", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutText", 2, "AboutGlass", 1, {1080, 1500, 3825, 195}, {1080, 1500, 3825, 195}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, false, "lit", "", ""},
    {"AboutHead", 3, "AboutGlass", 1, {135, 1725, 900, 195}, {135, 1725, 900, 195}, "DRIVE", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutText", 3, "AboutGlass", 1, {1080, 1725, 3825, 195}, {1080, 1725, 3825, 195}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, false, "lit", "", ""},
    {"AboutGlass2", kNoIndex, "AboutBox", 1, {2460, 2460, 5055, 2250}, {2460, 2460, 5055, 2250}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, false, true, "glass:joint", "", ""},
    {"AboutLicencesHead", kNoIndex, "AboutGlass2", 1, {135, 120, 2400, 165}, {135, 120, 2400, 165}, "LICENCES", 0xFFFF00, 0x000000, kSmallFont, 7, true, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 0, "AboutGlass2", 1, {135, 375, 2500, 210}, {135, 375, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 1, "AboutGlass2", 1, {135, 603, 2500, 210}, {135, 603, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 2, "AboutGlass2", 1, {135, 831, 2500, 210}, {135, 831, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 3, "AboutGlass2", 1, {135, 1059, 2500, 210}, {135, 1059, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 4, "AboutGlass2", 1, {135, 1287, 2500, 210}, {135, 1287, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 5, "AboutGlass2", 1, {135, 1515, 2500, 210}, {135, 1515, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 6, "AboutGlass2", 1, {135, 1743, 2500, 210}, {135, 1743, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutPart", 7, "AboutGlass2", 1, {135, 1971, 2500, 210}, {135, 1971, 2500, 210}, "", 0x00FF00, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Left, false, false, true, "lit", "", ""},
    {"AboutLicence", 0, "AboutGlass2", 1, {2700, 375, 2205, 210}, {2700, 375, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 1, "AboutGlass2", 1, {2700, 603, 2205, 210}, {2700, 603, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 2, "AboutGlass2", 1, {2700, 831, 2205, 210}, {2700, 831, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 3, "AboutGlass2", 1, {2700, 1059, 2205, 210}, {2700, 1059, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 4, "AboutGlass2", 1, {2700, 1287, 2205, 210}, {2700, 1287, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 5, "AboutGlass2", 1, {2700, 1515, 2205, 210}, {2700, 1515, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 6, "AboutGlass2", 1, {2700, 1743, 2205, 210}, {2700, 1743, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutLicence", 7, "AboutGlass2", 1, {2700, 1971, 2205, 210}, {2700, 1971, 2205, 210}, "", 0x50C8FF, 0x000000, "Roboto Condensed", 8.25, false, true, Align::Right, false, true, false, "lit", "", ""},
    {"AboutClose", kNoIndex, "AboutPanel", 2, {510, 3540, 1170, 420}, {510, 3540, 1170, 420}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "key:cap", "", "Close"},
    {"AboutCloseCaption", kNoIndex, "AboutPanel", 3, {510, 3660, 1170, 180}, {510, 3660, 1170, 180}, "Close", 0x000000, 0x000000, kSmallFont, 8, true, true, Align::Center, false, false, true, "caption", "", ""},
    {"AboutExit", kNoIndex, "AboutBox", 6, {7346, 75, 240, 225}, {7346, 75, 240, 225}, "", 0x000000, 0x000000, "", 0, false, true, Align::Left, false, true, false, "title:exit", "", "Close the About box"},
};
// clang-format on

constexpr forms::PartnerRow kPartners[] = {
    {forms::Role::Caption, "AboutClose", kNoIndex, "AboutCloseCaption"},
};

constexpr forms::AreaRow kAreas[] = {
    {forms::AreaKind::Glass, {2460, 450, 5055, 4260}, {2460, 450, 5055, 4260}},
    {forms::AreaKind::Rule, {0, 936, 0, 0}, {0, 936, 0, 0}},
};

}  // namespace

std::span<const forms::DesignRow> AboutBox::design() const { return kDesign; }

std::span<const forms::PartnerRow> AboutBox::partners() const { return kPartners; }

std::span<const forms::AreaRow> AboutBox::areas() const { return kAreas; }

}  // namespace orvanta
