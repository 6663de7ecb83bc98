// Whole discs on the virtual clock: the display second by second, the keys, the ends.
#include <gtest/gtest.h>

#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

/// Plays disc B from its start and looks at the display at whole seconds.
struct Playing : CoreRig {
  explicit Playing(int16_t timeMode = Time, bool repeat = false) {
    settings.timeMode = timeMode;
    settings.repeatOn = repeat ? kOn : kOff;
    startWith(discB());
    clock.advance(50);  // so that status events fall between the ticks
    press(form.icntla[Play]);
  }
  /// Just after the status event of a second; the tick that follows is to come.
  void at(int second) {
    clock.advance(int64_t{second} * 1000 + 10 - since);
    since = int64_t{second} * 1000 + 10;
  }
  void tick() {
    clock.advance(100);
    since += 100;
  }
  int64_t since = 0;
};

TEST(Display, Time) {
  Playing deck;
  struct Case {
    int second;
    const char* status;
    const char* tick;
    const char* track;
  };
  for (const auto& [second, status, tick, track] :
       {Case{1, "0:01", "0:01", "1"}, Case{175, "2:55", "2:55", "1"}, Case{179, "2:59", "2:59", "1"}, Case{180, "3:00", "0:00", "2"},
        Case{181, "0:01", "0:01", "2"}, Case{420, "4:00", "0:00", "3"}, Case{658, "3:58", "", "0"}, Case{659, "", "", "0"}}) {
    deck.at(second);
    EXPECT_EQ(deck.time(), status) << second;
    if (second == 175) {
      EXPECT_EQ(deck.state.transport.curTrack, 2);
    }
    deck.tick();
    EXPECT_EQ(deck.time(), tick) << second;
    EXPECT_EQ(deck.track(), track) << second;
  }
  EXPECT_EQ(deck.device.mode(), DeviceMode::Stopped);
  EXPECT_EQ(deck.state.transport.playEnded, kOn);
  EXPECT_EQ(deck.state.transport.curTrack, 0);
  EXPECT_EQ(deck.state.transport.playingFlag + deck.state.transport.pausedFlag, 0);
  EXPECT_FALSE(deck.form.icntlc[Play].visible);
}

TEST(Display, OtherTimeModes) {
  using Times = std::vector<std::pair<int, const char*>>;
  const std::pair<TimeMode, Times> cases[] = {
      {Rem, {{1, "-2:59"}, {175, "-0:05"}, {180, "-0:00"}, {181, "-3:59"}, {420, "-0:00"}, {421, "-3:58"}, {658, "-0:01"}}},
      {Total, {{175, "02:55"}, {176, "05:56"}, {180, "06:00"}, {181, "03:01"}}},
      {TotRem, {{1, "-10:58"}, {175, "-08:04"}, {180, "-07:59"}, {420, "-03:59"}, {421, "-03:58"}}},
  };
  for (const auto& [mode, times] : cases) {
    Playing deck(mode);
    for (const auto& [second, text] : times) {
      deck.at(second);
      EXPECT_EQ(deck.time(), text) << mode << " at " << second;
    }
  }
}

TEST(Display, BarCalendarAndLengthFollowTheTrack) {
  Playing deck;
  deck.at(90);
  EXPECT_EQ(deck.form.CDStatusBar.floodPercent, 50);
  EXPECT_EQ(deck.form.Label43.caption, "3:00");
  deck.at(182);
  deck.tick();
  EXPECT_EQ(deck.form.Label43.caption, "4:00");
  EXPECT_EQ(deck.form.CDStatusBar.floodPercent, 1);
  EXPECT_EQ(deck.form.Label22[0].foreColor, deck.state.settings.lcdColor[kLcdDim]);
  EXPECT_EQ(deck.form.Label22[1].foreColor, deck.state.settings.lcdColor[kLcdLitInCont]);
}

TEST(Repeat, GoesRoundAtTheLastTracksEnd) {
  Playing deck(Time, true);
  deck.at(419);
  EXPECT_EQ(unpackTmsf(deck.device.position()).track, 2) << "no restart while the track before still plays";
  deck.at(500);
  EXPECT_EQ(unpackTmsf(deck.device.position()).track, 3);
  deck.at(657);
  EXPECT_EQ(unpackTmsf(deck.device.position()).track, 3);
  deck.at(660);
  EXPECT_EQ(unpackTmsf(deck.device.position()).track, 1);
  EXPECT_EQ(deck.state.transport.playingFlag, kOn);
  deck.tick();
  EXPECT_EQ(deck.track(), "1");
}

TEST(Disc, EndsInEverySize) {
  struct Case {
    const char* name;
    Toc toc;
    int seconds;
    const char* again = "1";  ///< track shown 2 s into the next play
  };
  std::vector<int> many;
  for (int i = 0; i < 24; ++i) many.push_back(150 + i * 75 * 30);
  const Case cases[] = {{"A", discA(), 811},
                        {"24 tracks", tocOf(many, 150 + 24 * 75 * 30), 722},
                        {"one short track", tocOf({150}, 150 + 75 * 12), 13},
                        {"tracks under 8 s", tocOf({150, 150 + 375, 150 + 750}, 150 + 1125), 17, "2"},
                        {"a long track", tocOf({150, 150 + 75 * 4000}, 150 + 75 * 4100), 4102}};
  for (const auto& [name, toc, seconds, again] : cases) {
    CoreRig rig;
    rig.clock.startOfDay = 86300;  // midnight passes while it plays
    rig.startWith(toc);
    rig.key('D');
    rig.clock.advance(int64_t{seconds} * 1000);
    EXPECT_EQ(rig.state.transport.playingFlag, kOff) << name;
    EXPECT_EQ(rig.state.transport.curTrack, 0) << name;
    EXPECT_EQ(rig.track(), "0") << name;
    EXPECT_EQ(rig.time(), "") << name;
    rig.key('D');
    rig.clock.advance(2200);
    EXPECT_EQ(rig.track(), again) << name;
    EXPECT_EQ(rig.time(), "0:02") << name;
  }
}

