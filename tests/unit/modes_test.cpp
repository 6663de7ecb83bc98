// Play modes, programs, steps, scans and loops over whole discs on the virtual clock.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <random>
#include <set>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

TEST(Program, PlaysItsTracksAndEnds) {
  PlayRig rig;
  rig.state.settings.timeMode = TotRem;
  rig.program({2, 1});
  EXPECT_EQ(rig.form.Label6.caption, "PGM");
  rig.at(1);
  EXPECT_EQ(rig.time(), "-06:59");
  EXPECT_EQ(rig.heardTrack(), 2);
  rig.at(236);
  EXPECT_EQ(rig.heardTrack(), 2);
  rig.at(237.4);
  EXPECT_EQ(rig.heardTrack(), 1);
  EXPECT_EQ(rig.track(), "1");
  rig.at(416);
  EXPECT_EQ(rig.state.program.pgmList[1] + rig.state.program.pgmList[2], 0);
  EXPECT_EQ(rig.state.transport.playMode, Cont);
  EXPECT_EQ(rig.form.Label6.caption, "Cont");
  EXPECT_EQ(rig.device.mode(), DeviceMode::Stopped);
  rig.state.disc.trackTitles[3] = "Third";
  rig.press(rig.form.Image17[2]);
  rig.clock.advance(2000);
  EXPECT_EQ(rig.track(), "3");
  EXPECT_EQ(rig.form.Label13.caption, "Third");
  EXPECT_EQ(rig.device.mode(), DeviceMode::Playing);
}

TEST(Program, StepsRepeatsAndFallsBack) {
  PlayRig late;
  late.state.disc.timeCorrection = 5;
  late.program({2, 1});
  late.at(239.5);
  EXPECT_EQ(late.heardTrack(), 2);
  late.at(241.2);
  EXPECT_EQ(late.heardTrack(), 1) << "the step comes as the device enters the next track";

  PlayRig next;
  next.program({3, 3, 2, 1});
  next.at(10);
  next.key('S');
  EXPECT_EQ(next.heard(), "playing 3 at 0") << "a track may stand twice";
  next.key('S');
  next.clock.advance(2000);
  next.key('A');
  EXPECT_EQ(next.heard(), "playing 2 at 2") << "without Repeat there is no way back";
  next.key('S');
  EXPECT_EQ(next.heardTrack(), 1);
  next.key('S');
  EXPECT_EQ(next.device.mode(), DeviceMode::Stopped) << "past its end";
  EXPECT_EQ(next.state.transport.playingFlag, kOff);
  EXPECT_FALSE(next.form.icntlc[Play].visible);

  PlayRig round(discB(), true);
  round.program({2, 1});
  round.at(420);
  EXPECT_EQ(round.heardTrack(), 2) << "round again";
  EXPECT_EQ(round.state.program.pgmList[1], 2);
  round.key('S');
  round.clock.advance(1000);
  round.key('A');
  EXPECT_EQ(round.heardTrack(), 2);

  PlayRig empty;
  empty.mode(PgmKey);
  empty.press(empty.form.icntla[Play]);
  EXPECT_EQ(empty.state.transport.playMode, Cont);
  EXPECT_EQ(empty.heardTrack(), 1);
  EXPECT_EQ(empty.device.mode(), DeviceMode::Playing);
  empty.mode(PgmKey);
  const Tape before = empty.device.tape;
  empty.press(empty.form.Image17[2]);
  EXPECT_EQ(empty.device.tape, before) << "number keys are inert in Pgm";
}

TEST(Program, IsRecalledFromTheDiscsFile) {
  CoreRig rig;
  rig.install();
  std::string lines = "3\r\n1\r\n25\r\n2\r\n";
  for (int i = 4; i < 100; ++i) lines += "0\r\n";
  rig.files.files["/DATA/DATACD/19459115.CD2"] = lines;
  rig.player.insert(discB());
  rig.start();
  rig.clock.advance(100);
  EXPECT_EQ(rig.form.Label30.foreColor, rig.state.settings.lcdColor[kLcdLabelOn]);
  EXPECT_EQ(rig.form.Label40.foreColor, colours::kBlack);
  rig.press(rig.form.Label30);
  EXPECT_EQ(unpackTmsf(rig.device.position()).track, 3);
  EXPECT_EQ(std::vector<int16_t>(rig.state.program.pgmList.begin() + 1, rig.state.program.pgmList.begin() + 6),
            (std::vector<int16_t>{3, 1, 0, 2, 0}))
      << "what the disc does not have ends the list";
  EXPECT_TRUE(rig.form.icntlc[Play].visible);
}

