// The CUE reader and the layout: any bytes give a good disc or a reason, never anything else.
#include <cstdlib>

#include "platform/disc/disc_layout.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const orvanta::CueSheet sheet = orvanta::parseCue({reinterpret_cast<const char*>(data), size});
  for (const int64_t length : {int64_t{0}, int64_t{2352} * 1000, int64_t{1} << 40, INT64_MAX}) {
    const std::vector<int64_t> lengths(sheet.files.size(), length);
    const orvanta::DiscLayout layout = orvanta::layOut(sheet, lengths);
    if (!layout.error.empty()) continue;
    // A disc that is taken is whole: segments without holes up to the lead-out, tracks in order.
    int at = orvanta::kFirstFrame;
    for (const orvanta::Segment& segment : layout.segments) {
      if (segment.start != at || segment.frames <= 0 || segment.offset < 0) std::abort();
      at += segment.frames;
    }
    if (at != layout.toc.leadOut || at > orvanta::kMaxFrames || layout.toc.tracks.empty()) std::abort();
    int last = 0;
    for (const orvanta::TocTrack& track : layout.toc.tracks) {
      if (track.start < orvanta::kFirstFrame || track.start >= layout.toc.leadOut || track.start < last) std::abort();
      last = track.start;
    }
  }
  return 0;
}
