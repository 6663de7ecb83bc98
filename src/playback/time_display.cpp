// The display's texts, worked out of the elapsed time and the table of lengths.
#include "playback/time_display.h"

#include <algorithm>

#include "base/text.h"
#include "base/times.h"

namespace orvanta {

void TimeDisplay::showTimeModeLabel() {
  static constexpr std::string_view kWords[] = {"Time", "Rem", "TOTAL", "Totrem"};
  form_.Label10.caption = "";
  const int16_t mode = state_.settings.timeMode;
  if (mode >= Time && mode <= TotRem) form_.Label9.caption = std::string(kWords[mode]);
}

std::string TimeDisplay::header() const {
  const DiscState& disc = state_.disc;
  const bool both = !disc.discArtist.empty() && !disc.discTitle.empty();
  return disc.discArtist + (both ? " - " : "") + disc.discTitle;
}

void TimeDisplay::updateHeader(int16_t track, std::string_view word) {
  if (track > state_.disc.trackCount) return;
  if (word == "None") {
    form_.Label13.caption = "Please Insert a CD";
    return;
  }
  const std::string text = header();
  if (form_.Label12.caption == text) return;
  if (word == "Stopped" || word == "Paused") {
    form_.Label13.caption = std::string(word);
    return;
  }
  form_.Label12.caption = text;
  if (state_.disc.discStarted > 0 && track >= 0) form_.Label13.caption = state_.disc.trackTitles.at(static_cast<size_t>(track));
}

void TimeDisplay::updateBar(std::string_view length, std::string_view time) {
  const int seconds = secondsOf(time);
  const int whole = secondsOf(length);
  if (seconds <= 1) {
    form_.CDStatusBar.floodPercent = 0;
  } else if (seconds <= whole) {
    form_.CDStatusBar.floodPercent = (seconds * 200 + whole) / (whole * 2);
  }
  form_.CDStatusBar.foreColor = form_.CDStatusBar.floodPercent >= 50 ? colours::kWhite : colours::kBlack;
}

int TimeDisplay::trackSeconds(int16_t track) const {
  const auto& lengths = state_.disc.trackLengths;
  return track >= 0 && static_cast<size_t>(track) < lengths.size() ? secondsOf(lengths[static_cast<size_t>(track)]) : 0;
}

int TimeDisplay::sumOfSeconds(int16_t first, int16_t last) const {
  int sum = 0;
  for (int16_t track = first; track <= last; ++track) sum += trackSeconds(track);
  return sum;
}

int TimeDisplay::restOfProgram() const {
  const ProgramState& program = state_.program;
  int sum = 0;
  for (int entry = std::max<int>(program.pgmIndex, 0) + 1; entry <= 100 && program.pgmList[static_cast<size_t>(entry)] > 0; ++entry) {
    sum += trackSeconds(program.pgmList[static_cast<size_t>(entry)]);
  }
  return sum;
}

int TimeDisplay::smoothed(double value, bool guardBelow, int step) {
  DisplayState& display = state_.display;
  const auto onDisplay = static_cast<int16_t>(leadingNumber(form_.Label8.caption.get()));
  const bool guarded = onDisplay > 0 && onDisplay == display.lastShownTrack && display.lastShownSec > 0;
  int shown = static_cast<int>(value);
  if (guarded && (guardBelow ? shown < display.lastShownSec : shown > display.lastShownSec)) shown = display.lastShownSec + step;
  display.lastShownTrack = onDisplay;
  display.lastShownSec = static_cast<int16_t>(shown);
  return shown;
}

void TimeDisplay::updateTime(std::string_view deviceTime) {
  const DisplayState& display = state_.display;
  const TransportState& transport = state_.transport;
  const double left = display.nearEndSec + 5 - display.elapsedSec;
  const bool cont = transport.playMode == Cont;
  std::string text;
  switch (state_.settings.timeMode) {
    case Time: text = minutesSeconds(std::max(0, smoothed(display.elapsedSec, true, 1))); break;
    case Rem: text = "-" + minutesSeconds(std::max(0, smoothed(left, false, -1))); break;
    case Total:
      if (cont) {
        text = longTime(std::max(0, smoothed(sumOfSeconds(1, static_cast<int16_t>(transport.curTrack - 1)) + display.elapsedSec, true, 1)));
      } else {
        text = deviceTime.substr(0, 1) == "-" ? "00:00" : std::string(deviceTime);
      }
      break;
    default: {
      // The guard runs the other way than in "Rem": it holds the display against falling too fast.
      const double more = cont                        ? sumOfSeconds(static_cast<int16_t>(transport.curTrack + 1), state_.disc.trackCount)
                          : transport.playMode == Pgm ? restOfProgram()
                                                      : 0;
      const int shown = std::max(0, smoothed(more + left, true, -1));
      text = "-" + (transport.playMode == One ? minutesSeconds(shown) : longTime(shown));
      break;
    }
  }
  form_.Label10.caption = text;
}

void TimeDisplay::showTrack(int16_t track) {
  const bool none = track < 1;
  form_.Label8.caption = std::to_string(track);
  form_.Label43.caption =
      none || static_cast<size_t>(track) >= state_.disc.trackLengths.size() ? "0:00" : state_.disc.trackLengths[static_cast<size_t>(track)];
  form_.Label43.foreColor = state_.settings.lcdColor[none ? kLcdDim : kLcdLit];
}

void TimeDisplay::lamps(int count, LcdColour colour) {
  for (int lamp = 0; lamp < count; ++lamp) form_.Label22[static_cast<size_t>(lamp)].foreColor = state_.settings.lcdColor[colour];
}

void TimeDisplay::clearTime(std::string_view time) {
  form_.Label10.caption = std::string(time);
  form_.CDStatusBar.floodPercent = 0;
}

}  // namespace orvanta
