// Reader of CUE sheets, the text that says how image files make up a disc.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/sheet_texts.h"

namespace orvanta {

enum class CueFileType { Binary, Motorola, Sound };  ///< raw, raw with swapped bytes, WAVE or FLAC

struct CueFile {
  std::string name;  ///< as written, UTF-8
  CueFileType type = CueFileType::Binary;
};

struct CueIndex {
  int number = 0;  ///< 0 to 99
  int frame = 0;   ///< from the start of the file
};

struct CueTrack {
  int number = 0;
  int sectorBytes = 2352;  ///< in the file
  bool data = false;
  size_t file = 0;
  int pregap = 0;  ///< frames of silence that are in no file
  int postgap = 0;
  std::vector<CueIndex> indexes;
  std::string title;
  std::string performer;
  std::string isrc;
};

struct CueSheet {
  std::vector<CueFile> files;
  std::vector<CueTrack> tracks;
  std::string catalog;
  std::string title;
  std::string performer;
  std::string genre;  ///< as written, also behind REM
  std::string date;
  std::string error;  ///< why the sheet is refused; "" for a good one
};

/// Any letter case, any line ends, with or without a byte order mark, UTF-8 or Windows-1252.
/// Lines that are not known are passed over. A good sheet has 1 to 99 tracks, numbered from 1
/// without a gap, each with an INDEX 01 and indexes that go forward.
CueSheet parseCue(std::string_view bytes);

/// What a sheet says of the disc and its tracks.
SheetTexts textsOf(const CueSheet& sheet);

}  // namespace orvanta
