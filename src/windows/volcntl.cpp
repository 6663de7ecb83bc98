// Who belongs to whom on the strip.
#include "windows/volcntl.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kEach;
using forms::kNoIndex;
using forms::Role;

constexpr forms::PartnerRow kStripPartners[] = {
    // Three faces of one key, of which one shows.
    {Role::Light, "Image1", kEach, "Image2", kEach}, {Role::Light, "Image2", kEach, "Image2", kEach},
    {Role::Mask, "Image4", kEach, "Image4", kEach},  {Role::Light, "Image5", kNoIndex, "Image7"},
    {Role::Light, "Image7", kNoIndex, "Image7"},     {Role::Light, "Image9", kEach, "Image9", 1},
    {Role::Hole, "Image1", kEach, "Shape7"},         {Role::Hole, "Image2", kEach, "Shape7"},
    {Role::Hole, "Image4", kEach, "Shape7"},         {Role::Hole, "Image5", kNoIndex, "Shape7"},
    {Role::Hole, "Image7", kNoIndex, "Shape7"},      {Role::Hole, "Image6", kNoIndex, "Shape7"},
    {Role::Hole, "Image8", kNoIndex, "Shape7"},      {Role::Percent, "VolumeL", kNoIndex, "PctL"},
    {Role::Percent, "VolumeR", kNoIndex, "PctR"},    {Role::Scale, "SSPanel3", kNoIndex, "VolumeL"},
    {Role::Colour, "Image10", kNoIndex, "SSPanel2"},
};

using forms::AreaKind;

/// All but the hairlines of the upper pane count from the body's corner.
constexpr forms::AreaRow kStripAreas[] = {
    {AreaKind::KeyRow, {42, 44, 2506, 285}, {60, 34, 3098, 345}},
    {AreaKind::Bar, {54, 362, 1812, 86}, {69, 410, 2277, 104}},
    {AreaKind::Plate, {2580, 276, 696, 180}, {3195, 300, 690, 225}},
    {AreaKind::Glass, {60, 540, 3192, 3348}, {75, 600, 3765, 3180}},
    {AreaKind::UpperPane, {60, 540, 3192, 1536}, {75, 600, 3765, 1455}},
    {AreaKind::LowerPane, {1248, 2160, 2004, 1728}, {1290, 2145, 2550, 1635}},
    {AreaKind::Groove, {90, 492, 3132, 0}, {90, 554, 3732, 0}},
    {AreaKind::Disc, {60, 2160, 1104, 1728}, {75, 2145, 1130, 1635}},
    {AreaKind::Rule, {48, 888, 3096, 0}, {60, 850, 3645, 0}},
    {AreaKind::Column, {2340, 948, 0, 528}, {2520, 925, 0, 455}},
};

}  // namespace

std::span<const forms::PartnerRow> VolCntl::partners() const { return kStripPartners; }

std::span<const forms::AreaRow> VolCntl::areas() const { return kStripAreas; }

}  // namespace orvanta
