// What the device tells of the track that plays: the time on the display, and where the track's end is found.
#pragma once

#include <string_view>

#include "platform/ports/cd_device.h"
#include "playback/engine.h"

namespace orvanta {

class TrackTime : public CdDeviceEvents {
 public:
  TrackTime(CdDevice& device, DeviceLayer& layer, Engine& engine, Display& display, SharedState& state);

  void statusUpdate() override;
  void playCompleted(int16_t error) override;

  /// Writes bar and time of the track that plays, and finds the track's end.
  void updateTrackTime(int16_t track, std::string_view timeText);
  /// The same, of what is heard now.
  void update();

 private:
  void ranOut();

  CdDevice& device_;
  DeviceLayer& layer_;
  Engine& engine_;
  Display& display_;
  SharedState& state_;
};

}  // namespace orvanta
