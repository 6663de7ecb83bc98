// Which tracks of a disc can be played: those of data are passed over.
#pragma once

#include <algorithm>

#include "state/shared_state.h"

namespace orvanta {

inline bool isAudio(const DiscState& disc, int track) {
  return track >= 1 && track <= disc.trackCount && static_cast<size_t>(track) < disc.dataTrack.size() &&
         !disc.dataTrack[static_cast<size_t>(track)];
}

/// The first audio track from `track` on; one past the disc's tracks when there is none.
inline int16_t audioFrom(const DiscState& disc, int track) {
  track = std::max(track, 1);
  while (track <= disc.trackCount && !isAudio(disc, track)) ++track;
  return static_cast<int16_t>(std::min<int>(track, disc.trackCount + 1));
}

/// The last audio track before `track`; 0 when there is none.
inline int16_t audioBefore(const DiscState& disc, int track) {
  track = std::min<int>(track, disc.trackCount + 1) - 1;
  while (track >= 1 && !isAudio(disc, track)) --track;
  return static_cast<int16_t>(std::max(track, 0));
}

/// The disc's first audio track; 1 without any.
inline int16_t firstTrack(const DiscState& disc) {
  const int16_t first = audioFrom(disc, 1);
  return first <= disc.trackCount ? first : int16_t{1};
}

/// The track at which the lamps end: on a disc of more than twenty that is not its last.
inline int16_t lastLampTrack(const DiscState& disc) { return audioBefore(disc, disc.lampCount + 1); }

/// `track` where the disc has it as audio, else the next one that is, else the first.
inline int16_t playable(const DiscState& disc, int track) {
  if (track < 1 || track > disc.trackCount) return firstTrack(disc);
  const int16_t next = audioFrom(disc, track);
  return next <= disc.trackCount ? next : firstTrack(disc);
}

}  // namespace orvanta
