// The player without a window: what it answers the deck.
#include "platform/disc/play_on_talk.h"

#include <gtest/gtest.h>

#include "platform/disc/play_on.h"
#include "tests/support/sim_device.h"

namespace orvanta::test {
namespace {

struct TalkRig {
  CoreGate gate;
  VirtualClock clock{gate};
  SimPlayer player{clock};
  PlayOnTalk talk{player};
};

TEST(PlayOn, TakesADiscOverAndGivesItBackWhereItIs) {
  TalkRig rig;
  EXPECT_EQ(rig.talk.answer("ready"), "wait");
  EXPECT_EQ(rig.talk.answer("play 150 200"), "no") << "no disc is known yet";
  rig.player.insert(tocOf({150, 1000}, 2000));
  EXPECT_EQ(rig.talk.answer("ready"), "ok");
  EXPECT_EQ(rig.talk.answer("take"), "no") << "there is nothing to give";
  for (const char* bad : {"play", "play ", "play 150", "play 149 200", "play 200 200", "play 200 2001", "play 2 1 0", "play 150 200 ",
                          "play -1 200", "play 99999999999 200", "PLAY 150 200", "", "ready "}) {
    EXPECT_EQ(rig.talk.answer(bad), "no") << bad;
    EXPECT_FALSE(rig.talk.playing()) << bad;
  }
  EXPECT_EQ(rig.talk.answer("play 300 2000"), "ok");
  EXPECT_TRUE(rig.talk.playing());
  rig.clock.advance(2000);
  EXPECT_FALSE(rig.talk.over());
  EXPECT_EQ(rig.talk.answer("take"), "450 2000");
  EXPECT_TRUE(rig.talk.over());
  EXPECT_EQ(rig.player.state(), PlayState::Stopped);
  EXPECT_EQ(rig.talk.answer("take"), "no") << "once";
  EXPECT_EQ(rig.talk.answer("play 300 2000"), "no") << "it is on its way out";
}

TEST(PlayOn, EndsWithItsDisc) {
  TalkRig rig;
  rig.player.insert(tocOf({150}, 900));
  EXPECT_EQ(rig.talk.answer("play 150 900"), "ok");
  rig.clock.advance(9900);
  EXPECT_FALSE(rig.talk.over());
  rig.clock.advance(200);
  EXPECT_TRUE(rig.talk.over());
  EXPECT_EQ(rig.talk.answer("take"), "no");
}

}  // namespace
}  // namespace orvanta::test