TEST(Display, CountsPastTwentyFourMinutesAndAnHour) {
  CoreRig rig;
  rig.startWith(tocOf({150, 150 + 75 * 4000}, 150 + 75 * 4100));
  rig.key('D');
  for (const auto& [second, text] : {std::pair{1503, "25:03"}, {3661, "61:01"}}) {
    rig.clock.advance(second * 1000 + 10 - rig.clock.milliseconds() + 100);
    EXPECT_EQ(rig.time(), text);
    EXPECT_EQ(rig.form.CDStatusBar.floodPercent, (second * 100 + 2000) / 4000);
  }
}

TEST(Keys, PlayPauseStop) {
  CoreRig rig;
  rig.startWith(discB());
  rig.press(rig.form.icntla[Pause]);
  EXPECT_EQ(rig.state.transport.pausedFlag, kOff) << "masked while stopped";
  rig.device.tape.clear();
  rig.press(rig.form.icntla[Play]);
  EXPECT_EQ(rig.device.tape, (Tape{"From 1", "Play"}));
  EXPECT_TRUE(rig.form.icntlc[Play].visible);
  for (const size_t key : {Previous, Next, Pause, Stop}) EXPECT_FALSE(rig.form.icntlb[key].visible);
  rig.clock.advance(10200);
  rig.key('F');
  EXPECT_EQ(rig.device.mode(), DeviceMode::Paused);
  EXPECT_EQ(rig.form.Label21.caption, "PAUSE");
  EXPECT_TRUE(rig.form.icntlb[Stop].visible);
  const uint32_t place = rig.device.position();
  rig.clock.advance(60000);
  EXPECT_EQ(rig.device.position(), place);
  EXPECT_EQ(rig.time(), "0:10");
  rig.device.tape.clear();
  rig.key('D');
  EXPECT_EQ(rig.device.tape, (Tape{"Resume", "Play"}));
  EXPECT_EQ(rig.form.Label21.caption, "Repeat");
  rig.clock.advance(2000);
  EXPECT_EQ(rig.time(), "0:12");
  rig.key('D');
  EXPECT_EQ(rig.time(), "0:12") << "a lit key is not pressed again";
  rig.key('G');
  EXPECT_TRUE(rig.form.icntlc[Stop].visible);
  rig.clock.advance(300);
  EXPECT_EQ(rig.device.mode(), DeviceMode::Stopped);
  EXPECT_EQ(rig.time(), "00:00");
  EXPECT_EQ(rig.form.CDStatusBar.floodPercent, 0);
  EXPECT_TRUE(rig.form.icntlb[Stop].visible);
  EXPECT_FALSE(rig.form.icntlc[Stop].visible) << "lit for 0.3 s only";
}

TEST(Keys, APressedFaceMovesAndComesBack) {
  CoreRig rig;
  rig.startWith(discB());
  auto& face = rig.form.icntla[Play];
  const int left = face.left;
  rig.gate.enter([&] { rig.form.mouseDown(&face, {}); });
  EXPECT_EQ(face.left, left + 10);
  EXPECT_TRUE(rig.form.Shape2.visible);
  EXPECT_EQ(rig.form.Shape2.left, left + 10 + 54);
  EXPECT_EQ(rig.state.transport.playingFlag, kOff);
  rig.gate.enter([&] { rig.form.mouseUp({}); });
  EXPECT_EQ(face.left, left);
  EXPECT_FALSE(rig.form.Shape2.visible);
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
}

TEST(Eject, ClearsTheDeckAndOpensTheTray) {
  Playing deck;
  deck.at(5);
  deck.device.tape.clear();
  deck.key('J');
  EXPECT_EQ(deck.device.tape, (Tape{"stop", "Eject", "Close"}));
  EXPECT_EQ(deck.player.ejected, 1);
  EXPECT_EQ(deck.state.disc.drawerOpen, kOn);
  EXPECT_EQ(deck.state.disc.trackCount, 0);
  EXPECT_EQ(deck.track() + deck.time(), "000:00");
  EXPECT_EQ(deck.form.SSPanel3.backColor, colours::kYellow);
  deck.clock.advance(400);
  EXPECT_EQ(deck.form.Panel3D7.top, 600);
  EXPECT_TRUE(deck.files.exists("/data/ejcd.tmp"));
  EXPECT_FALSE(deck.files.exists("/data/audiocd.tmp"));
  const std::string form = forms::formAsText(deck.form);
  deck.clock.advance(3000);
  deck.press(deck.form.icntla[Play]);
  deck.key('D');
  EXPECT_EQ(forms::formAsText(deck.form), form) << "with the drawer open the clock and the keys are idle";
}

TEST(Device, AFailedDriveIsClosed) {
  Playing deck;
  deck.at(5);
  deck.player.failure = true;
  deck.player.stop();
  deck.device.tape.clear();
  deck.at(6);
  EXPECT_EQ(deck.device.tape.front(), "Close");
  EXPECT_EQ(deck.device.mode(), DeviceMode::NotOpen);
}

TEST(Tick, WritesOnlyWhatChanges) {
  Playing deck;
  deck.at(60);
  deck.tick();
  deck.desktop.tape.clear();
  deck.clock.advance(800);
  EXPECT_EQ(deck.desktop.tape, Tape{}) << "eight ticks between two seconds";
}

}  // namespace
}  // namespace orvanta::test
