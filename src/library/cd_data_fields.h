// Which control of the CD Data window holds which field of a disc's texts.
#pragma once

#include <array>

#include "state/disc_texts.h"
#include "windows/acdtabs.h"

namespace orvanta {

struct FieldControl {
  size_t index;  ///< in DiscTexts::extraInfo
  forms::Control& control;
};

/// All but the media type, which follows the kind of the disc.
inline std::array<FieldControl, 20> extraFields(acdtabs& form) {
  return {{{kCost, form.cdcost},          {kYear, form.Text18},           {kArtistSite, form.Text10},
           {kStorage, form.stloc},        {kRecordingInfo, form.Text15},  {kRecordingVenue, form.recdtype},
           {kMusicRating, form.mrat},     {kRecordingRating, form.rrat},  {kMediaRating, form.mcrat},
           {kPackageRating, form.pcrat},  {kContentsRating, form.crat},   {kUserDefined1, form.Text13},
           {kArtistInfo, form.Text23},    {kAlbumInfo, form.Text22},      {kChangerId, form.Text24},
           {kCatalogNumber, form.catnum}, {kRecordingCode, form.reccode}, {kUpcNumber, form.upcnum},
           {kUserDefined2, form.Text11},  {kAlbumCredits, form.Text16}}};
}

}  // namespace orvanta
