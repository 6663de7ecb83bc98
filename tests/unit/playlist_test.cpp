// The playlist editor and the CD Info window.
#include <gtest/gtest.h>

#include "library/list_text.h"
#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

struct Lists : CoreRig {
  Lists() {
    startWith(discB());
    clock.advance(2000);
    state.disc.trackTitles[1] = "One";
    state.disc.trackTitles[3] = "Three";
    key(forms::key::kF1 + 6);
  }
  cdplist& window = orvanta.playlistForm;
  void click(forms::Control& control) {
    gate.enter([&] { window.press(control); });
  }
  void choose(forms::ListBox& list, const std::vector<int>& rows) {
    gate.enter([&] { window.userRow(list, rows.empty() ? -1 : rows.back(), rows); });
  }
  void add(const std::vector<int>& rows) {
    choose(window.List1, rows);
    click(window.Command5);
  }
  std::string shown() const {
    std::string all;
    for (int row = 0; row < window.List3.count(); ++row) all += window.List3.row(row) + "=" + window.List2.row(row) + " ";
    return all;
  }
  std::string file() const {
    const auto found = files.files.find("/DATA/DATACD/19459115.CD2");
    return found == files.files.end() ? "(none)" : found->second;
  }
};

TEST(Playlist, BuildsMovesAndSaves) {
  Lists rig;
  ASSERT_TRUE(rig.window.loaded());
  EXPECT_EQ(rig.window.List1.row(1), "Track 2") << "a track without a title";
  EXPECT_FALSE(rig.window.Command2.enabled);
  EXPECT_FALSE(rig.window.Command10.enabled);
  for (auto* key : {&rig.window.Command1, &rig.window.Command4, &rig.window.Command6, &rig.window.Command7}) rig.click(*key);
  EXPECT_TRUE(rig.window.loaded()) << "nothing to play, save or move";
  EXPECT_EQ(rig.file(), "(none)");
  rig.add({0, 2});
  rig.add({2});
  EXPECT_EQ(rig.shown(), "1=One 3=Three 3=Three ") << "a track may come twice";
  EXPECT_TRUE(rig.window.List2.selected(2));
  EXPECT_FALSE(rig.window.List1.selected(2));
  rig.click(rig.window.Command11);
  rig.choose(rig.window.List2, {1, 2, 5});
  rig.click(rig.window.Command6);
  EXPECT_EQ(rig.shown(), "1=One 1=One 2=Track 2 ");
  rig.click(rig.window.Command7);
  EXPECT_EQ(rig.shown(), "1=One 2=Track 2 1=One ");
  rig.click(rig.window.Command7);
  rig.click(rig.window.Command7);
  EXPECT_EQ(rig.shown(), "2=Track 2 1=One 1=One ") << "not above the first row";
  rig.click(rig.window.Command8);
  EXPECT_EQ(rig.shown(), "1=One 2=Track 2 1=One ");
  rig.gate.enter([&] { rig.window.userMovedRow(rig.window.List2, 1, 2); });
  EXPECT_EQ(rig.shown(), "1=One 1=One 2=Track 2 ") << "dragged";
  rig.click(rig.window.Command1);
  std::string lines = "1\r\n1\r\n2\r\n";
  for (int i = 3; i < 100; ++i) lines += "0\r\n";
  EXPECT_EQ(rig.file(), lines);
  EXPECT_FALSE(rig.window.loaded());
  EXPECT_EQ(rig.state.program.pgmStored, kOn);
  EXPECT_EQ(rig.state.transport.playMode, Pgm);
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
  rig.clock.advance(1500);
  EXPECT_EQ(rig.track(), "1");
  // A program that runs is shown when the editor opens again.
  rig.key(forms::key::kF1 + 6);
  EXPECT_EQ(rig.shown(), "1=One 1=One 2=Track 2 ");
  EXPECT_TRUE(rig.window.Command10.enabled);
}

TEST(Playlist, RecallsAndDeletes) {
  Lists rig;
  for (int i = 0; i < 40; ++i) rig.click(rig.window.Command11);
  EXPECT_EQ(rig.window.List2.count(), 101);
  EXPECT_EQ(rig.window.List3.count(), 101);
  rig.add({0});
  EXPECT_EQ(rig.window.List2.count(), 101) << "full";
  rig.click(rig.window.Command1);
  const std::string written = rig.file();
  EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 100);
  rig.files.files["/DATA/DATACD/19459115.CD2"] = "3\r\n0\r\n9\r\n";
  rig.key(forms::key::kF1 + 6);
  rig.click(rig.window.Command2);
  EXPECT_EQ(rig.shown(), "3=Three 9= ") << "a number beyond the disc's tracks is an empty row";
  rig.click(rig.window.Command10);
  EXPECT_EQ(rig.dialogs.tape.back(), "Orvanta? Are you sure you wish to delete this playlist?");
  EXPECT_NE(rig.file(), "(none)");
  rig.dialogs.yes = true;
  rig.click(rig.window.Command10);
  EXPECT_EQ(rig.file(), "(none)");
  EXPECT_EQ(rig.state.program.pgmStored, kOff);
  EXPECT_EQ(rig.form.Label30.foreColor, Colour{0x004040});
  rig.click(rig.window.Command2);
  EXPECT_EQ(rig.shown(), "") << "nothing to recall";
}

