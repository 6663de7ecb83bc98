// A disc's table of contents. Places are frames, 75 a second, counted as on the disc: the first
// sector of the program area is frame 150.
#pragma once

#include <algorithm>
#include <vector>

#include "base/times.h"
#include "platform/sound/samples.h"

namespace orvanta {

constexpr int kFirstFrame = 150;
constexpr int kMaxTracks = 99;
constexpr int kSamplesPerFrame = kSampleRate / kFramesPerSecond;  ///< 588 sample pairs
constexpr int kShortsPerFrame = 2 * kSamplesPerFrame;             ///< interleaved left, right
constexpr int kBytesPerFrame = 2 * kShortsPerFrame;               ///< 2352
constexpr int kMaxFrames = 100 * kFramesPerMinute;                ///< what a packed time can say

struct TocTrack {
  int number = 0;
  int start = 0;  ///< of index 1
  bool data = false;
  bool operator==(const TocTrack&) const = default;
};

struct Toc {
  std::vector<TocTrack> tracks;  ///< numbered from 1 without a gap
  int leadOut = 0;
  int sessionGap = 0;  ///< frames without sound between an audio track and a data session behind it

  int count() const { return static_cast<int>(tracks.size()); }
  bool has(int number) const { return number >= 1 && number <= count(); }
  int startOf(int number) const { return tracks[static_cast<size_t>(number - 1)].start; }
  int endOf(int number) const { return number < count() ? startOf(number + 1) : leadOut; }
  /// Where the sound of an audio track ends; lengths are told start to start all the same.
  int soundEnd(int number) const {
    const bool beforeData = number < count() && isData(number + 1);
    return beforeData ? std::max(startOf(number), endOf(number) - sessionGap) : endOf(number);
  }
  bool isData(int number) const { return tracks[static_cast<size_t>(number - 1)].data; }
  bool hasAudio() const {
    for (const TocTrack& track : tracks) {
      if (!track.data) return true;
    }
    return false;
  }
  /// The track that a place belongs to; the first for one before it, 0 without tracks.
  int trackAt(int frame) const {
    int number = tracks.empty() ? 0 : 1;
    while (number < count() && startOf(number + 1) <= frame) ++number;
    return number;
  }
  bool operator==(const Toc&) const = default;
};

}  // namespace orvanta