TEST(One, StopsAtItsTracksEndOrRepeatsIt) {
  struct Case {
    int correction;
    bool repeat;
    double before;
    double after;
  };
  for (const auto& [correction, repeat, before, after] :
       {Case{0, false, 176.5, 177.4}, Case{-3, false, 173.5, 174.4}, Case{5, false, 180, 181.4}, Case{0, true, 176.5, 177.4}}) {
    PlayRig rig(discB(), repeat);
    rig.state.disc.timeCorrection = static_cast<int16_t>(correction);
    rig.mode(OneKey);
    rig.begin();
    rig.press(rig.form.icntla[Play]);
    rig.at(before);
    EXPECT_EQ(rig.device.mode(), DeviceMode::Playing) << correction;
    rig.at(after);
    EXPECT_EQ(rig.device.mode(), repeat ? DeviceMode::Playing : DeviceMode::Stopped) << correction;
    if (repeat) {
      EXPECT_LT(framesOf(unpackTmsf(rig.device.position()).time), 75);
      EXPECT_EQ(rig.heardTrack(), 1);
    } else {
      EXPECT_EQ(rig.time(), "00:00");
      EXPECT_EQ(rig.track(), "0");
      EXPECT_EQ(rig.state.transport.playingFlag, kOff);
    }
  }
  PlayRig stopped(discB(), true);
  stopped.mode(OneKey);
  stopped.clock.advance(3000);
  EXPECT_EQ(stopped.device.mode(), DeviceMode::Stopped) << "entering One with Repeat on starts nothing by itself";
}

TEST(Cont, TwentyAndMoreTracks) {
  for (const int count : {20, 24}) {
    for (const bool repeat : {false, true}) {
      PlayRig rig(tracksOf(count, 60), repeat);
      rig.begin();
      rig.key('D');
      rig.at(20 * 60 - 30);
      EXPECT_EQ(rig.track(), "20");
      rig.at(20 * 60 + 30);
      if (repeat) {
        EXPECT_EQ(rig.heardTrack(), 1) << count << ": Repeat loops at the last lamp's track";
      } else if (count == 24) {
        EXPECT_EQ(rig.track(), "21");
        EXPECT_EQ(rig.form.Label22[19].foreColor, rig.state.settings.lcdColor[kLcdDim]);
        rig.at(24 * 60 + 10);
        EXPECT_EQ(rig.device.mode(), DeviceMode::Stopped);
      } else {
        EXPECT_EQ(rig.device.mode(), DeviceMode::Stopped);
      }
    }
  }
}

/// In a track's last five seconds the next one is counted already while the device is still in this one: what a person
/// does then must not count the same end again.
TEST(Cont, AnEndThatWasCountedIsNotCountedAgain) {
  struct Doing {
    const char* what;
    std::function<void(PlayRig&)> run;
  };
  const Doing acts[] = {{"pause, play", [](PlayRig& deck) { deck.keys("FD"); }},
                        {"a pause longer than the guard",
                         [](PlayRig& deck) {
                           deck.keys("F");
                           deck.clock.advance(20000);
                           deck.keys("D");
                         }},
                        {"the key of its own mode", [](PlayRig& deck) { deck.mode(ContKey); }}};
  for (const Doing& act : acts) {
    for (const int16_t correction : {int16_t{0}, int16_t{2}}) {
      SCOPED_TRACE(act.what + std::string(", correction ") + std::to_string(correction));
      PlayRig deck(discA());
      deck.state.disc.timeCorrection = correction;
      deck.play();
      // Track 2 is 4:58 long, track 3 shorter than what has passed by then.
      deck.clock.advance((246 + 293) * 1000 + 600);
      EXPECT_EQ(deck.heardTrack(), 2);
      act.run(deck);
      deck.clock.advance(9000);
      EXPECT_EQ(deck.heardTrack(), 3);
      EXPECT_EQ(deck.shown().substr(0, 1), "3");
      EXPECT_EQ(deck.state.transport.curTrack, 3);
      deck.clock.advance(100000);
      EXPECT_EQ(deck.device.mode(), DeviceMode::Playing);
    }
  }
}