TEST(Playlist, PreviewPlaysATrackAlone) {
  Lists rig;
  rig.choose(rig.window.List1, {1});
  rig.click(rig.window.Command12);
  EXPECT_EQ(rig.state.transport.playMode, One);
  EXPECT_EQ(rig.state.transport.curTrack, 2);
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
  rig.click(rig.window.Command13);
  EXPECT_EQ(rig.state.transport.playingFlag, kOff);
  rig.gate.enter([&] { rig.window.doubleClick(&rig.window.List1); });
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
  rig.click(rig.window.Command3);
  EXPECT_EQ(rig.state.transport.playingFlag, kOff) << "without a selection there is no preview";
}

TEST(CdInfo, ShowsEverythingAndPlaysATrack) {
  CoreRig rig;
  rig.startWith(discB());
  rig.clock.advance(2000);
  DiscState& disc = rig.state.disc;
  disc.discArtist = "Artist";
  disc.discTitle = "Title";
  disc.trackTitles[2] = "Second";
  disc.linerNotes = "short\r\nlines";
  disc.discInfo[5] = "Jazz";
  disc.extraInfo[66] = "C~1";
  disc.extraInfo[12] = "own";
  disc.extraInfo[13] = std::string(73, 'a');
  disc.extraInfo[14] = std::string(74, 'b') + " caf\xC3\xA9";
  cdartext& window = rig.orvanta.infoForm;
  const auto rows = [&] {
    rig.gate.enter([&] {
      window.unload();
      rig.form.press(rig.form.Image16[4]);
    });
    std::vector<std::string> all;
    for (int row = 0; row < window.List1.count(); ++row) all.push_back(window.List1.row(row));
    return all;
  };
  EXPECT_EQ(rows(), (std::vector<std::string>{"1:\t\t3:00",
                                              "2:\tSecond\t4:00",
                                              "3:\t\t3:59",
                                              "",
                                              "LINER NOTES:",
                                              "short",
                                              "lines",
                                              "",
                                              "TOTAL DISC TIME:  10:59",
                                              "",
                                              "GENRE:  Jazz",
                                              "",
                                              "CATALOG #:  C,1",
                                              "",
                                              "MEDIA TYPE:  Audio CD",
                                              "",
                                              "USER DEFINED 1:",
                                              "own",
                                              "Orvanta Catalog #:  19459115",
                                              "",
                                              "TRACK LYRICS / INFORMATION:",
                                              "1:\t" + std::string(73, 'a'),
                                              "",
                                              "TRACK 2:  [Second]",
                                              std::string(74, 'b'),
                                              "caf\xC3\xA9"}));
  EXPECT_EQ(window.caption.get(), "CD Info  [Artist - Title]");
  disc.linerNotes = std::string(80, 'n') + "\r\nend";
  EXPECT_EQ(rows()[5], std::string(74, 'n')) << "a line that is too long: all are wrapped";
  EXPECT_EQ(disc.linerNotes, std::string(80, 'n') + "  end");
  rig.gate.enter([&] { window.userRow(window.List1, 1, {1}); });
  EXPECT_EQ(rig.state.transport.curTrack, 2);
  rig.gate.enter([&] { window.userRow(window.List1, 3, {3}); });
  EXPECT_EQ(rig.state.transport.curTrack, 2) << "below the tracks nothing plays";
  rig.state.transport.playMode = Pgm;
  const auto played = rig.state.transport.curTrack;
  rig.gate.enter([&] { window.userRow(window.List1, 0, {0}); });
  EXPECT_EQ(rig.state.transport.curTrack, played) << "a program keeps its own order";
  rig.state.transport.playMode = Cont;
  rig.gate.enter([&] {
    window.mouseDown(&window.List1, {forms::MouseButton::Right});
    window.mouseUp({forms::MouseButton::Right});
  });
  EXPECT_FALSE(window.loaded());
}

TEST(Lists, WordsWrapAtSeventyFour) {
  std::vector<size_t> sizes;
  for (const auto& row : wrapWords(std::string(200, 'x'), 74)) sizes.push_back(row.size());
  EXPECT_EQ(sizes, (std::vector<size_t>{74, 74, 52}));
  std::string words;
  for (int i = 0; i < 40; ++i) words += "word ";
  for (const auto& row : wrapWords(words, 74)) EXPECT_LE(row.size(), 74U);
  EXPECT_EQ(wrapWords(words, 74).front(), words.substr(0, 74));
  EXPECT_TRUE(wrapWords("   ", 74).empty());
}

}  // namespace
}  // namespace orvanta::test
