// Hands on the faceplate: what a press changes, the whole form held against itself before and after.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

/// What differs between two prints of a form: the new line of each control. Where a control waits that does
/// not show is nobody's concern.
Tape changes(const std::string& before, const std::string& after) {
  std::istringstream was(before);
  std::istringstream is(after);
  Tape differing;
  for (std::string a, b; std::getline(was, a) && std::getline(is, b);) {
    const bool hidden = a.ends_with(" hidden") && b.ends_with(" hidden");
    if (a != b && !hidden) differing.push_back(b);
  }
  return differing;
}

struct Hands : CoreRig {
  explicit Hands(const std::function<void(Hands&)>& prepare = {}) {
    if (prepare) prepare(*this);
    startWith(discA());
  }
  std::string look() const { return forms::formAsText(form); }
  /// What an act changes in the form.
  Tape by(const std::function<void()>& act) {
    const std::string before = look();
    act();
    return changes(before, look());
  }
  void down(forms::Control& control, int x = 50, int y = 50) {
    gate.enter([&] { form.mouseDown(&control, {forms::MouseButton::Left, x, y}); });
  }
  void up(int x = 50, int y = 50) {
    gate.enter([&] { form.mouseUp({forms::MouseButton::Left, x, y}); });
  }
};

TEST(Hands, WhoSlidesOffAKeyHasThoughtBetterOfIt) {
  Hands rig;
  rig.key('D');
  rig.clock.advance(30000);
  const size_t orders = rig.device.tape.size();
  CDForm& form = rig.form;
  const std::initializer_list<forms::Control*> keys = {
      &form.Image6,     &form.Image5,     &form.icntla[Stop], &form.icntla[Record], &form.scntla[1],  &form.scntla[2],
      &form.Image17[2], &form.Image16[0], &form.Image16[1],   &form.Image16[2],     &form.Image16[4], &form.Image4[1],
      &form.Image10[1], &form.Image10[2], &form.Image2[1],    &form.Image9[1],      &form.Image19[0], &form.Image20[0],
      &form.Image11,    &form.PctL,       &form.Panel3D2,     &form.CDStatusBar,    &form.Label6,     &form.Label9};
  for (forms::Control* key : keys) {
    EXPECT_EQ(rig.by([&] {
      rig.down(*key);
      rig.up(-2000, 4000);
    }),
              Tape{})
        << key->fullName();
  }
  EXPECT_EQ(rig.device.tape.size(), orders);
  EXPECT_FALSE(rig.gate.ended());
  EXPECT_EQ(rig.dialogs.tape, Tape{});
  // A scan key ends its scan wherever the mouse is.
  rig.down(form.scntla[ScanForward]);
  EXPECT_EQ(rig.state.transport.scanCount, 1);
  rig.up(-2000, 4000);
  EXPECT_EQ(rig.state.transport.scanCount, 0);
  EXPECT_FALSE(form.scntlc[ScanForward].visible);
}

TEST(Hands, ALetterWhileTheMouseHoldsAKeyLeavesNoKeyShifted) {
  Hands rig;
  rig.key('D');
  rig.clock.advance(3000);
  const auto places = [&] {
    Tape all;
    for (const auto& face : rig.form.icntla) all.push_back(std::to_string(face.left) + ' ' + std::to_string(face.top));
    return all;
  };
  const Tape rest = places();
  for (const char letter : {'G', 'F', 'S'}) {
    rig.down(rig.form.icntla[Next]);
    EXPECT_NE(places(), rest);
    rig.key(letter);
    rig.up(-2000, 0);
    EXPECT_EQ(places(), rest) << letter;
    EXPECT_FALSE(rig.form.Shape2.visible) << letter;
    rig.key('D');
  }
}

TEST(Hands, AMuteIsKeptWhateverKeyFollows) {
  Hands rig([](Hands& fresh) { fresh.auxVolume.reading.volume = 0x80008000; });
  rig.press(rig.form.Image2[1]);
  ASSERT_EQ(rig.auxVolume.reading.volume, 0U);
  EXPECT_EQ(rig.form.activeControl(), &rig.form.Image2[0]);
  rig.key(forms::key::kSpace);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0x80008000U) << "Space lifts it";
  rig.key(forms::key::kEnter);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0U);
  const size_t written = rig.auxVolume.written.size();
  EXPECT_EQ(rig.by([&] { rig.gate.enter([&] { rig.form.press(rig.form.Image2[1]); }); }), Tape{}) << "the face that does not show";
  EXPECT_EQ(rig.auxVolume.written.size(), written);
  rig.key(forms::key::kF1 + 3);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0x80008000U);
  // Held down, the key for mute does not flap; those for the level go on.
  EXPECT_EQ(rig.by([&] { rig.gate.enter([&] { rig.form.keyDown({forms::key::kF1 + 3, false, false, false, true}); }); }), Tape{});
  rig.gate.enter([&] { rig.form.keyDown({forms::key::kF1 + 5, false, false, false, true}); });
  EXPECT_EQ(rig.form.PctL.caption.get(), "45");
}

TEST(Hands, ASliderIsNoKey) {
  Hands rig;
  rig.form.setFocus(rig.form.VolumeL, true);
  EXPECT_EQ(rig.by([&] {
    rig.key(forms::key::kSpace);
    rig.key(forms::key::kEnter);
  }),
            Tape{});
  for (const int code : {int{forms::key::kDown}, int{forms::key::kLeft}}) rig.key(code);
  EXPECT_EQ(rig.form.PctL.caption.get(), "90");
  for (const int code : {int{forms::key::kUp}, int{forms::key::kRight}, int{forms::key::kUp}}) rig.key(code);
  EXPECT_EQ(rig.form.PctL.caption.get(), "100");
}

TEST(Hands, TabBeginsAtPlayAndMeetsLiveKeysAlone) {
  const auto tour = [](Hands& rig) {
    Tape stops;
    for (;;) {
      rig.key(forms::key::kTab);
      const std::string name = rig.form.activeControl()->fullName();
      if (!stops.empty() && name == stops.front()) return stops;
      stops.push_back(name);
    }
  };
  Hands rig;
  const Tape stops = tour(rig);
  EXPECT_EQ(stops.front(), "icntla(2)");
  for (const char* dead : {"icntla(0)", "icntla(3)", "icntla(4)", "scntla(0)", "Image17(3)", "Image16(0)"})
    EXPECT_EQ(std::count(stops.begin(), stops.end(), dead), 0) << dead;
  for (const char* live : {"icntla(5)", "Image17(2)", "Image2(1)", "VolumeR", "Panel3D2", "Image16(3)", "Image5"})
    EXPECT_EQ(std::count(stops.begin(), stops.end(), live), 1) << live;
  // With the door open the tray is what is left to press.
  rig.key('J');
  rig.clock.advance(1000);
  const Tape open = tour(rig);
  EXPECT_EQ(std::count(open.begin(), open.end(), "Panel3D7"), 1);
  for (const char* dead : {"Panel3D2", "icntla(2)", "Image17(2)", "Image10(2)"})
    EXPECT_EQ(std::count(open.begin(), open.end(), dead), 0) << dead;
}

}  // namespace
}  // namespace orvanta::test