TEST(Shuffle, PlaysEveryTrackOnce) {
  for (const int count : {1, 5, 24}) {
    PlayRig rig(tracksOf(count, 20));
    rig.key('E');
    const auto& list = rig.state.program.pgmList;
    EXPECT_EQ(std::set<int16_t>(list.begin() + 1, list.begin() + 1 + count).size(), static_cast<size_t>(count));
    EXPECT_EQ(list[static_cast<size_t>(count) + 1], 0);
    EXPECT_EQ(rig.state.program.pgmCount, std::min(count, 20));
    std::set<int> heard;
    for (int second = 0; second < count * 20 + 60; ++second) {
      if (rig.device.mode() == DeviceMode::Playing) heard.insert(rig.heardTrack());
      rig.clock.advance(1000);
    }
    EXPECT_EQ(heard.size(), static_cast<size_t>(count));
    EXPECT_EQ(rig.device.mode(), DeviceMode::Stopped);
  }
}

TEST(Intro, PlaysBeginningsUntilItIsEnded) {
  for (const auto& [option, limit] : {std::pair{1, 7}, {7, 7}, {30, 30}, {31, 7}}) {
    PlayRig rig(tracksOf(4, 60));
    rig.state.settings.appOptions[4] = static_cast<int16_t>(option);
    rig.mode(IntroKey);
    EXPECT_EQ(rig.form.Label30.caption, "Intro Play");
    std::vector<int> heard;
    std::vector<int64_t> lengths;
    int64_t since = 0;
    for (int tick = 0; tick < limit * 60; ++tick) {
      rig.clock.advance(100);
      if (rig.device.mode() != DeviceMode::Playing || (!heard.empty() && heard.back() == rig.heardTrack())) continue;
      if (!heard.empty()) lengths.push_back((rig.clock.milliseconds() - since + 500) / 1000);
      heard.push_back(rig.heardTrack());
      since = rig.clock.milliseconds();
    }
    ASSERT_GE(heard.size(), 5U) << option;
    EXPECT_EQ(std::vector<int>(heard.begin(), heard.begin() + 5), (std::vector<int>{2, 3, 4, 1, 2})) << option;
    for (const int64_t length : lengths) EXPECT_NEAR(static_cast<double>(length), limit + 1, 2) << option;
    rig.press(rig.form.icntla[Pause]);
    EXPECT_EQ(rig.form.Label6.caption, "Cont");
    EXPECT_EQ(rig.state.transport.introTrack, 0);
    EXPECT_EQ(rig.form.Label30.caption, "Pgm Stored");
  }
}

TEST(Intro, AShortTrackPlaysItsLength) {
  PlayRig rig(tocOf({150, 150 + 75 * 30, 150 + 75 * 33}, 150 + 75 * 63));
  rig.mode(IntroKey);
  rig.clock.advance(1200);
  EXPECT_EQ(rig.heardTrack(), 2);
  rig.clock.advance(5500);
  EXPECT_EQ(rig.heardTrack(), 3) << "three seconds, and the next";
}

TEST(Display, TimeModesInOneAndPgm) {
  struct Case {
    size_t mode;
    TimeMode time;
    const char* at10;
  };
  for (const auto& [mode, time, text] :
       {Case{OneKey, Time, "0:10"}, Case{OneKey, Rem, "-2:50"}, Case{OneKey, Total, "00:10"}, Case{OneKey, TotRem, "-2:50"},
        Case{PgmKey, Time, "0:10"}, Case{PgmKey, Rem, "-2:50"}, Case{PgmKey, Total, "00:10"}, Case{PgmKey, TotRem, "-10:50"}}) {
    PlayRig rig;
    rig.state.settings.timeMode = time;
    if (mode == PgmKey) {
      rig.program({1, 2, 2});
    } else {
      rig.mode(mode);
      rig.begin();
      rig.press(rig.form.icntla[Play]);
    }
    rig.at(10);
    EXPECT_EQ(rig.time(), text) << mode << " " << time;
  }
}

