// Play, pause, stop, next, previous, seek, jump, the step through a program, eject: the procedures that
// keys, menus and the clock call.
#pragma once

#include "platform/ports/ports.h"
#include "playback/time_display.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class CdDevice;
class Clock;
class Files;
class PlaybackUpward;
class Screen;
class Timer;

/// Twips that a click on the bar counts to the right of its place.
constexpr int kBarMargin = 84;

class Engine {
 public:
  Engine(Ports& ports, TimeDisplay& display, CDForm& form, SharedState& state, PlaybackUpward& upward);

  /// Prepares a play, or resumes a pause; the caller sends "Play".
  void MMControl1_PlayClick();
  void MMControl1_PauseClick();
  void MMControl1_StopClick();
  /// `value` 98: the step is made at once; it comes back 0.
  void MMControl1_NextClick(int16_t& value);
  void MMControl1_PrevClick();
  void mmcontrol1_EjectClick();

  /// The device's play-completed event.
  void playCompleted(int16_t error);

  // What the transport keys do on their release.
  void previousKey();
  void nextKey();
  void playKey();
  void pauseKey();
  void stopKey();

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
  /// To a place within the current track of this length, `x` twips along the bar.
  void seekFraction(std::string_view length, double x);
  /// A click on the bar, `x` twips from its left edge.
  void CDStatusBar_Click(double x);
  void clrpgm();

  /// Tick of the 100 ms clock; 0 ends it until play or a mode key.
  void setTimer2Interval(int milliseconds);
  void setTimer2(Timer* timer) { timer2_ = timer; }

  /// Lights the key of a mode and darkens the others.
  void lightMode(size_t mode);
  void showPlayMode(std::string_view word) { form_.Label6.caption = std::string(word); }

  /// Every start of a track's play goes through here: the next display is taken as it comes.
  void startOfTrack();

  /// "Repeat" in the colour of its state.
  void repeatLabel();

 private:
  void programStep();
  void programEnd();

  CdDevice& device_;
  Clock& clock_;
  Files& files_;
  Screen& screen_;
  TimeDisplay& display_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  Timer* timer2_ = nullptr;
};

}  // namespace orvanta
