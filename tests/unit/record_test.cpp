// The record key where the disc cannot be handed over.
#include <gtest/gtest.h>

#include <regex>

#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

/// The form as text, but for the shadow that lay under the last key.
std::string lookOf(const CoreRig& rig) { return std::regex_replace(forms::formAsText(rig.form), std::regex("\nShape2 [^\n]*hidden"), ""); }

TEST(Record, ARecorderThatIsNotThereLeavesTheDeckAsItWas) {
  for (const char* command : {"", "/opt/rip -x"}) {
    CoreRig rig;
    rig.settings.recordCommand = command;
    rig.processes.missing = {"/programs/orvrec", "/opt/rip"};
    rig.startWith(discB());
    rig.key('D');
    rig.clock.advance(1200);
    const std::string look = lookOf(rig);
    const Tape device = rig.device.tape;
    rig.key('H');
    EXPECT_FALSE(rig.gate.ended());
    EXPECT_EQ(rig.device.tape, device);
    EXPECT_TRUE(lookOf(rig) == look);
    const std::string told = std::string("Orvanta: The recorder ") + (*command != 0 ? "/opt/rip" : "/programs/orvrec") +
                             " could not be started.\n\nAccess the Orvanta Setup Section to choose another one.";
    EXPECT_EQ(rig.dialogs.tape, Tape{told});
  }
}

TEST(Record, TextsThatCannotBeWrittenAreTold) {
  CoreRig rig;
  rig.startWith(discB());
  rig.key('D');
  rig.files.failAt = rig.files.writes() + 1;
  rig.key('H');
  EXPECT_FALSE(rig.gate.ended());
  EXPECT_EQ(rig.dialogs.tape.size(), 1U);
  EXPECT_EQ(rig.device.mode(), DeviceMode::Playing);
  EXPECT_EQ(rig.processes.tape, Tape{});
}

TEST(Record, WhenItDoesNotStartAFreshDeckTakesTheDiscUp) {
  CoreRig rig;
  rig.startWith(discB());
  rig.processes.onStart = [&] {
    rig.processes.fail = rig.processes.tape.back() != "/programs/orvanlx";
    if (!rig.processes.fail) rig.files.files.erase("/DATA/EJCD.TMP");
  };
  rig.key('H');
  EXPECT_EQ(rig.processes.tape, (Tape{"/programs/orvrec 2/data", "/programs/orvanlx"}));
  EXPECT_EQ(rig.dialogs.tape.size(), 1U);
  EXPECT_TRUE(rig.gate.ended());
}

}  // namespace
}  // namespace orvanta::test
