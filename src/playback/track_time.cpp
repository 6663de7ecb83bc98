// The device's status event. The end of a track is worked out of position, table of lengths and a margin, while
// the device plays on by itself.
#include "playback/track_time.h"

#include "playback/tracks.h"

namespace orvanta {

TrackTime::TrackTime(CdDevice& device, DeviceLayer& layer, Engine& engine, Display& display, SharedState& state)
    : device_(device), layer_(layer), engine_(engine), display_(display), state_(state) {
  device_.setEvents(this);
}

void TrackTime::statusUpdate() {
  if (state_.transport.scanCount != 0) return;
  const DeviceMode mode = device_.mode();
  if (mode == DeviceMode::Stopped) {
    display_.updateHeader(1, "Rewinding");
    if (state_.transport.playingFlag) ranOut();
  } else if (mode == DeviceMode::Playing) {
    state_.transport.deviceTrack = layer_.currentDeviceTrack();
    display_.updateHeader(state_.transport.deviceTrack, "Play");
    updateTrackTime(state_.transport.deviceTrack, layer_.currentTimeText());
  }
  display_.soundless(device_.soundless());
}

void TrackTime::playCompleted(int16_t error) {
  if (error == device_error::kHardware) device_.command("Close");
}

/// Stopped, and still marked as playing: the disc has run out under us.
void TrackTime::ranOut() {
  if (state_.transport.playMode != Cont) {
    state_.transport.trackGo = kTrackOver;
  } else if (state_.settings.repeatOn == kOn) {
    engine_.restart();
  } else {
    engine_.endOfDisc();
  }
}

void TrackTime::update() { updateTrackTime(layer_.currentDeviceTrack(), layer_.currentTimeText()); }

void TrackTime::updateTrackTime(int16_t track, std::string_view timeText) {
  DiscState& disc = state_.disc;
  TransportState& transport = state_.transport;
  const DisplayState& display = state_.display;
  if (!disc.discStarted) {
    disc.discStarted = true;
    transport.curTrack = firstTrack(disc);
    display_.track(transport.curTrack);
  }
  if (track > disc.trackCount) return;
  engine_.showPlace(track, timeText);
  if (track == 0) return;
  if (transport.playMode == Cont) {
    if (display.elapsedSec >= display.nearEndSec) engine_.advanceInCont();
  } else if (display.elapsedSec >= display.nearEndSec + 2 + disc.timeCorrection || track > transport.curTrack) {
    // With a large correction the device runs on into the next track first; that is the end as well.
    transport.trackGo = kTrackOver;
  }
}

}  // namespace orvanta
