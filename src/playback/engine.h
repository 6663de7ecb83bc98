// Play, pause, stop, next, previous, seek, jump, the step through a program, eject, and the ends of tracks,
// programs and discs: the procedures that keys, menus and the clock call.
#pragma once

#include <optional>

#include "playback/device.h"
#include "playback/display.h"
#include "playback/key_looks.h"
#include "playback/ports.h"
#include "state/data_folder.h"
#include "state/shared_state.h"

namespace orvanta {

class CdDevice;
class Clock;
class PlaybackUpward;
class Screen;
class Timer;

/// Twips that a click on the bar counts to the right of its place.
constexpr int kBarMargin = 84;

class Engine {
 public:
  Engine(const PlaybackPorts& ports, DeviceLayer& layer, Display& display, KeyLooks& looks, CDForm& form, SharedState& state,
         PlaybackUpward& upward);

  /// Plays the current track from its start, resumes a pause, or makes a program's next step.
  void MMControl1_PlayClick();
  void MMControl1_PauseClick();
  void MMControl1_StopClick();
  /// `value` 98: the step is made at once; it comes back 0.
  void MMControl1_NextClick(int16_t& value);
  void MMControl1_PrevClick();
  void mmcontrol1_EjectClick();

  // What the transport keys do on their release.
  void previousKey();
  void nextKey();
  /// The same, and from a pause or from rest: plays the track after the present one.
  void nextFromAnywhere();
  void playKey();
  void pauseKey();
  void stopKey();

  /// Clears the A-B loop.
  void clrab();

  /// Takes over a device that plays already: track and look follow it, nothing is sent.
  void adoptRunningDisc();

  /// Goes to track selTrack + 1 and plays; in Pgm nothing.
  void jump();
  /// To a place within the current track of this length, `x` twips along the bar.
  void seekFraction(std::string_view length, double x);
  /// A click on the bar, `x` twips from its left edge.
  void CDStatusBar_Click(double x);
  /// What the bar shows after a click there, in percent.
  int landing(int16_t track, double x) const;
  void clrpgm();

  // ---- ends (engine_ends.cpp)

  /// What a tick would find ended counts before a person's press: call it first of all.
  void settle();
  /// What follows the end of a track, by mode.
  void endActions();
  /// The disc from its first track, where Repeat is on.
  void restart();
  void endOfDisc();
  /// The last track has been counted, and the device is in its last second.
  void pastTheEnd();
  /// The end of a track in Cont: the count goes on, at once or when the disc's correction says so.
  void advanceInCont();
  /// Carries out a correction's step that has fallen due.
  void dueStep();
  /// From here on the device is in the current track: the next end counts.
  void forgetAdvance();
  /// A correction's step that is due is not made; an end that was counted stays counted.
  void dropStep();
  void endScan();

  /// Bar and time of a place in a track.
  void showPlace(int16_t track, std::string_view timeText);
  /// Bar and time of what is heard.
  void showPlace();
  /// What the keys show: what the device does, not what was pressed.
  DeckState heard() const;
  /// After an act.
  void showState();
  /// At a tick.
  void followState();

  /// Tick of the 100 ms clock; 0 ends it until play or a mode key.
  void setTimer2Interval(int milliseconds);
  void setTimer2(Timer* timer) { timer2_ = timer; }

  /// Every start of a track's play goes through here: the next display is taken as it comes.
  void startOfTrack();

 private:
  bool asleep() const { return state_.disc.asleep(); }
  bool canStep(int16_t track) const;
  std::string_view lengthOf(int track) const;
  void resume();
  void playCurrent();
  void fallSilent();
  void glow(TransportKey key);
  void programStep();
  void programEntry(int16_t entry);
  void emptyProgram();
  void programEnd();

  CdDevice& device_;
  Clock& clock_;
  DataFolder data_;
  Screen& screen_;
  DeviceLayer& layer_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  Timer* timer2_ = nullptr;
};

}  // namespace orvanta
