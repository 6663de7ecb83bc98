// Which control of the CD Data window holds which extended field.
#pragma once

#include <array>

#include "windows/acdtabs.h"

namespace orvanta {

struct ExtraField {
  size_t index;  ///< in DiscState::extraInfo
  forms::Control& control;
};

/// All but the media type, which follows the kind of the disc.
inline std::array<ExtraField, 20> extraFields(acdtabs& form) {
  return {{{0, form.cdcost},   {2, form.Text18},   {3, form.Text10},  {4, form.stloc},   {5, form.Text15},
           {6, form.recdtype}, {7, form.mrat},     {8, form.rrat},    {9, form.mcrat},   {10, form.pcrat},
           {11, form.crat},    {12, form.Text13},  {63, form.Text23}, {64, form.Text22}, {65, form.Text24},
           {66, form.catnum},  {67, form.reccode}, {73, form.upcnum}, {74, form.Text11}, {75, form.Text16}}};
}

constexpr size_t kMediaType = 1;

}  // namespace orvanta
