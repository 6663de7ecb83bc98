// What a person may press in each state of the deck, what the keys show after it, and what changes nothing.
#include <gtest/gtest.h>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

using Act = std::function<void(PlayRig&)>;

Act typed(const char* keys) {
  return [keys](PlayRig& rig) { rig.keys(keys); };
}
Act pressed(forms::Control& (*which)(CDForm&)) {
  return [which](PlayRig& rig) { rig.press(which(rig.form)); };
}
Act waited(int64_t milliseconds) {
  return [milliseconds](PlayRig& rig) { rig.clock.advance(milliseconds); };
}

struct Step {
  const char* name;
  Act act;
};

const Step kStopped{"stopped", [](PlayRig&) {}};
const Step kPlaying{"playing", [](PlayRig& rig) {
                      rig.press(rig.form.Image17[1]);
                      rig.clock.advance(5000);
                    }};
const Step kPaused{"paused", [](PlayRig& rig) {
                     kPlaying.act(rig);
                     rig.key('F');
                   }};
const Step kFirst{"playing the first", [](PlayRig& rig) {
                    rig.key('D');
                    rig.clock.advance(5000);
                  }};
const Step kLast{"playing the last", [](PlayRig& rig) {
                   rig.press(rig.form.Image17[2]);
                   rig.clock.advance(5000);
                 }};
const Step kProgram{"in a program", [](PlayRig& rig) {
                      rig.program({2, 3});
                      rig.clock.advance(5000);
                    }};
const Step kOne{"in One", [](PlayRig& rig) { rig.mode(OneKey); }};
const Step kIntro{"in Intro", [](PlayRig& rig) {
                    rig.mode(IntroKey);
                    rig.clock.advance(3000);
                  }};
const Step kEjected{"ejected", [](PlayRig& rig) {
                      kPlaying.act(rig);
                      rig.key('J');
                      rig.clock.advance(1000);
                    }};

TEST(Looks, FollowTheDeviceAfterEachActInEachState) {
  struct Case {
    Step state;
    const char* name;
    Act act;
    const char* atOnce;
    const char* later;  ///< when the glow is over
  };
  const char* stopped = "/ASFG scan";
  const char* paused = "F/ASG scan A-B Time Rpt";
  const Case cases[] = {
      {kStopped, "nothing", typed(""), stopped, stopped},
      {kStopped, "D", typed("D"), "D/", "D/"},
      {kStopped, "number", pressed([](CDForm& form) -> forms::Control& { return form.Image17[2]; }), "D/", "D/"},
      {kStopped, "E", typed("E"), "D/", "D/"},
      {kStopped, "One", pressed([](CDForm& form) -> forms::Control& { return form.Image4[OneKey]; }), "/ASFG scan DJ Rpt",
       "/ASFG scan DJ Rpt"},
      {kOne, "D", typed("D"), "D/", "D/"},
      {kPlaying, "A", typed("A"), "A/D", "D/"},
      {kPlaying, "S", typed("S"), "S/D", "D/"},
      {kPlaying, "AS, the later glow alone", typed("AS"), "S/D", "D/"},
      {kPlaying, "F", typed("F"), paused, paused},
      {kPlaying, "SF, an act ends the glow", typed("SF"), paused, paused},
      {kPlaying, "G", typed("G"), "G/ASF scan", stopped},
      {kPlaying, "GD, play at once", typed("GD"), "D/", "D/"},
      {kPlaying, "One", pressed([](CDForm& form) -> forms::Control& { return form.Image4[OneKey]; }), "D/ DJ Rpt", "D/ DJ Rpt"},
      {kPaused, "D", typed("D"), "D/", "D/"},
      {kPaused, "number", pressed([](CDForm& form) -> forms::Control& { return form.Image17[0]; }), "D/", "D/"},
      {kPaused, "a stop by program",
       [](PlayRig& rig) {
         rig.gate.enter([&] { rig.form.press(rig.form.icntla[Play]); });
         rig.key('G');
       },
       "G/ASF scan", stopped},
      {kProgram, "S", typed("S"), "S/D", "D/"},
      {kProgram, "SS, past its end", typed("SS"), "S/AFG scan DJ Rpt", "/ASFG scan DJ Rpt"},
      {kProgram, "SGD, the last step is used up", typed("SGD"), "/ASFG scan DJ Rpt", "/ASFG scan DJ Rpt"},
      {kLast, "its end", waited(235000), stopped, stopped},
  };
  for (const Case& row : cases) {
    PlayRig rig;
    row.state.act(rig);
    row.act(rig);
    EXPECT_EQ(rig.look(), row.atOnce) << row.state.name << ", " << row.name;
    rig.clock.advance(299);
    if (std::string_view(row.atOnce) != row.later) {
      EXPECT_EQ(rig.look(), row.atOnce) << row.state.name << ", " << row.name << ": a little before the glow's end";
    }
    rig.clock.advance(1);
    EXPECT_EQ(rig.look(), row.later) << row.state.name << ", " << row.name;
    rig.clock.advance(3000);
    EXPECT_EQ(rig.look(), row.later) << row.state.name << ", " << row.name << ": and stays so";
    EXPECT_EQ(rig.waits, 0) << row.state.name << ", " << row.name << ": nothing holds the window up";
  }
}