TEST(Display, SmoothsJumpsUntilAResetIsAskedFor) {
  PlayRig rig;
  rig.key('D');
  rig.clock.advance(60010);
  EXPECT_EQ(rig.time(), "1:00");
  rig.player.play(150 + 30 * 75, discB().leadOut);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.time(), "1:01") << "a device that falls back is not followed";
  rig.key('T');
  rig.key('T');
  rig.key('T');
  rig.key('T');
  rig.clock.advance(1000);
  EXPECT_EQ(rig.time(), "0:31") << "a change of mode takes it as it is";
}

TEST(AbLoop, IsSetRunsAndIsCancelled) {
  PlayRig rig;
  rig.begin();
  rig.key('D');
  rig.at(40);
  rig.key('W');
  const auto& colour = rig.state.settings.lcdColor;
  std::set<Colour> seen;
  for (int i = 0; i < 10; ++i) {
    seen.insert(rig.form.Label16.foreColor);
    rig.clock.advance(100);
  }
  EXPECT_EQ(seen, (std::set<Colour>{colour[kLcdLabelOff], colour[kLcdLabelOn]})) << "it blinks";
  rig.at(60);
  rig.key('W');
  EXPECT_EQ(rig.form.Label16.foreColor, colour[kLcdLit]);
  for (int second = 61; second < 160; ++second) {
    rig.at(second);
    const int place = framesOf(unpackTmsf(rig.device.position()).time) / 75;
    EXPECT_GE(place, 30) << second;
    EXPECT_LE(place, 64) << second;
  }
  rig.key('W');
  rig.at(330);
  EXPECT_EQ(rig.heardTrack(), 2) << "and goes on when it is cancelled";
  rig.key('W');
  EXPECT_TRUE(rig.state.transport.abSetA);
  rig.key('S');
  rig.clock.advance(300);
  EXPECT_FALSE(rig.state.transport.abSetA) << "a step to another track takes A away";
}

TEST(Shuffle, EveryOrderIsEquallyLikely) {
  for (const auto& [count, orders, presses] : {std::tuple{3, 6, 1200}, {5, 120, 6000}}) {
    PlayRig rig(tracksOf(count, 60));
    std::map<std::vector<int16_t>, int> seen;
    for (int i = 0; i < presses; ++i) {
      rig.key('E');
      const auto first = rig.state.program.pgmList.begin() + 1;
      ++seen[std::vector<int16_t>(first, first + count)];
    }
    EXPECT_EQ(seen.size(), static_cast<size_t>(orders));
    // Seven deviations from the mean: a fair draw stays within them.
    const double mean = static_cast<double>(presses) / orders;
    for (const auto& [order, times] : seen) EXPECT_NEAR(times, mean, 7 * std::sqrt(mean)) << order[0] << order[1] << order[2];
  }
}

/// Seeks since the tape was cleared.
int seeks(const PlayRig& rig) { return static_cast<int>(std::count(rig.device.tape.begin(), rig.device.tape.end(), "SEEK")); }

TEST(AbLoop, ReturnsOnceARound) {
  for (const int begin : {0, 40}) {
    PlayRig rig;
    rig.play();
    rig.at(begin);
    rig.key('W');
    rig.clock.advance(1000);
    EXPECT_TRUE(rig.state.transport.abSetA) << begin;
    rig.at(begin + 20);
    rig.device.tape.clear();
    rig.key('W');
    EXPECT_EQ(rig.device.tape, (Tape{"PAUSE", "SEEK", "PLAY"})) << begin;
    const int landed = rig.heardSecond();
    EXPECT_NEAR(landed, begin == 0 ? 6 : begin - 6, 1) << "a click's margin before A, or as far behind the track's start";
    EXPECT_EQ(rig.time(), minutesSeconds(landed)) << "shown at once";
    EXPECT_EQ(rig.form.CDStatusBar.floodPercent, landed * 100 / 180);
    rig.device.tape.clear();
    rig.clock.advance(100000);
    const int round = begin + 20 - landed;
    EXPECT_NEAR(seeks(rig), 100 / round, 1) << begin;
    EXPECT_EQ(rig.device.mode(), DeviceMode::Playing);
  }
}

