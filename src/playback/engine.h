// Play, pause, stop and eject: the procedures that keys, menus and the clock call.
#pragma once

#include "playback/time_display.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class CdDevice;
class Clock;
class Files;
class PlaybackUpward;
class Screen;

class Engine {
 public:
  Engine(CdDevice& device, Files& files, Screen& screen, TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : device_(device), files_(files), screen_(screen), display_(display), form_(form), state_(state), upward_(upward) {}

  /// Prepares a play, or resumes a pause; the caller sends "Play".
  void MMControl1_PlayClick();
  void MMControl1_PauseClick();
  void MMControl1_StopClick();
  void mmcontrol1_EjectClick();

  /// The device's play-completed event.
  void playCompleted(int16_t error);

  /// Clears the A-B loop.
  void clrab();

  // Looks of the transport row that go with a state of play.
  void playingLook();
  void pausedLook();
  void stoppedLook();

  /// Takes over a device that plays already: track and look follow it, nothing is sent.
  void adoptRunningDisc();

  /// Goes to track selTrack + 1 and plays; in Pgm nothing.
  void jump();
  /// To a fraction of the current track: "Pause", "Seek", "Play".
  void seekFraction(std::string_view length, double fraction);
  void clrpgm();

  /// Every start of a track's play goes through here: the next display is taken as it comes.
  void startOfTrack();

  /// "Repeat" in the colour of its state.
  void repeatLabel();

 private:

  CdDevice& device_;
  Files& files_;
  Screen& screen_;
  TimeDisplay& display_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
};

}  // namespace orvanta
