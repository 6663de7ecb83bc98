// The sliders: geometry, percent, the device's value, mute, link, both roads to the level.
#include <gtest/gtest.h>

#include <cmath>

#include "platform/sound/level.h"
#include "platform/sound/mixer_stand_in.h"
#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

struct Sliders : CoreRig {
  explicit Sliders(uint32_t level = 0xFFFFFFFF, int16_t mode = 3) {
    auxVolume.reading.volume = level;
    settings.soundMode = mode;
    startWith(discA());
  }
  void down(forms::Control& part, int x, int y) {
    gate.enter([&] { form.mouseDown(&part, {forms::MouseButton::Left, x, y}); });
  }
  void move(forms::Control& part, int y) {
    gate.enter([&] { form.mouseMove(&part, {forms::MouseButton::Left, 100, y}); });
  }
  void up() {
    gate.enter([&] { form.mouseUp({}); });
  }
  int percent() const { return std::stoi(form.PctL.caption.get()); }
  VolumeState& volume = state.volume;
};

TEST(Volume, MovesByDifferences) {
  Sliders rig;
  rig.down(rig.form.VolumeL, 100, 635);
  EXPECT_EQ(rig.form.PctL.caption.get(), "50");
  EXPECT_EQ(rig.volume.leftRaw, 32767);
  rig.move(rig.form.VolumeL, 60);
  EXPECT_EQ(rig.volume.leftRaw, 65535);
  rig.move(rig.form.VolumeL, 160);
  EXPECT_EQ(rig.form.PctL.caption.get(), "97");
  EXPECT_EQ(rig.volume.leftRaw, 63569);
  // A thousand drags: the sum of the roundings stays below a percent of the range, and within it.
  uint32_t seed = 1;
  for (int i = 0; i < 1000; ++i) {
    seed = seed * 1664525U + 1013904223U;
    rig.move(rig.form.VolumeL, 200 + static_cast<int>(seed >> 16U) % 700);
    ASSERT_NEAR(rig.volume.leftRaw, 65535 * rig.percent() / 100.0, 65535 / 100.0) << i;
    ASSERT_EQ(rig.volume.rightRaw, rig.volume.leftRaw);
    ASSERT_EQ(rig.auxVolume.reading.volume, packedVolume(rig.volume.leftRaw, rig.volume.rightRaw));
  }
}

TEST(Volume, ErrorsAreToldByNumber) {
  for (const auto& [error, text] : {std::pair{2, "Specified sound board device ID"}, {6, "The driver failed to install."}, {7, ""}}) {
    CoreRig rig;
    rig.auxVolume.reading.error = error;
    rig.startWith(discA());
    EXPECT_EQ(rig.state.settings.soundMode, 0) << "the sliders go for this session";
    EXPECT_EQ(rig.form.SSPanel1.top, 99999);
    EXPECT_TRUE(rig.form.Command3D16.visible && rig.form.Label27.visible);
    ASSERT_EQ(rig.dialogs.tape.size(), error == 7 ? 0U : 1U);
    EXPECT_TRUE(error == 7 || rig.dialogs.tape[0].find(text) != std::string::npos);
    Sliders writes;
    writes.auxVolume.writeError = error;
    writes.press(writes.form.PctL);
    EXPECT_EQ(writes.form.PctL.caption.get(), "0") << "a failed write leaves the slider";
    EXPECT_EQ(writes.dialogs.tape.size(), error == 7 ? 0U : 1U);
  }
}

