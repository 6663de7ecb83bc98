// The deck's colours, and what the setup changes while it runs.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

struct Hands : CoreRig {
  explicit Hands(const std::function<void(Hands&)>& prepare = {}) {
    if (prepare) prepare(*this);
    startWith(discA());
  }
  std::string look() const { return forms::formAsText(form); }
};

/// The setup program is opened and writes these settings.
void setUp(CoreRig& rig, const std::function<void(Settings&)>& change) {
  Settings changed = rig.state.settings;
  change(changed);
  rig.processes.onStart = [&] {
    for (const auto file : {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7})
      writeSettings(file, rig.files, "/data", changed);
  };
  rig.state.process.setupWanted = kOn;
  rig.clock.advance(1200);
  rig.processes.onStart = nullptr;
}

TEST(Setup, ABorderChangesTheWindowsSizeAtOnce) {
  Hands rig([](Hands& fresh) { fresh.screen.twips = 12; });
  EXPECT_EQ(rig.form.width, 9534);
  setUp(rig, [](Settings& settings) { settings.faceplateBorder = 1; });
  EXPECT_EQ(rig.form.width, 9552);
}

TEST(Colours, SwitchedOffInTheSetupLeaveNothingBehind) {
  const auto wear = [](Settings& settings) {
    settings.lcdCustom = 1;
    settings.lcdFore = 0x000000;
    settings.lcdBack = 0x29CF95;
    settings.customColor = {1, 0xE0E0E0, 0xD0D0D0, 0xC0C0C0, 0x60D818, 0, 0, 0, 0, 0, 0};
  };
  Hands rig([&](Hands& fresh) { wear(fresh.settings); });
  Hands plain;
  const Settings own = plain.state.settings;
  const auto takeOff = [&](Settings& settings) {
    settings.lcdCustom = own.lcdCustom;
    settings.lcdFore = own.lcdFore;
    settings.lcdBack = own.lcdBack;
    settings.customColor = own.customColor;
  };
  EXPECT_NE(rig.look(), plain.look());
  setUp(rig, takeOff);
  setUp(plain, takeOff);
  EXPECT_EQ(changedLines(plain.look(), rig.look()), "");
  setUp(plain, wear);
  setUp(rig, wear);
  EXPECT_EQ(changedLines(plain.look(), rig.look()), "");
  EXPECT_EQ(rig.form.Label12.foreColor, Colour{0});
}

/// A visit to the setup that changes nothing: what loops, pauses, is still to come or stands open looks as it did.
TEST(Colours, AVisitToTheSetupLeavesEveryStateAsItIs) {
  struct Case {
    const char* what;
    std::function<void(Hands&)> bring;
  };
  const auto keys = [](const char* all) {
    return [all](Hands& rig) {
      for (const char* each = all; *each != '\0'; ++each) {
        rig.key(*each);
        rig.clock.advance(3000);
      }
    };
  };
  const auto program = [](Hands& rig) {
    rig.press(rig.form.Image4[0]);
    for (const size_t track : {2U, 0U, 1U}) rig.press(rig.form.Image17[track]);
    for (const int key : {'D', 'S'}) {
      rig.key(key);
      rig.clock.advance(3000);
    }
  };
  const Case cases[] = {{"stopped", keys("")},
                        {"a loop", keys("DWW")},
                        {"one end of a loop", keys("DW")},
                        {"paused", keys("DF")},
                        {"repeat", keys("RD")},
                        {"a program with tracks played", program},
                        {"open", keys("DJ")},
                        {"intro", [](Hands& rig) { rig.press(rig.form.Image4[3]); }}};
  for (const Case& c : cases) {
    for (const bool custom : {false, true}) {
      const auto dress = [&](Hands& fresh) {
        fresh.settings.lcdCustom = custom ? 1 : 0;
        fresh.settings.lcdFore = 0x000000;
        fresh.settings.lcdBack = 0x29CF95;
      };
      Hands rig(dress);
      Hands twin(dress);
      c.bring(rig);
      c.bring(twin);
      setUp(rig, [](Settings&) {});
      twin.clock.advance(1200);
      EXPECT_EQ(changedLines(twin.look(), rig.look()), "") << c.what << (custom ? ", custom" : "");
    }
  }
  // Fonts that are switched off are gone too.
  Hands rig;
  const std::string before = rig.look();
  const auto fonts = [](Settings& settings) {
    settings.noLcdFont = 1;
    settings.fonts[0] = {"Serif", 14, 1, 1, 1, 0x123456};
  };
  setUp(rig, fonts);
  EXPECT_EQ(rig.form.Label8.font.get().family, "Arial");
  EXPECT_EQ(rig.form.Label12.font.get().family, "Serif");
  setUp(rig, [](Settings& settings) {
    settings.noLcdFont = 0;
    settings.fonts[0] = {"", 0, 0, 0, 0, 0};
  });
  EXPECT_EQ(changedLines(before, rig.look()), "");
}

TEST(Colours, LegendsCanBeReadOnAnyGround) {
  for (const Colour ground : {0x332E2BU, 0x000000U, 0xFFFFFFU, 0xE0E0E0U, 0x808080U, 0x0000FFU, 0x00FFFFU, 0xFF0000U, 0xE6E1DCU}) {
    Hands rig([&](Hands& fresh) { fresh.settings.customColor = {1, ground, ground, ground, 0x60D818, 0, 0, 0, 0, 0, 0}; });
    const CDForm& form = rig.form;
    for (const forms::Control* legend :
         std::initializer_list<const forms::Control*>{&form.Label1, &form.Label2, &form.Label3, &form.Label15, &form.Label41, &form.Label27,
                                                      &form.Label78[0], &form.Label78[5], &form.Label77[0], &form.Label77[1]}) {
      EXPECT_GE(contrast(legend->foreColor, ground), 3) << legend->fullName() << " on " << ground;
    }
  }
  EXPECT_NEAR(contrast(colours::kBlack, colours::kWhite), 21, .1);
  EXPECT_EQ(contrast(0x123456, 0x123456), 1);
}

TEST(Mixer, ThatIsNotThereIsToldOverTheDeckThatStands) {
  CoreRig rig;
  rig.settings.appOptions[kMixerAtStart] = 1;
  rig.install();
  rig.start();
  EXPECT_EQ(rig.dialogs.tape, Tape{});
  rig.clock.advance(1000);
  EXPECT_EQ(rig.dialogs.tape.size(), 1U) << "once";
}

TEST(Mixer, IsPreparedWhenTheSetupTurnsToIt) {
  Hands rig;
  EXPECT_EQ(rig.mixer.tape, Tape{});
  setUp(rig, [](Settings& settings) { settings.soundMode = 4; });
  EXPECT_EQ(std::count(rig.mixer.tape.begin(), rig.mixer.tape.end(), "{RIGHT 32}"), 1);
  EXPECT_EQ(rig.form.PctL.caption.get(), "50");
  setUp(rig, [](Settings& settings) { settings.soundMode = 4; });
  EXPECT_EQ(std::count(rig.mixer.tape.begin(), rig.mixer.tape.end(), "{RIGHT 32}"), 1) << "once";
}

}  // namespace
}  // namespace orvanta::test
