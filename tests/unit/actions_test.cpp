// The one road to the deck's acts, and the status that tells what came of them.
#include <gtest/gtest.h>

#include "faceplate/routes.h"
#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

/// What a person may do, one letter an act in the order of Action; upper case for what is on.
std::string acts(Orvanta& core) {
  static constexpr std::string_view kLetters = "asdfghbntwk>ertcpoci.l[]qjumLUDa<>xymzv{}SdpnIBWM?H";
  static_assert(kLetters.size() == kActions);
  std::string text;
  for (size_t i = 0; i < kActions; ++i) {
    const auto action = static_cast<Action>(i);
    const char letter = core.actions().enabled(action, 2) ? kLetters[i] : '-';
    text += core.actions().checked(action) ? std::string(1, letter) + "*" : std::string(1, letter);
  }
  return text;
}

TEST(Actions, TellWhatMayBeDoneAndWhatIsOn) {
  PlayRig rig;
  const struct {
    const char* when;
    std::function<void()> act;
    const char* expected;
  } cases[] = {
      {"stopped", [] {}, "--d--h--t-k-ertcpoc*i.-[]-j-mLUD*a<>xymzv*{}SdpnIBWM?H"},
      {"playing", [&] { rig.play(); }, "as-*fghbntwk-ertcpoc*i.-[]qj-mLUD*a<>xymzv*{}SdpnIBWM?H"},
      {"repeat, muted, apart", [&] { rig.key('R'), rig.press(rig.form.Image2[1]), rig.press(rig.form.Image9[1]); },
       "as-*fghbntwk-er*tcpoc*i.-[]qj-m*LUDa<>xymzv*{}SdpnIBWM?H"},
      {"paused", [&] { rig.key('F'); }, "--d-*-h----k---*tcpoc*i.-[]-j-m*LUDa<>xymzv*{}SdpnIBWM?H"},
      {"One", [&] { rig.key('D'), rig.mode(OneKey); }, "as-*fghbntwk-er*tcpo*ci.-[]qj-m*LUDa<>xymzv*{}SdpnIBWM?H"},
      {"door open", [&] { rig.key('J'); }, "--------------*-c--*-------j*um*LUDa<>xym-v*{}--pn-BWM?H"},
  };
  for (const auto& [when, act, expected] : cases) {
    act();
    rig.clock.advance(300);
    EXPECT_EQ(acts(rig.orvanta), expected) << when;
  }
}

TEST(Actions, EveryTabStopHasARoute) {
  const CoreRig rig;
  // The entry and the sliders take keys of their own.
  const std::set<std::string> without = {"Text1", "VolumeL", "VolumeR"};
  CDForm form;
  FakeDesktop desktop;
  form.load(desktop);
  int stops = 0;
  for (const auto* control : form.controls()) {
    // The lit face of a mode key takes no press: its mode is on.
    if (!control->tabStop || control->name() == "Image3") continue;
    ++stops;
    EXPECT_EQ(routeOf(*control).has_value(), without.count(control->fullName()) == 0) << control->fullName();
  }
  EXPECT_GT(stops, 50);
}

TEST(Actions, MouseSpaceAndLetterGoOneRoad) {
  const auto road = [](const std::function<void(PlayRig&)>& go) {
    PlayRig rig;
    rig.sounds.tape.clear();
    rig.form.setFocus(rig.form.icntla[Play]);
    go(rig);
    rig.clock.advance(1000);
    Tape all = rig.device.tape;
    all.insert(all.end(), rig.sounds.tape.begin(), rig.sounds.tape.end());
    all.push_back(formAsText(rig.form));
    return all;
  };
  const Tape byMouse = road([](PlayRig& rig) { rig.hold(rig.form.icntla[Play]), rig.letGo(); });
  EXPECT_NE(std::find(byMouse.begin(), byMouse.end(), "/data/system/click.wav"), byMouse.end());
  EXPECT_EQ(road([](PlayRig& rig) { rig.key(forms::key::kSpace); }), byMouse);
  EXPECT_EQ(road([](PlayRig& rig) { rig.key('D'); }), byMouse);
  // By program there is no click, and no mask counts.
  PlayRig rig;
  rig.gate.enter([&] { rig.orvanta.actions().run(Action::Stop, By::Program); });
  EXPECT_EQ(rig.device.tape, Tape{"Stop"});
  EXPECT_EQ(rig.sounds.tape, Tape{});
}