TEST(Volume, TheMixersKeysAreNotEnteredTwice) {
  Sliders rig(0xFFFFFFFF, 4);
  const std::string start = "start /programs/sndvol32.exe";
  // Its keys let events run: a drag in the midst of them returns at once.
  rig.mixer.onKeys = [&] { rig.gate.enter([&] { rig.form.wheel(&rig.form.VolumeL, 1); }); };
  rig.mixer.tape.clear();
  rig.down(rig.form.VolumeL, 100, 400);
  EXPECT_EQ(std::count(rig.mixer.tape.begin(), rig.mixer.tape.end(), start), 1);
  rig.mixer.onKeys = nullptr;
  rig.up();
  EXPECT_TRUE(rig.auxVolume.written.empty()) << "the device is never touched";

  const auto turnTo = [](Sliders& deck) {
    deck.form.deactivated();
    deck.desktop.lastShown = nullptr;
    deck.gate.enter([&] { deck.form.activated(); });
  };
  // Sliders that the setup brings back take nothing from a pointer that only passes.
  Sliders back(0xFFFFFFFF, 0);
  back.state.settings.soundMode = 3;
  turnTo(back);
  back.move(back.form.VolumeL, 400);
  EXPECT_EQ(back.percent(), 100);
  // A mute comes back by the road that it went, whatever the setup has turned to meanwhile.
  Sliders own(0x80008000);
  own.press(own.form.Image2[1]);
  EXPECT_EQ(own.auxVolume.reading.volume, 0U);
  own.state.settings.soundMode = 4;
  turnTo(own);
  EXPECT_EQ(own.auxVolume.reading.volume, 0x80008000U);
  EXPECT_TRUE(own.form.Image2[1].visible);
  own.mixer.tape.clear();
  own.press(own.form.Image2[1]);
  own.state.settings.soundMode = 3;
  turnTo(own);
  EXPECT_EQ(own.mixer.tape.size(), 12U) << "there and back";
  EXPECT_EQ(own.auxVolume.reading.volume, 0x80008000U);
  EXPECT_EQ(own.percent(), 50);
}

struct FakeMaster : MasterVolume {
  bool read(MasterLevel& level) override {
    level = now;
    return there;
  }
  bool write(const MasterLevel& level) override {
    now = level;
    ++writes;
    return there;
  }
  int writes = 0;
  MasterLevel now{.8, .2, true};
  bool there = true;
};

TEST(Mixer, TheStandInDoesWhatTheKeysSay) {
  FakeMaster master;
  MixerStandIn mixer(master);
  const auto send = [&](std::initializer_list<const char*> keys) {
    for (const char* key : keys) mixer.sendKeys(key);
  };
  send({"{TAB}", "{END}"});
  EXPECT_EQ(master.now.left, .8) << "not started";
  ASSERT_TRUE(mixer.startHidden("sndvol32.exe"));
  EXPECT_FALSE(mixer.activate("Another"));
  send({"{HOME}", "{RIGHT 32}", "{TAB}", "{END}", "{PGUP 2}", "{UP 25}", "{TAB}", "{+}", "{-}"});
  EXPECT_DOUBLE_EQ(master.now.left, .5);
  EXPECT_DOUBLE_EQ(master.now.right, .5);
  EXPECT_FALSE(master.now.mute);
  send({"", "{", "{PGUP 99999999999}", "{}", "nonsense", "{TAB -3}"});
  EXPECT_TRUE(mixer.close("Volume Control"));
  EXPECT_FALSE(mixer.close("Volume Control"));
  // A server that hangs is asked once, not for each key.
  ASSERT_TRUE(mixer.startHidden("sndvol32.exe"));
  master.there = false;
  master.writes = 0;
  send({"{TAB}", "{END}", "{PGUP 2}", "{UP 25}"});
  EXPECT_EQ(master.writes, 1);
  EXPECT_FALSE(mixer.startHidden("sndvol32.exe"));
}

TEST(Level, MovesWithoutAClickAndLeavesFullSoundAlone) {
  Level level;
  std::vector<int16_t> pairs(2000, 30000);
  level.apply(pairs.data(), 1000);
  EXPECT_EQ(pairs, std::vector<int16_t>(2000, 30000));
  level.set(0, 65535);
  level.apply(pairs.data(), 1000);
  for (size_t i = 2; i < 2000; i += 2) ASSERT_LE(std::abs(pairs[i] - pairs[i - 2]), 80);
  EXPECT_EQ(pairs[1998], 0);
  EXPECT_EQ(pairs[1999], 30000);
}

}  // namespace
}  // namespace orvanta::test
