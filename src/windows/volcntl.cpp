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

}  // namespace

std::span<const forms::PartnerRow> VolCntl::partners() const { return kStripPartners; }

}  // namespace orvanta
