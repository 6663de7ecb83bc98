// "audiocd.dat": what a recorder is told of the disc that it is given.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "state/disc_texts.h"
#include "state/field_file.h"

namespace orvanta {

struct RecorderTexts {
  std::string artist;
  std::string title;
  int16_t trackCount = 0;
  std::array<std::string, 101> trackTitles;  ///< by number, from 1
  std::string notes;                         ///< the first of the liner notes; the label where there are none
  std::string genre;
  std::string year;
};

RecorderTexts recorderTexts(const DiscTexts& disc, int16_t trackCount);

FieldWriter writtenFields(const RecorderTexts& texts);
/// What a short file lacks stays empty.
RecorderTexts readRecorderTexts(FieldReader reader);

}  // namespace orvanta