TEST(Guards, WhatChangesNothing) {
  struct Case {
    Step state;
    std::vector<const char*> keys;
  };
  const Case cases[] = {{kStopped, {"A", "S", "F", "G", "W"}},
                        {kPlaying, {"D"}},
                        {kFirst, {"A", "D"}},
                        {kLast, {"S", "D"}},
                        {kPaused, {"A", "S", "F", "G", "T", "W", "E", "R"}},
                        {kProgram, {"A", "D"}},
                        {kOne, {"E", "R", "A", "S", "W"}},
                        {kEjected, {"A", "S", "D", "F", "G", "T", "W", "R", "E", "Y"}}};
  const auto unchanged = [](PlayRig& rig, const Act& act, const std::string& what) {
    rig.device.tape.clear();
    const std::string before = forms::formAsText(rig.form);
    act(rig);
    EXPECT_EQ(changedLines(before, forms::formAsText(rig.form)), "") << what;
    EXPECT_EQ(rig.device.tape, Tape{}) << what;
  };
  for (const Case& row : cases) {
    for (const char* keys : row.keys) {
      PlayRig rig;
      row.state.act(rig);
      unchanged(rig, typed(keys), std::string(row.state.name) + ", " + keys);
      const auto at = std::string_view("ASDFG").find(keys);
      if (at != std::string_view::npos) {
        unchanged(
            rig, [&](PlayRig& deck) { deck.press(deck.form.icntla[at]); }, std::string(row.state.name) + ", mouse on " + keys);
      }
    }
  }
  using Pick = forms::Control& (*)(CDForm&);
  const std::pair<Step, Pick> controls[] = {
      {kStopped, [](CDForm& form) -> forms::Control& { return form.scntla[ScanForward]; }},
      {kPaused, [](CDForm& form) -> forms::Control& { return form.scntla[ScanBack]; }},
      {kStopped, [](CDForm& form) -> forms::Control& { return form.CDStatusBar; }},
      {kPaused, [](CDForm& form) -> forms::Control& { return form.CDStatusBar; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.CDStatusBar; }},
      {kPlaying, [](CDForm& form) -> forms::Control& { return form.Image17[3]; }},
      {kPlaying, [](CDForm& form) -> forms::Control& { return form.Image16[Above20]; }},
      {kProgram, [](CDForm& form) -> forms::Control& { return form.Image17[0]; }},
      {kPlaying, [](CDForm& form) -> forms::Control& { return form.Label30; }},
      {kIntro, [](CDForm& form) -> forms::Control& { return form.Label30; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.Image17[0]; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.Image4[OneKey]; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.Label6; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.Label9; }},
      {kEjected, [](CDForm& form) -> forms::Control& { return form.Label30; }},
  };
  for (const auto& [state, pick] : controls) {
    PlayRig rig;
    state.act(rig);
    unchanged(rig, pressed(pick), std::string(state.name) + ", " + pick(rig.form).fullName());
  }
  PlayRig rig;
  kPlaying.act(rig);
  const auto besides = [](PlayRig& deck) {
    deck.gate.enter([&] { deck.form.mouseDown(&deck.form.CDStatusBar, {forms::MouseButton::Left, 500, 5}); });
    deck.letGo(1500, 400);
  };
  unchanged(rig, besides, "the bar pressed, and let go beside it");
  PlayRig many(tracksOf(24, 60));
  many.key('D');
  for (const char* number : {"20", "25", "7", ""}) {
    const auto entered = [number](PlayRig& deck) {
      deck.press(deck.form.Image16[Above20]);
      deck.keys(number);
      deck.key(forms::key::kEnter);
    };
    unchanged(many, entered, std::string("above twenty: ") + number);
  }
}

