// The status out of state, device and faceplate.
#include "playback/deck_status.h"

#include "base/times.h"

namespace orvanta {

void StatusBoard::tell() {
  DeckStatus status = now();
  if (status == last_) return;
  last_ = std::move(status);
  for (const Watcher& watcher : watchers_) watcher(last_);
}

DeckStatus StatusBoard::now() const {
  const DiscState& disc = state_.disc;
  DeckStatus status;
  status.state = disc.drawerOpen ? DeckState::DoorOpen : disc.noDiscState != kDiscAtStart ? DeckState::NoDisc : engine_.heard();
  status.discIn = disc.in();
  status.tracks = disc.trackCount;
  if (status.discIn) {
    status.artist = disc.discArtist;
    status.title = disc.discTitle;
    status.searching = disc.searching;
  }
  const int16_t track = state_.transport.curTrack;
  if (status.discIn && track >= 1 && track <= disc.trackCount) {
    const auto at = static_cast<size_t>(track);
    status.track = track;
    status.length = secondsOf(disc.trackLengths[at]);
    if (status.state != DeckState::Stopped) status.second = static_cast<int>(state_.display.elapsedSec);
    if (disc.discStarted && at < disc.trackTitles.size()) status.trackTitle = disc.trackTitles[at];
  }
  status.playMode = state_.transport.playMode;
  status.shuffle = state_.transport.playMode == Pgm && state_.program.shuffled;
  status.intro = state_.transport.introTrack > 0;
  status.repeat = state_.settings.repeatOn == kOn;
  status.loop = state_.transport.abSetA;
  status.muted = form_.Image2[0].visible;
  status.left = 100 - state_.volume.leftAtten;
  status.right = 100 - state_.volume.rightAtten;
  return status;
}

}  // namespace orvanta
