// What the display shows: number, length and title of a track, the time in four modes, the bar, the header,
// the indicators and the calendar. Nothing else writes these controls.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Display {
 public:
  Display(CDForm& form, SharedState& state) : form_(form), state_(state) {}

  // ---- track

  /// Number, length and title always change together; 0 is no track.
  void track(int16_t number);
  /// The number shown, as the logic reads it back.
  int16_t number() const;
  /// A disc just read: its count and its length, until play starts.
  void disc(int16_t tracks, std::string_view length);

  // ---- time

  /// Empties the time and writes the word of the time mode.
  void showTimeModeLabel();
  /// The time of a deck that stands still.
  void restTime();
  /// Writes the time by time mode and play mode. Steps of more than a second against the direction
  /// of the mode are smoothed until lastShownTrack and lastShownSec are set to 0.
  /// `playing` is the device's track.
  void updateTime(int16_t playing, std::string_view deviceTime);
  /// Progress of `time` within `length`, both m:ss texts. A time above the length leaves the bar.
  void updateBar(std::string_view length, std::string_view time);
  /// What the bar shows at a second of a track.
  static int percentOf(int seconds, int length);
  /// The time's text as it stands, and an empty bar.
  void clearTime(std::string_view time);
  void clearBar() { form_.CDStatusBar.floodPercent = 0; }
  /// A time left over from the track before, which the display went on counting.
  void dropLeftOver();

  // ---- texts

  /// "artist - title"; without the dash when one is empty. While they are looked up, a word for that.
  std::string header() const;
  /// Header and title line. `word` is the device's state; "Stopped" and "Paused" are shown as such.
  void updateHeader(int16_t track, std::string_view word);
  /// Header and title as the disc's texts have them now.
  void showHeader();
  void emptyHeader() { form_.Label12.caption = ""; }
  void clearTexts();
  /// The disc is looked up: the lamp, and the word in the header.
  void searching(bool now);
  /// In the title's place: a state, or nothing.
  void word(std::string_view text) { form_.Label13.caption = std::string(text); }
  /// Without sound the time runs and nothing is heard: the title's line says why, for as long as that lasts.
  void soundless(bool now);
  void discType(std::string_view word) { form_.Label14.caption = std::string(word); }

  // ---- indicators

  void playMode(std::string_view word) { form_.Label6.caption = std::string(word); }
  /// "Repeat" in the colour of its setting.
  void repeat();
  void pause();
  /// The program indicator: whether one is stored, or that Intro runs.
  void program(bool stored);
  void intro();
  bool introShown() const { return form_.Label6.caption == "Intro"; }
  void ab(Colour colour) { form_.Label16.foreColor = colour; }
  Colour ab() const { return form_.Label16.foreColor; }
  /// The indicators of an open door.
  void doorOpen();

  // ---- calendar

  /// The first `count` numbers in one colour.
  void lamps(int count, LcdColour colour);
  void lamp(int track, LcdColour colour);
  bool lampDim(int track) const;
  void lampNumbers(int count);

  // ---- colours (display_paint.cpp)

  /// All colours, the deck's or the user's, as the settings have it.
  void paint();
  /// Those that the user has chosen one by one, over the others.
  void paintUser();
  /// One of the two title lines.
  void paintTitle(size_t line, Colour colour);
  /// What is lit and what is dim now, whatever the colours for that are.
  using Lit = std::vector<std::pair<forms::Label*, LcdColour>>;
  Lit lit();
  /// The same lights again, in other colours.
  void relight(const Lit& lit);
  /// The numbers of the disc's tracks, once they are known, and whether a program is stored.
  void calendar();
  /// Without a disc: how one gets in.
  void prompt(std::string_view first, std::string_view second);

 private:
  Colour lcd(LcdColour colour) const { return state_.settings.lcdColor[colour]; }
  forms::Label& lampOf(int track) const { return form_.Label22[static_cast<size_t>(track - 1)]; }
  void paintCustom();
  void paintPlain();
  void spareLamps();
  std::string title(int16_t number) const;
  int trackSeconds(int track) const;
  int sumOfSeconds(int first, int last) const;
  int restOfProgram() const;
  int smoothed(double value, bool guardBelow, int step);

  CDForm& form_;
  SharedState& state_;
  bool soundless_ = false;
};

}  // namespace orvanta
