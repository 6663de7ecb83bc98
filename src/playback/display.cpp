// The display's texts, worked out of the elapsed time and the table of lengths.
#include "playback/display.h"

#include <algorithm>

#include "base/text.h"
#include "base/times.h"

namespace orvanta {

// ---- track

void Display::track(int16_t number) {
  const bool none = number < 1;
  const auto& lengths = state_.disc.trackLengths;
  form_.Label8.caption = std::to_string(number);
  form_.Label43.caption = none || static_cast<size_t>(number) >= lengths.size() ? "0:00" : lengths[static_cast<size_t>(number)];
  form_.Label43.foreColor = lcd(none ? kLcdDim : kLcdLit);
  form_.Label13.caption = title(number);
}

int16_t Display::number() const { return static_cast<int16_t>(leadingNumber(form_.Label8.caption.get())); }

std::string Display::title(int16_t number) const {
  const DiscState& disc = state_.disc;
  if (soundless_ && number >= 1) return "No sound output";
  const bool known = disc.discStarted && number >= 1 && static_cast<size_t>(number) < disc.trackTitles.size();
  return known ? disc.trackTitles[static_cast<size_t>(number)] : std::string();
}

void Display::disc(int16_t tracks, std::string_view length) {
  form_.Label8.caption = std::to_string(tracks);
  form_.Label9.caption = "TOTAL";
  form_.Label10.caption = std::string(length);
}

// ---- texts

std::string Display::header() const {
  const DiscState& disc = state_.disc;
  if (disc.searching) return "Searching CDDB Online - Please Wait...";
  const bool artist = !trim(disc.discArtist).empty();
  const bool title = !trim(disc.discTitle).empty();
  if (!artist && !title) return {};
  return disc.discArtist + (artist && title ? " - " : "") + disc.discTitle;
}

void Display::updateHeader(int16_t track, std::string_view word) {
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
  if (state_.disc.discStarted) form_.Label13.caption = title(number());
}

void Display::soundless(bool now) {
  if (now == soundless_) return;
  soundless_ = now;
  form_.Label13.caption = title(number());
}

void Display::showHeader() {
  form_.Label12.caption = header();
  form_.Label13.caption = title(number());
}

void Display::searching(bool now) {
  form_.Image14.visible = now;
  if (now) form_.Label12.caption = "Connecting to CDDB Online...";
}

void Display::clearTexts() {
  form_.Label12.caption = "";
  form_.Label13.caption = "";
}

// ---- time

void Display::showTimeModeLabel() {
  static constexpr std::string_view kWords[] = {"Time", "Rem", "TOTAL", "Totrem"};
  form_.Label10.caption = "";
  const int16_t mode = state_.settings.timeMode;
  if (mode >= Time && mode <= TotRem) form_.Label9.caption = std::string(kWords[mode]);
}

void Display::restTime() {
  const bool fresh = !state_.disc.discStarted && state_.settings.timeMode == Total;
  form_.Label10.caption = fresh ? state_.disc.discLengthText : "00:00";
}

int Display::percentOf(int seconds, int length) { return seconds <= 1 || length < 1 ? 0 : (seconds * 200 + length) / (length * 2); }

void Display::updateBar(std::string_view length, std::string_view time) {
  const int seconds = secondsOf(time);
  const int whole = secondsOf(length);
  if (seconds <= std::max(whole, 1)) form_.CDStatusBar.floodPercent = percentOf(seconds, whole);
  form_.CDStatusBar.foreColor = form_.CDStatusBar.floodPercent >= 50 ? colours::kWhite : colours::kBlack;
}

void Display::clearTime(std::string_view time) {
  form_.Label10.caption = std::string(time);
  form_.CDStatusBar.floodPercent = 0;
}

void Display::dropLeftOver() {
  const std::string& time = form_.Label10.caption;
  if (state_.settings.timeMode == Time && leadingNumber(time.substr(0, 1)) > 0 && time != "0:00") clearTime("0:00");
}

int Display::trackSeconds(int track) const {
  const auto& lengths = state_.disc.trackLengths;
  return track >= 0 && static_cast<size_t>(track) < lengths.size() ? secondsOf(lengths[static_cast<size_t>(track)]) : 0;
}

int Display::sumOfSeconds(int first, int last) const {
  int sum = 0;
  for (int track = first; track <= last; ++track) sum += trackSeconds(track);
  return sum;
}

int Display::restOfProgram() const {
  const ProgramState& program = state_.program;
  int sum = 0;
  for (int entry = std::max<int>(program.pgmIndex, 0) + 1; entry <= 100 && program.pgmList[static_cast<size_t>(entry)] > 0; ++entry) {
    sum += trackSeconds(program.pgmList[static_cast<size_t>(entry)]);
  }
  return sum;
}

int Display::smoothed(double value, bool guardBelow, int step) {
  DisplayState& display = state_.display;
  const int16_t onDisplay = number();
  const bool guarded = onDisplay > 0 && onDisplay == display.lastShownTrack && display.lastShownSec > 0;
  int shown = static_cast<int>(value);
  if (guarded && (guardBelow ? shown < display.lastShownSec : shown > display.lastShownSec)) shown = display.lastShownSec + step;
  display.lastShownTrack = onDisplay;
  display.lastShownSec = static_cast<int16_t>(shown);
  return shown;
}

void Display::updateTime(int16_t playing, std::string_view deviceTime) {
  const DisplayState& display = state_.display;
  const TransportState& transport = state_.transport;
  // Of what plays: the count is at the next track some seconds before the device is.
  const double left = trackSeconds(playing) - display.elapsedSec;
  const bool cont = transport.playMode == Cont;
  std::string text;
  switch (state_.settings.timeMode) {
    case Time: text = minutesSeconds(std::max(0, smoothed(display.elapsedSec, true, 1))); break;
    case Rem: text = "-" + minutesSeconds(std::max(0, smoothed(left, false, -1))); break;
    case Total:
      if (cont) {
        text = longTime(std::max(0, smoothed(sumOfSeconds(1, transport.curTrack - 1) + display.elapsedSec, true, 1)));
      } else {
        text = deviceTime.substr(0, 1) == "-" ? "00:00" : std::string(deviceTime);
      }
      break;
    default: {
      // The guard runs the other way than in "Rem": it holds the display against falling too fast.
      const double more = cont ? sumOfSeconds(playing + 1, state_.disc.trackCount) : transport.playMode == Pgm ? restOfProgram() : 0;
      const int shown = std::max(0, smoothed(more + left, true, -1));
      text = "-" + (transport.playMode == One ? minutesSeconds(shown) : longTime(shown));
      break;
    }
  }
  form_.Label10.caption = text;
}

// ---- indicators

void Display::repeat() {
  form_.Label21.foreColor = lcd(state_.settings.repeatOn == kOn ? kLcdRepeatOn : kLcdRepeatOff);
  form_.Label21.caption = "Repeat";
}

void Display::pause() {
  form_.Label21.foreColor = lcd(kLcdLabelOn);
  form_.Label21.caption = "PAUSE";
  form_.Label21.visible = true;
}

void Display::program(bool stored) {
  form_.Label30.caption = "Pgm Stored";
  form_.Label30.foreColor = lcd(stored ? kLcdLabelOn : kLcdLabelOff);
}

void Display::intro() {
  form_.Label6.caption = "Intro";
  form_.Label30.caption = "Intro Play";
  form_.Label30.foreColor = lcd(kLcdLabelOn);
}

void Display::doorOpen() {
  const bool custom = state_.settings.lcdCustom == 1;
  form_.Label14.foreColor = lcd(kLcdDrawer);
  form_.Label30.foreColor = custom ? lcd(kLcdDrawer) : 0x004040;
  form_.Label22[20].foreColor = custom ? lcd(kLcdDrawer) : 0x004000;
  lamps(20, kLcdDim);
}

// ---- calendar

void Display::lamps(int count, LcdColour colour) {
  for (int track = 1; track <= count; ++track) lamp(track, colour);
}

void Display::lamp(int track, LcdColour colour) { lampOf(track).foreColor = lcd(colour); }

bool Display::lampDim(int track) const { return lampOf(track).foreColor == lcd(kLcdDim); }

void Display::lampNumbers(int count) {
  for (int track = 1; track <= count; ++track) lampOf(track).caption = std::to_string(track);
}

}  // namespace orvanta