TEST(AbLoop, IsGivenUpWhereItCannotRun) {
  const auto set = [](PlayRig& rig, double a, double b) {
    rig.play();
    rig.at(a);
    rig.key('W');
    rig.at(b);
    rig.key('W');
  };
  const auto loops = [](const PlayRig& rig) { return rig.state.transport.abSetA || rig.state.transport.abSetB; };
  PlayRig close;
  set(close, 0.5, 3.5);
  close.device.tape.clear();
  close.clock.advance(5000);
  EXPECT_FALSE(loops(close)) << "its end lies before the place where it would land";
  EXPECT_EQ(seeks(close), 0);

  PlayRig before;
  before.play();
  before.at(100);
  before.key('W');
  before.clickBar(0.2);
  before.key('W');
  before.clock.advance(5000);
  EXPECT_FALSE(loops(before)) << "and an end before the start";

  for (const char* key : {"S", "G", "J"}) {
    for (const double end : {30.0, 0.0}) {
      PlayRig rig;
      rig.play();
      rig.at(10);
      rig.key('W');
      if (end > 0) {
        rig.at(end);
        rig.key('W');
      }
      rig.keys(key);
      rig.clock.advance(300);
      EXPECT_FALSE(loops(rig)) << key;
      EXPECT_EQ(rig.form.Label17.foreColor, *key == 'J' ? colours::kGrey : colours::kBlack) << key;
      EXPECT_EQ(rig.form.Label16.foreColor, rig.state.settings.lcdColor[kLcdLabelOff]) << key;
    }
  }

  PlayRig late;
  set(late, 100, 178);
  EXPECT_EQ(late.heardTrack(), 1) << "in the track's last seconds it still goes back in its own";
  late.clock.advance(2000);
  EXPECT_EQ(late.shown(), "1 3:00 Title 1");
  EXPECT_TRUE(loops(late));
}

TEST(Scan, RunsFasterTheLongerAndStopsAtTheEdges) {
  PlayRig rig;
  rig.begin();
  rig.key('D');
  rig.at(20);
  const auto place = [&] { return framesOf(unpackTmsf(rig.device.position()).time) / 75; };
  rig.gate.enter([&] { rig.form.mouseDown(&rig.form.scntla[ScanForward], {}); });
  EXPECT_TRUE(rig.form.scntlc[ScanForward].visible);
  rig.clock.advance(500);
  const int early = place();
  EXPECT_GT(early, 30);
  rig.clock.advance(500);
  EXPECT_GT(place() - early, early - 20);
  rig.clock.advance(3000);
  EXPECT_EQ(rig.state.transport.scanCount, 0) << "stopped before the end";
  EXPECT_EQ(rig.heardTrack(), 1);
  rig.gate.enter([&] { rig.form.mouseUp({}); });
  EXPECT_FALSE(rig.form.scntlc[ScanForward].visible);
  rig.gate.enter([&] { rig.form.mouseDown(&rig.form.scntla[ScanBack], {}); });
  rig.clock.advance(5000);
  rig.gate.enter([&] { rig.form.mouseUp({}); });
  EXPECT_EQ(rig.device.mode(), DeviceMode::Playing);
  EXPECT_LT(place(), 60);
}

TEST(Keys, NextAndPrevious) {
  PlayRig rig;
  rig.key('D');
  rig.clock.advance(3000);
  rig.device.tape.clear();
  rig.key('S');
  EXPECT_EQ(rig.device.tape, (Tape{"Stop", "From 2", "Play"}));
  rig.clock.advance(3000);
  EXPECT_EQ(rig.track(), "2");
  rig.key('S');
  rig.clock.advance(3000);
  rig.key('S');
  rig.clock.advance(2000);
  EXPECT_EQ(rig.track(), "3") << "on the last track next does nothing";
  EXPECT_EQ(rig.device.mode(), DeviceMode::Playing);
  for (const char* track : {"2", "1", "1"}) {
    rig.key('A');
    rig.clock.advance(2000);
    EXPECT_EQ(rig.track(), track);
    EXPECT_EQ(std::to_string(rig.heardTrack()), track);
  }
  rig.key('F');
  rig.key('S');
  EXPECT_EQ(rig.heardTrack(), 1) << "masked while paused";
}

