// What the display shows: the time in four modes, the mode word, the header lines and the bar.
#pragma once

#include <string>
#include <string_view>

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class TimeDisplay {
 public:
  TimeDisplay(CDForm& form, SharedState& state) : form_(form), state_(state) {}

  /// Empties the time and writes the word of the time mode.
  void showTimeModeLabel();

  /// "artist - title"; without the dash when one is empty.
  std::string header() const;
  /// Header and title line. `word` is the device's state; "Stopped" and "Paused" are shown as such.
  void updateHeader(int16_t track, std::string_view word);

  /// Progress of `time` within `length`, both m:ss texts. A time above the length leaves the bar.
  void updateBar(std::string_view length, std::string_view time);

  /// Writes Label10 by time mode and play mode. Steps of more than a second against the direction
  /// of the mode are smoothed until lastShownTrack and lastShownSec are set to 0.
  void updateTime(std::string_view deviceTime);

  /// The track's number, in Label8, and its length, in Label43; 0 is no track.
  void showTrack(int16_t track);

  /// The first `count` numbers of the calendar in one colour.
  void lamps(int count, LcdColour colour);

  /// Time, bar and title as after a stop.
  void clearTime(std::string_view time);

 private:
  int trackSeconds(int16_t track) const;
  int sumOfSeconds(int16_t first, int16_t last) const;
  int restOfProgram() const;
  int smoothed(double value, bool guardBelow, int step);

  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
