// The periodic side of playback: the device's status event, and the 100 ms tick.
#pragma once

#include <memory>
#include <string_view>

#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "playback/disc_load.h"
#include "playback/engine.h"

namespace orvanta {

class PlaybackClock : public CdDeviceEvents {
 public:
  PlaybackClock(CdDevice& device, Clock& clock, DeviceLayer& layer, DiscLoad& load, Engine& engine, TimeDisplay& display, CDForm& form,
                SharedState& state);

  /// From the faceplate's load on.
  void start();

  void statusUpdate() override;
  void playCompleted(int16_t error) override;

  /// Writes bar and time of the track that plays, and finds the track's end.
  void updateTrackTime(int16_t track, std::string_view timeText);

  void timer2_timer();

  static constexpr int kTimer2Interval = 100;  ///< milliseconds

 private:
  void advanceInCont();
  void restart();
  void endOfDisc();
  void pastTheEnd();
  void lampsInCont();
  void startOfNewTrack();

  CdDevice& device_;
  Clock& clock_;
  DeviceLayer& layer_;
  DiscLoad& load_;
  Engine& engine_;
  TimeDisplay& display_;
  CDForm& form_;
  SharedState& state_;
  std::unique_ptr<Timer> timer2_;
};

}  // namespace orvanta