TEST(Keys, NumbersAboveTwentyModesAndTime) {
  PlayRig rig(tracksOf(24, 60));
  rig.press(rig.form.Image16[Above20]);
  EXPECT_TRUE(rig.form.Text1.visible);
  for (const int code : {int{'2'}, int{'9'}, int{forms::key::kBackspace}, int{'3'}, int{forms::key::kEnter}}) rig.key(code);
  EXPECT_FALSE(rig.form.Text1.visible);
  EXPECT_TRUE(rig.form.Label44.visible);
  EXPECT_EQ(rig.heardTrack(), 23);
  rig.clock.advance(1500);
  EXPECT_EQ(rig.track(), "23");
  rig.press(rig.form.Image17[4]);
  rig.clock.advance(1500);
  EXPECT_EQ(rig.heardTrack(), 5);
  for (const char* word : {"Rem", "TOTAL", "Totrem", "Time"}) {
    rig.key('T');
    EXPECT_EQ(rig.form.Label9.caption, word);
    rig.clock.advance(1100);
    EXPECT_NE(rig.time(), "");
  }
  rig.key('R');
  EXPECT_EQ(rig.state.settings.repeatOn, kOn);
  EXPECT_EQ(rig.form.Label21.foreColor, rig.state.settings.lcdColor[kLcdRepeatOn]);
  rig.key('R');
  const int left = rig.form.CDStatusBar.width / 2;
  rig.gate.enter([&] {
    rig.form.mouseDown(&rig.form.CDStatusBar, {forms::MouseButton::Left, left + 84, 5});
    rig.form.mouseUp({forms::MouseButton::Left, left + 84, 5});
  });
  EXPECT_EQ(unpackTmsf(rig.device.position()).time.seconds, 30) << "the middle of the bar is the middle of the track";
  for (const char* word : {"Intro", "PGM", "One", "Cont"}) {
    rig.key('Y');
    EXPECT_EQ(rig.form.Label6.caption, word);
  }
}

TEST(Record, HandsTheDiscToTheRecorder) {
  CoreRig own;
  own.startWith(discB());
  own.state.disc.discArtist = "A";
  own.state.disc.linerNotes = std::string(29, 'n') + "\xC3\xA9 and more";
  own.key('H');
  EXPECT_EQ(own.processes.tape, Tape{"/programs/orvrec 2/data"});
  EXPECT_TRUE(own.gate.ended());
  EXPECT_FALSE(own.files.exists("/data/audiocd.tmp"));
  const std::string handed = own.files.read("/data/audiocd.dat").value_or("");
  EXPECT_EQ(handed.substr(0, 16), "\"A\"\r\n\"\"\r\n3\r\n\"\"\r\n");
  EXPECT_NE(handed.find(std::string(29, 'n') + "\xE9\"\r\n"), std::string::npos) << "thirty characters, not bytes";
  CoreRig users;
  users.settings.recordCommand = "/opt/rip --disc 'x y'";
  users.startWith(discB());
  users.key('H');
  EXPECT_EQ(users.processes.tape, Tape{"/opt/rip --disc 'x y'"});
}

TEST(Positions, ArePulledOntoTheScreen) {
  CoreRig rig;
  rig.startWith(discB());
  const int width = rig.form.width;
  const int screen = rig.screen.widthTwips();
  EXPECT_EQ(rig.form.left, (screen - width) / 2);
  rig.gate.enter([&] { rig.form.dragged(-500, 20); });
  EXPECT_EQ(rig.files.read("/data/CDPOSN.DAT"), "0\r\n20\r\n");
  rig.gate.enter([&] { rig.form.dragged(screen - width - 100, 20); });
  EXPECT_EQ(rig.form.left, screen - width - 100) << "no margin on storing";
  rig.form.unload();
  rig.gate.enter([&] { rig.orvanta.showFaceplate(); });
  EXPECT_EQ(rig.form.left, screen - width) << "within the margin on reading: pulled in whole";
  rig.gate.enter([&] { rig.form.doubleClick(&rig.form.Image8); });
  EXPECT_FALSE(rig.files.exists("/data/CDPOSN.DAT"));
}