TEST(Intro, EndsWithAnyPressOfATransportKey) {
  for (const char* key : {"A", "S", "D", "F", "G"}) {
    for (const bool mouse : {false, true}) {
      PlayRig rig;
      kIntro.act(rig);
      if (mouse) {
        rig.press(rig.form.icntla[std::string_view("ASDFG").find(key)]);
      } else {
        rig.keys(key);
      }
      EXPECT_EQ(rig.form.Label6.caption, "Cont") << key;
      EXPECT_EQ(rig.state.transport.introTrack, 0) << key;
      EXPECT_TRUE(rig.form.Image3[ContKey].visible && !rig.form.Image3[IntroKey].visible) << key;
      EXPECT_EQ(rig.form.Label30.foreColor, rig.state.settings.lcdColor[kLcdLabelOff]) << key;
    }
  }
}

TEST(Keys, OneFaceGivesWayAtATime) {
  PlayRig rig;
  kPlaying.act(rig);
  const std::string rest = forms::formAsText(rig.form);
  rig.hold(rig.form.icntla[Pause]);
  const int held = rig.form.icntla[Pause].left;
  rig.key('S');
  EXPECT_EQ(rig.form.icntla[Pause].left, held);
  rig.key('G');
  rig.letGo();
  EXPECT_EQ(rig.heard().substr(0, 7), "stopped") << "the stop has taken the pause key away meanwhile";
  rig.press(rig.form.Image17[1]);
  rig.clock.advance(5000);
  EXPECT_EQ(changedLines(rest, forms::formAsText(rig.form)), "") << "every face is back in its place";
}

TEST(Keys, TenPressesInASecondAreTenSteps) {
  PlayRig rig(tracksOf(20, 60));
  rig.key('D');
  for (int i = 0; i < 10; ++i) {
    rig.key('S');
    rig.clock.advance(90);
  }
  EXPECT_EQ(rig.heardTrack(), 11);
  EXPECT_EQ(rig.shown(), "11 1:00 Title 11");
  for (int i = 0; i < 4; ++i) rig.key('A');
  EXPECT_EQ(rig.heardTrack(), 7);
  rig.clock.advance(2000);
  EXPECT_EQ(rig.shown(), "7 1:00 Title 7");
  EXPECT_EQ(rig.waits, 0);
}

TEST(TimeKey, ShowsTheNewTimeAtOnce) {
  PlayRig rig;
  rig.play();
  rig.at(60);
  for (const char* time : {"Rem -2:00", "TOTAL 01:00", "Totrem -09:59", "Time 1:00"}) {
    rig.key('T');
    EXPECT_EQ(rig.form.Label9.caption.get() + " " + rig.time(), time);
  }
  rig.key('G');
  rig.key('T');
  EXPECT_EQ(rig.form.Label9.caption.get() + " " + rig.time(), "Rem 00:00");
}

}  // namespace
}  // namespace orvanta::test