TEST(Actions, AReleaseCountsForItsOwnPressAlone) {
  PlayRig rig;
  // Under its mask the press was not taken; what plays meanwhile goes on.
  rig.hold(rig.form.icntla[Stop]);
  rig.play();
  rig.letGo();
  EXPECT_EQ(rig.heard(), "playing 1 at 0");
}

/// What a watcher of the status hears from here on.
Tape& hear(PlayRig& rig, Tape& told) {
  rig.orvanta.status().watch([&](const DeckStatus& now) {
    told.push_back(std::to_string(static_cast<int>(now.state)) + " " + std::to_string(now.track) + " of " + std::to_string(now.tracks) +
                   " at " + std::to_string(now.second) + " of " + std::to_string(now.length) + " " + now.trackTitle +
                   (now.muted ? " muted" : "") + (now.shuffle ? " shuffle" : "") + (now.intro ? " intro" : "") +
                   (now.repeat ? " repeat" : "") + (now.discIn ? "" : " no disc"));
  });
  return told;
}

TEST(Status, IsToldOnlyWhenItDiffers) {
  PlayRig rig;
  Tape told;
  hear(rig, told);
  rig.clock.advance(5000);
  EXPECT_EQ(told, Tape{});
  rig.play();
  rig.at(1.5);
  rig.key('R');
  rig.press(rig.form.Image2[1]);
  rig.key('F');
  rig.clock.advance(5000);
  rig.key('I');
  EXPECT_TRUE(rig.orvanta.infoForm.loaded());
  rig.key('J');
  EXPECT_FALSE(rig.orvanta.infoForm.loaded());
  EXPECT_EQ(told, (Tape{"1 1 of 3 at 0 of 180 Title 1", "1 1 of 3 at 1 of 180 Title 1", "1 1 of 3 at 1 of 180 Title 1 repeat",
                        "1 1 of 3 at 1 of 180 Title 1 muted repeat", "2 1 of 3 at 1 of 180 Title 1 muted repeat",
                        "3 0 of 0 at 0 of 0  muted repeat no disc"}));
  // An order of chance ends with its program, and Intro with a press on stop.
  PlayRig modes;
  modes.press(modes.form.Image4[IntroKey]);
  modes.clock.advance(1500);
  EXPECT_TRUE(modes.orvanta.status().last().intro);
  modes.press(modes.form.Image16[Shuffle]);
  EXPECT_EQ(std::pair(modes.orvanta.status().last().intro, modes.orvanta.status().last().shuffle), std::pair(false, true));
  modes.press(modes.form.Image4[OneKey]);
  EXPECT_FALSE(modes.orvanta.status().last().shuffle);
  modes.program({2});
  EXPECT_FALSE(modes.orvanta.status().last().shuffle);
  // After a program the fast tick stands still.
  PlayRig still;
  still.program({2});
  still.at(245);
  told.clear();
  hear(still, told);
  still.player.eject();
  still.clock.advance(3000);
  EXPECT_EQ(told, Tape{"3 0 of 0 at 0 of 0  no disc"});
}

TEST(Status, TitleOfTheTaskButtonOfAMinimisedDeck) {
  PlayRig rig;
  rig.play();
  rig.at(2);
  EXPECT_EQ(rig.form.caption, "Orvanta LX");
  rig.form.minimised = true;
  EXPECT_EQ(rig.form.caption, "Orvanta [Title 1]");
  rig.key('S');
  EXPECT_EQ(rig.form.caption, "Orvanta [Title 2]");
  rig.form.minimised = false;
  EXPECT_EQ(rig.form.caption, "Orvanta LX");
}

}  // namespace
}  // namespace orvanta::test