/// Whatever is pressed, in whatever order, some things always hold.
TEST(RandomWalk, HoldsWhatAlwaysHolds) {
  for (const unsigned seed : {1U, 2U, 3U, 4U}) {
    std::mt19937 chance(seed);
    const Toc toc = seed % 2 == 0 ? tracksOf(24, 12) : tocOf({150, 150 + 75 * 5, 150 + 75 * 40}, 150 + 75 * 55);
    PlayRig rig(toc, seed > 2);
    int silent = 0;
    for (int step = 0; step < 2500 && !rig.gate.ended(); ++step) {
      static constexpr std::string_view kKeys = "ASDFGTWREYI0123456789";
      const auto& controls = rig.form.controls();
      const auto what = chance() % 10;
      if (what < 4) {
        rig.key(kKeys[chance() % kKeys.size()]);
      } else if (what < 7) {
        forms::Control& control = *controls[chance() % controls.size()];
        const std::string& name = control.name();
        // Not the ways out: those have tests of their own.
        if (name != "Image5" && name != "Image6" && name != "Panel3D2" && control.shown() && !(name == "icntla" && control.index() == 5) &&
            !(name == "Image16" && control.index() == 3)) {
          rig.press(control);
        }
      } else {
        rig.clock.advance(static_cast<int64_t>(chance() % 4000));
      }
      const TransportState& transport = rig.state.transport;
      ASSERT_FALSE(transport.playingFlag == kOn && transport.pausedFlag == kOn) << seed << " step " << step;
      ASSERT_GE(transport.curTrack, 0);
      ASSERT_LE(transport.curTrack, rig.state.disc.trackCount + 1) << seed << " step " << step;
      ASSERT_GE(transport.playMode, Pgm);
      ASSERT_LE(transport.playMode, Cont);
      // What is lit is what the device does, and number, length and title are those of one track.
      rig.clock.advance(300);
      if (rig.device.mode() != DeviceMode::NotOpen) {
        if (rig.litFor() != rig.device.mode()) rig.clock.advance(100);
        ASSERT_EQ(rig.litFor(), rig.device.mode()) << seed << " step " << step << ": " << rig.look();
      }
      const auto number = static_cast<size_t>(std::stoi(rig.track()));
      const std::string whole = number == 0 ? "0 0:00 " : rig.track() + " " + rig.state.disc.trackLengths[number] + " Title " + rig.track();
      if (rig.state.disc.discStarted == kOn) {
        ASSERT_EQ(rig.shown(), whole) << seed << " step " << step;
      }
      // A deck that says that it plays is heard, two seconds later at the latest.
      rig.clock.advance(100);
      silent = transport.playingFlag == kOn && rig.device.mode() != DeviceMode::Playing ? silent + 1 : 0;
      if (silent > 0) {
        rig.clock.advance(2200);
        ASSERT_FALSE(transport.playingFlag == kOn && rig.device.mode() != DeviceMode::Playing && rig.device.mode() != DeviceMode::NotOpen)
            << seed << " step " << step << " mode " << transport.playMode << " track " << transport.curTrack << " go " << transport.trackGo;
      }
    }
    EXPECT_FALSE(rig.gate.ended()) << seed;
    // The disc is pulled in the midst of it: nothing acts until another is in, and that is another process.
    rig.player.insert({}, "");
    rig.clock.advance(1500);
    EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
    for (forms::Control* control : rig.form.controls()) {
      const std::string& name = control->name();
      if (name != "Image5" && name != "Image6" && control->shown()) rig.press(*control);
    }
    EXPECT_EQ(rig.state.transport.playingFlag + rig.state.transport.pausedFlag, 0) << seed;
    EXPECT_EQ(rig.device.mode(), DeviceMode::NotOpen) << seed;
    rig.player.insert(discA());
    rig.processes.onStart = [&] { rig.files.files.erase("/DATA/EJCD.TMP"); };
    // Windows that the walk has opened would hold the new process up.
    rig.gate.enter([&] {
      rig.orvanta.editor.closeAsked();
      rig.orvanta.playlistForm.closeAsked();
    });
    rig.clock.advance(1500);
    EXPECT_TRUE(rig.gate.ended()) << seed;
  }
}

}  // namespace
}  // namespace orvanta::test
