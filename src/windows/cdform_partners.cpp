// Who belongs to whom on the faceplate: masks, lights and captions of keys; what drawings look at, and where.
#include "platform/forms/design.h"
#include "windows/cdform.h"

namespace orvanta {

namespace {

using forms::kEach;
using forms::kNoIndex;
using forms::Role;

constexpr forms::PartnerRow kPartners[] = {
    {Role::Mask, "icntla", kEach, "icntlb", kEach},
    {Role::Light, "icntla", kEach, "icntlc", kEach},
    {Role::Plateau, "icntla", kEach, "Shape2"},
    {Role::Mask, "scntla", kEach, "scntlb", kEach},
    {Role::Light, "scntla", kEach, "scntlc", kEach},
    {Role::Caption, "scntla", 1, "Label24"},
    {Role::Caption, "scntla", 2, "Label17"},
    {Role::Grey, "scntla", 1, "Label24"},
    {Role::Grey, "scntla", 2, "Label17"},
    {Role::Caption, "Image10", 0, "Label18"},
    {Role::Caption, "Image10", 1, "Label19"},
    {Role::Caption, "Image10", 2, "Label20"},
    {Role::Caption, "Image10", 3, "Label25"},
    {Role::Grey, "Image10", 1, "Label19"},
    {Role::Grey, "Image10", 2, "Label20"},
    {Role::Grey, "Image10", 3, "Label25"},
    {Role::Caption, "Image17", kEach, "Label34", kEach},
    {Role::Grey, "Image17", kEach, "Label34", kEach},
    {Role::Caption, "Image16", 0, "Label44"},
    {Role::Caption, "Image16", 1, "Label38"},
    {Role::Caption, "Image16", 2, "Label39"},
    {Role::Caption, "Image16", 3, "Label40"},
    {Role::Caption, "Image16", 4, "Label35"},
    {Role::Grey, "Image16", 0, "Label44"},
    {Role::Grey, "Image16", 1, "Label38"},
    {Role::Grey, "Image16", 2, "Label39"},
    {Role::Grey, "Image16", 4, "Label35"},
    // Rip stands for the record key, whatever its own caption's colour.
    {Role::Mask, "Image16", 3, "icntlb", 5},
    // Two faces of one key, of which the lit one shows.
    {Role::Light, "Image3", kEach, "Image3", kEach},
    {Role::Light, "Image4", kEach, "Image3", kEach},
    {Role::Light, "Image2", kEach, "Image2", 0},
    {Role::Light, "Image9", kEach, "Image9", 1},
    {Role::Hole, "Image4", kEach, "Shape5"},
    {Role::Hole, "Image2", kEach, "Shape4"},
    {Role::Hole, "Image9", kEach, "Shape4"},
    {Role::Mask, "Panel3D2", kNoIndex, "Panel3D7"},
    {Role::Percent, "VolumeL", kNoIndex, "PctL"},
    {Role::Percent, "VolumeR", kNoIndex, "PctR"},
    {Role::Scale, "SSPanel1", kNoIndex, "VolumeL"},
    {Role::Colour, "Image5", kNoIndex, "SSPanel3"},
    {Role::Colour, "Panel3D9", kNoIndex, "Panel3D7"},
    {Role::Colour, "Panel3D10", kNoIndex, "Panel3D7"},
    {Role::Joint, "Panel3D1", kNoIndex, "Line1"},
    {Role::Joint, "Panel3D5", kNoIndex, "Line1"},
};

using forms::AreaKind;

constexpr int kSmall = 6000;  ///< twips: wider is the large faceplate
constexpr forms::AreaRow kAreas[] = {
    {AreaKind::Glass, {110, 360, 5652, 1668}, {110, 360, 5652, 1660}, kSmall},
    {AreaKind::Glass, {1440, 360, 5652, 1668}, {1440, 360, 5652, 1660}},
    {AreaKind::KeyRow, {132, 2126, 5600, 507}, {132, 2126, 5600, 507}, kSmall},
    {AreaKind::KeyRow, {1494, 2769, 5592, 507}, {1494, 2769, 5592, 507}},
    {AreaKind::Bracket, {}, {}, kSmall},
    {AreaKind::Bracket, {7380, 2558, 1840, 105}, {7380, 2558, 1840, 105}},
    {AreaKind::Tray, {1200, 540, 3610, 1470}, {1200, 540, 3610, 1470}},
    {AreaKind::Rule, {0, 936, 0, 0}, {0, 936, 0, 0}},
};

}  // namespace

std::span<const forms::PartnerRow> CDForm::partners() const { return kPartners; }

std::span<const forms::AreaRow> CDForm::areas() const { return kAreas; }

}  // namespace orvanta
