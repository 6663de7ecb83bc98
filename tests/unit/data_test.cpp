// Discs with tracks of data: whatever plays passes them over, and the display follows.
#include <gtest/gtest.h>

#include <set>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

/// Tracks 1 and 3 are data; 2, 4 and 5 are audio of a minute each.
Toc mixed() { return tocOf({-150, 4650, -9150, 13650, 18150}, 22650); }

TEST(DataTracks, ArePassedOver) {
  struct Case {
    const char* name;
    std::function<void(PlayRig&)> act;
    const char* heard;
    const char* shown;
  };
  const Case cases[] = {
      {"play", [](PlayRig& rig) { rig.key('D'); }, "playing 2 at 2", "2 1:00 Title 2"},
      {"next", [](PlayRig& rig) { rig.keys("DS"); }, "playing 4 at 2", "4 1:00 Title 4"},
      {"previous", [](PlayRig& rig) { rig.keys("DSSAA"); }, "playing 2 at 2", "2 1:00 Title 2"},
      {"previous on the first", [](PlayRig& rig) { rig.keys("DA"); }, "playing 2 at 2", "2 1:00 Title 2"},
      {"a number", [](PlayRig& rig) { rig.press(rig.form.Image17[2]); }, "playing 4 at 2", "4 1:00 Title 4"},
      {"One",
       [](PlayRig& rig) {
         rig.mode(OneKey);
         rig.key('D');
       },
       "playing 2 at 2", "2 1:00 Title 2"},
      {"by itself",
       [](PlayRig& rig) {
         rig.key('D');
         rig.clock.advance(60000);
       },
       "playing 4 at 2", "4 1:00 Title 4"},
      {"Repeat",
       [](PlayRig& rig) {
         rig.keys("RDSS");
         rig.clock.advance(59000);
       },
       "playing 2", "2 1:00 Title 2"},
      {"Intro's round",
       [](PlayRig& rig) {
         rig.press(rig.form.Image17[4]);
         rig.mode(IntroKey);
         rig.clock.advance(1100);
       },
       "playing 2", "2 1:00 Title 2"},
  };
  for (const Case& row : cases) {
    PlayRig rig(mixed());
    row.act(rig);
    rig.clock.advance(2050);
    EXPECT_EQ(rig.heard().substr(0, std::string_view(row.heard).size()), row.heard) << row.name;
    EXPECT_EQ(rig.shown(), row.shown) << row.name;
  }
}

TEST(DataTracks, StartByThemselvesAtTheFirstOfAudio) {
  for (const char* words : {"ORVLITE", "/media/TRACK03.CDA"}) {
    CoreRig rig;
    rig.install();
    rig.player.insert(mixed());
    rig.start(words);
    rig.clock.advance(2300);
    const bool named = std::string_view(words) != "ORVLITE";
    EXPECT_EQ(rig.track(), named ? "4" : "2") << words;
    EXPECT_EQ(unpackTmsf(rig.device.position()).track, named ? 4 : 2) << words;
  }
}

TEST(DataTracks, AreNotShuffled) {
  PlayRig rig(mixed());
  rig.key('E');
  const auto& list = rig.state.program.pgmList;
  EXPECT_EQ(std::set<int16_t>(list.begin() + 1, list.begin() + 4), (std::set<int16_t>{2, 4, 5}));
  EXPECT_EQ(list[4], 0);
}

TEST(DataTracks, AtTheEndLetTheLastOfAudioPlayOut) {
  PlayRig rig(tocOf({150, 4650, -9150}, 22650));
  rig.play();
  rig.at(118);
  EXPECT_EQ(rig.shown() + " " + rig.time(), "2 1:00 Title 2 0:58");
  rig.at(121);
  EXPECT_EQ(rig.shown() + rig.time(), "0 0:00 ");
  EXPECT_EQ(rig.heard().substr(0, 7), "stopped");
  rig.device.tape.clear();
  rig.press(rig.form.Image17[2]);
  EXPECT_EQ(rig.device.tape, Tape{}) << "nothing to be heard there";
}

}  // namespace
}  // namespace orvanta::test
