// Ends of tracks, programs and discs, seeks and scans across them, and presses that come just then.
#include <gtest/gtest.h>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

/// Up to the status event that finds the end: the tick that acts on it is still to come.
void untilEndFound(PlayRig& rig) {
  while (rig.state.transport.trackGo != 0) rig.clock.advance(1);
}

TEST(Ends, FoundInTheSameTickCountBeforeAPress) {
  PlayRig one;
  one.mode(OneKey);
  one.play();
  untilEndFound(one);
  one.device.tape.clear();
  one.key('F');
  EXPECT_EQ(one.device.tape, Tape{"Stop"}) << "the track has ended: there is nothing to pause";
  EXPECT_EQ(one.look(), "/ASFG scan");
  EXPECT_EQ(one.shown() + one.time(), "0 0:00 00:00");

  PlayRig program;
  program.program({1, 2});
  untilEndFound(program);
  program.key('F');
  EXPECT_EQ(program.heard(), "paused 2 at 0") << "the next step plays, and is paused";
  EXPECT_EQ(program.shown(), "2 4:00 Title 2");
  program.key('D');
  EXPECT_EQ(program.heard(), "playing 2 at 0");

  PlayRig released;
  released.mode(OneKey);
  released.play();
  released.at(170);
  released.hold(released.form.icntla[Pause]);
  released.at(200);
  released.letGo();
  EXPECT_EQ(released.form.Label21.caption, "Repeat") << "held over the track's end, the key has nothing left to pause";
}

TEST(Ends, APressInTheDiscsLastSecondActsOnTheEndedDisc) {
  struct Case {
    const char* name;
    std::function<void(PlayRig&)> act;
    const char* heard;
    const char* shown;
  };
  const Case cases[] = {
      {"pause", [](PlayRig& rig) { rig.key('F'); }, "stopped", "0 0:00 "},
      {"Pgm", [](PlayRig& rig) { rig.mode(PgmKey); }, "stopped", "0 0:00 "},
      {"a number", [](PlayRig& rig) { rig.press(rig.form.Image17[1]); }, "playing", "2 4:00 Title 2"},
      {"the bar", [](PlayRig& rig) { rig.clickBar(0.5); }, "stopped", "0 0:00 "},
      {"play",
       [](PlayRig& rig) {
         rig.keys("D");
         rig.keys("D");
       },
       "playing", "1 3:00 Title 1"},
  };
  for (const Case& row : cases) {
    PlayRig rig;
    rig.play();
    rig.at(658.2);
    EXPECT_EQ(rig.shown() + rig.time(), "0 0:00 ") << row.name;
    EXPECT_EQ(rig.look(), "D/") << "it still plays";
    row.act(rig);
    rig.clock.advance(3000);
    EXPECT_EQ(rig.heard().substr(0, 7), row.heard) << row.name;
    EXPECT_EQ(rig.shown(), row.shown) << row.name;
  }
}

TEST(Ends, RepeatAtTheTrueEndPlaysUnderThePlayingLook) {
  PlayRig rig(discB(), true);
  rig.state.settings.timeMode = Rem;
  rig.press(rig.form.Image17[2]);
  rig.begin();
  rig.at(2);
  rig.player.play(49650 - 20, 49650);
  rig.clock.advance(2500);
  EXPECT_EQ(rig.heardTrack(), 1);
  EXPECT_EQ(rig.look(), "D/");
  EXPECT_EQ(rig.shown(), "1 3:00 Title 1");
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
}

TEST(Scan, HeldOverTheEndStartsNothing) {
  struct Case {
    size_t mode;
    const char* heard;
    const char* look;
  };
  for (const auto& [mode, heard, look] : {Case{OneKey, "stopped 1", "/ASFG scan"}, Case{ContKey, "playing 1", "D/"}}) {
    PlayRig rig;
    rig.mode(mode);
    rig.play();
    rig.at(13);  // from here the steps lead to 99 percent
    rig.hold(rig.form.scntla[ScanForward]);
    for (int tick = 0; tick < 60 && rig.state.transport.scanCount != 0; ++tick) {
      rig.clock.advance(100);
      EXPECT_EQ(rig.form.scntlc[ScanForward].visible, rig.state.transport.scanCount != 0);
    }
    EXPECT_EQ(rig.heard().substr(0, 9), heard);
    rig.clock.advance(400);
    EXPECT_EQ(rig.heard().substr(0, 9), heard) << "still held";
    EXPECT_EQ(rig.look(), look);
    rig.letGo();
  }
  for (const char* key : {"F", "G"}) {
    PlayRig rig;
    rig.play();
    rig.at(3);
    rig.hold(rig.form.scntla[ScanForward]);
    rig.clock.advance(300);
    rig.keys(key);
    const std::string heard = rig.heard();
    rig.clock.advance(3000);
    EXPECT_EQ(rig.heard(), heard) << key << " ends it, though it is held";
    EXPECT_FALSE(rig.form.scntlc[ScanForward].visible) << key;
  }
}

