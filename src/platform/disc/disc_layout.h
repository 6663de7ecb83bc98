// Where each frame of an image's disc lies in its files.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/disc/cue_sheet.h"
#include "platform/disc/toc.h"

namespace orvanta {

struct Segment {
  static constexpr int kSilence = -1;
  int start = 0;  ///< frame on the disc
  int frames = 0;
  int file = kSilence;  ///< index into the sheet's files
  int64_t offset = 0;   ///< bytes into a raw file, sample pairs into a sound file
  int sectorBytes = kBytesPerFrame;
  bool data = false;
};

struct DiscLayout {
  Toc toc;
  std::vector<Segment> segments;  ///< in order, without holes, from frame 150 to the lead-out
  std::string error;              ///< why the disc is refused; "" for a good one
};

/// `lengths`: of each file of the sheet, bytes of a raw one, sample pairs of a sound file.
DiscLayout layOut(const CueSheet& sheet, std::span<const int64_t> lengths);

}  // namespace orvanta
