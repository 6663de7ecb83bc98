// The periodic side of playback: the device's status event, and the 100 ms tick.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "platform/ports/ports.h"
#include "playback/buttons.h"
#include "playback/disc_load.h"
#include "playback/engine.h"
#include "playback/modes.h"

namespace orvanta {

class PlaybackClock : public CdDeviceEvents {
 public:
  PlaybackClock(Ports& ports, DeviceLayer& layer, DiscLoad& load, Engine& engine, Modes& modes, Buttons& buttons, Display& display,
                KeyLooks& looks, CDForm& form, SharedState& state, PlaybackUpward& upward);

  /// From the faceplate's load on.
  void start();

  void statusUpdate() override;
  void playCompleted(int16_t error) override;

  /// Writes bar and time of the track that plays, and finds the track's end.
  void updateTrackTime(int16_t track, std::string_view timeText);

  void timer2_timer();
  void timer3_timer();

  static constexpr int kTimer2Interval = 100;  ///< milliseconds
  static constexpr int kTimer3Interval = 1100;

 private:
  void ranOut();
  void startOfNewTrack();
  void scanStep();
  void answerOffer();
  void tellRefusal();
  void autoStart();
  void drawerIsOpen();
  bool discCameLater();
  bool afterTheEnd();
  void discGone();

  CdDevice& device_;
  Clock& clock_;
  DiscTray& tray_;
  Dialogs& dialogs_;
  Screen& screen_;
  DeviceLayer& layer_;
  DiscLoad& load_;
  Engine& engine_;
  Modes& modes_;
  Buttons& buttons_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  std::unique_ptr<Timer> timer2_;
  std::unique_ptr<Timer> timer3_;
  std::unique_ptr<Timer> refusalBox_;  ///< a timer of its own, so that none of the clocks stands still behind the box
  std::string refusal_;
  bool restartFailed_ = false;  ///< for the disc that is in the drive; another try waits for another disc
};

}  // namespace orvanta