TEST(Scan, StepsAreThoseOfTheTable) {
  for (const auto& [key, from, percents] :
       {std::tuple{ScanForward, 10, std::vector<int>{12, 14, 16, 18, 20, 22, 28, 34, 40, 46, 52, 62, 72, 82, 92}},
        std::tuple{ScanBack, 90, std::vector<int>{86, 82, 78, 74, 70, 62, 54, 46, 38, 26, 14, 2}}}) {
    PlayRig rig(tracksOf(2, 1000));
    rig.play();
    rig.at(1);
    rig.clickBar(from / 100.0);
    rig.clock.advance(35);
    rig.hold(rig.form.scntla[key]);
    for (const int percent : percents) {
      rig.clock.advance(100);
      EXPECT_EQ(rig.form.CDStatusBar.floodPercent, percent) << from;
    }
    rig.clock.advance(100);
    EXPECT_EQ(rig.state.transport.scanCount, 0) << "past the edge it ends";
    EXPECT_EQ(rig.form.CDStatusBar.floodPercent, percents.back());
  }
}

TEST(Seek, AcrossATracksEndTakesTheDisplayAlong) {
  PlayRig rig(tracksOf(5, 60));
  rig.play();
  rig.at(56.5);
  rig.clickBar(0.5);
  EXPECT_EQ(rig.heard(), "playing 2 at 30") << "the last seconds count as the next track";
  EXPECT_EQ(rig.shown() + " " + rig.time(), "2 1:00 Title 2 0:30");
  EXPECT_EQ(rig.form.CDStatusBar.floodPercent, 50);
  rig.clickBar(0.95);
  rig.clock.advance(5000);
  EXPECT_EQ(rig.shown(), "3 1:00 Title 3") << "its end counts, though one has counted a moment ago";
  EXPECT_EQ(rig.state.transport.curTrack, 3);

  PlayRig next;
  next.play();
  next.at(10);
  next.key('S');
  next.clickBar(0.5);
  EXPECT_EQ(next.shown() + " " + next.time(), "2 4:00 Title 2 2:00");
}

TEST(Seek, OneEndAfterAnotherIsCountedOnce) {
  PlayRig rig(tracksOf(5, 60));
  rig.play();
  rig.at(55.2);
  EXPECT_EQ(rig.state.transport.curTrack, 2);
  rig.at(60.2);
  rig.clickBar(0.95);
  rig.clock.advance(1300);
  EXPECT_EQ(rig.state.transport.curTrack, 3);
  rig.clock.advance(3000);
  EXPECT_EQ(rig.shown(), "3 1:00 Title 3");
  EXPECT_EQ(rig.state.transport.curTrack, 3) << "the seek begins no new pause, the count of its end does";

  PlayRig midnight(tracksOf(3, 12));
  midnight.clock.startOfDay = 86400 - 5;
  midnight.play();
  midnight.at(9);
  EXPECT_EQ(midnight.state.transport.curTrack, 2) << "a track that ends soon after midnight";
}

TEST(Correction, StepsThreeSecondsAfterTheEndWasFound) {
  struct Case {
    const char* name;
    std::function<void(PlayRig&)> act;
    int16_t later;  ///< curTrack at 178.2 s
  };
  const Case cases[] = {
      {"nothing", [](PlayRig&) {}, 2},
      {"pause and play", [](PlayRig& rig) { rig.keys("FD"); }, 1},
      {"a seek", [](PlayRig& rig) { rig.clickBar(0.2); }, 1},
      {"One", [](PlayRig& rig) { rig.mode(OneKey); }, 1},
      {"stop", [](PlayRig& rig) { rig.key('G'); }, 1},
      {"next", [](PlayRig& rig) { rig.key('S'); }, 2},
      {"a number", [](PlayRig& rig) { rig.press(rig.form.Image17[2]); }, 3},
      {"a lit key", [](PlayRig& rig) { rig.key('D'); }, 2},
  };
  for (const Case& row : cases) {
    PlayRig rig;
    rig.state.disc.timeCorrection = -2;
    rig.play();
    rig.at(175.4);
    EXPECT_EQ(rig.state.transport.curTrack, 1) << row.name;
    row.act(rig);
    rig.at(177.9);
    EXPECT_EQ(rig.state.transport.curTrack, row.later == 2 && row.name != std::string("next") ? 1 : row.later) << row.name;
    rig.at(178.2);
    EXPECT_EQ(rig.state.transport.curTrack, row.later) << row.name;
    EXPECT_EQ(rig.waits, 0) << row.name;
  }
  PlayRig whole;
  whole.state.disc.timeCorrection = 3;
  whole.play();
  for (const auto& [second, number] : {std::pair{182, "2"}, {419, "2"}, {422, "3"}, {660, "0"}}) {
    whole.at(second);
    EXPECT_EQ(whole.track(), number) << second;
  }
  EXPECT_EQ(whole.heard().substr(0, 7), "stopped");
  EXPECT_EQ(whole.state.transport.advanceDue, 0);
}

TEST(From, IsNeverLeftForALaterPlay) {
  const std::pair<const char*, std::function<void(PlayRig&)>> cases[] = {
      {"an empty program's end",
       [](PlayRig& rig) {
         rig.mode(PgmKey);
         rig.at(185);
       }},
      {"Repeat switched on in a program",
       [](PlayRig& rig) {
         rig.program({2, 3});
         rig.at(5);
         rig.key('S');
         rig.key('R');
         rig.at(245);
       }},
      {"a program's end",
       [](PlayRig& rig) {
         rig.program({3});
         rig.at(240);
         rig.clock.advance(3000);
         rig.keys("D");
         rig.clock.advance(5000);
       }},
  };
  for (const auto& [name, act] : cases) {
    PlayRig rig;
    rig.play();
    rig.at(5);
    act(rig);
    ASSERT_EQ(rig.heard().substr(0, 7), "playing") << name;
    for (size_t i = 0; i < rig.device.tape.size(); ++i) {
      const bool from = rig.device.tape[i].substr(0, 4) == "From";
      EXPECT_TRUE(!from || rig.device.tape.at(i + 1) == "Play") << name;
    }
    rig.clock.advance(2000);
    const uint32_t place = rig.device.position();
    rig.keys("FD");
    EXPECT_EQ(rig.device.position(), place) << name;
  }
  CoreRig rig;
  rig.install();
  rig.player.insert(discB());
  rig.player.play(150 + 75 * 200, discB().leadOut);
  rig.device.command("Open");
  rig.device.tape.clear();
  rig.start();
  rig.clock.advance(3000);
  rig.key('F');
  const uint32_t place = rig.device.position();
  rig.key('D');
  EXPECT_EQ(rig.device.position(), place) << "a disc that was taken over while it played";
  EXPECT_EQ(std::count_if(rig.device.tape.begin(), rig.device.tape.end(), [](const auto& act) { return act.substr(0, 4) == "From"; }), 0);
  EXPECT_EQ(rig.track(), "2");
}

TEST(Boxes, HoldUpNoEnd) {
  const std::pair<const char*, std::function<void(PlayRig&)>> cases[] = {{"One",
                                                                          [](PlayRig& rig) {
                                                                            rig.mode(OneKey);
                                                                            rig.play();
                                                                          }},
                                                                         {"a program", [](PlayRig& rig) { rig.program({1}); }}};
  for (const auto& [name, act] : cases) {
    PlayRig rig;
    act(rig);
    rig.at(170);
    rig.dialogs.whileOpen = [&] {
      rig.form.fileDropped("/worse.cue");
      rig.clock.advance(10000);
    };
    rig.gate.enter([&] { rig.form.fileDropped("/bad.cue"); });
    rig.clock.advance(2500);
    EXPECT_EQ(rig.heard().substr(0, 7), "stopped") << name << ": the end has come behind the open box";
    EXPECT_EQ(rig.track(), "0") << name;
    rig.clock.advance(2500);
    EXPECT_EQ(rig.dialogs.tape, (Tape{"Orvanta: /bad.cue is no disc.", "Orvanta: /worse.cue is no disc."})) << name << ": each once";
  }
}

TEST(Tray, TakesAnImageAfterAProgramHasEnded) {
  PlayRig rig(tracksOf(2, 20));
  rig.player.images["/b.cue"] = discB();
  rig.program({1});
  rig.clock.advance(30000);
  ASSERT_EQ(rig.state.transport.playEnded, kOn);
  rig.gate.enter([&] { rig.form.fileDropped("/b.cue"); });
  rig.clock.advance(1200);
  EXPECT_EQ(rig.player.disc, discB());
}

TEST(Request, ToClearTheDiscsTexts) {
  PlayRig rig;
  rig.state.disc.discArtist = "Artist";
  rig.state.disc.discTitle = "Title";
  rig.play();
  rig.at(2);
  EXPECT_EQ(rig.form.Label12.caption, "Artist - Title");
  rig.form.Image14.visible = true;
  rig.state.disc.clearDiscRequest = kOn;
  rig.clock.advance(100);
  EXPECT_EQ(rig.form.Label12.caption.get() + rig.state.disc.discArtist + rig.state.disc.discTitle, "");
  EXPECT_FALSE(rig.form.Image14.visible);
  EXPECT_EQ(rig.state.disc.clearDiscRequest, kOff);
  rig.state.disc.discTitle = "Found";
  rig.clock.advance(1100);
  EXPECT_EQ(rig.form.Label12.caption, "Found") << "once";
}

}  // namespace
}  // namespace orvanta::test
