// Where the deck stands: on which screen, and how far from its corner.
#include <gtest/gtest.h>

#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

/// A primary screen with a panel above, and one to the right of it with a dock at its left.
const std::vector<WorkArea> kTwoScreens = {{"", {0, 600, 24000, 15000}}, {"HDMI \"1\"", {25000, 0, 48000, 16000}}};

struct PositionRig : CoreRig {
  explicit PositionRig(const std::vector<WorkArea>& areas, const std::string& stored = "") {
    screen.areas = areas;
    install();
    if (!stored.empty()) files.files["/DATA/CDPOSN.DAT"] = stored;
    player.insert(discB());
    start();
  }
  void drag(int left, int top) {
    gate.enter([&] { form.dragged(left, top); });
  }
  std::string place() const { return std::to_string(form.left) + "," + std::to_string(form.top); }
};

TEST(Position, IsTheMiddleOfWhatIsFree) {
  PositionRig rig(kTwoScreens);
  const int left = (24000 - rig.form.width) / 2;
  EXPECT_EQ(rig.place(), std::to_string(left) + "," + std::to_string(600 + (14400 - rig.form.height) / 2));
  EXPECT_EQ(rig.state.display.positionKnown, kOff);
  rig.drag(30000, 2000);
  rig.gate.enter([&] { rig.form.doubleClick(&rig.form.Image8); });
  EXPECT_EQ(rig.place(), std::to_string(25000 + (23000 - rig.form.width) / 2) + "," + std::to_string((16000 - rig.form.height) / 2))
      << "the middle of the screen that it is on";
  EXPECT_FALSE(rig.files.exists("/data/CDPOSN.DAT"));
}

TEST(Position, CountsFromTheScreensCorner) {
  PositionRig rig(kTwoScreens);
  const int width = rig.form.width;
  const int height = rig.form.height;
  struct Case {
    int left, top;
    std::string stored, place;
  };
  const std::string second = "\"HDMI '1'\"\r\n";
  for (const auto& [left, top, stored, place] : {
           Case{100, 700, "100\r\n100\r\n", "100,700"},
           Case{-500, 300, "0\r\n0\r\n", "0,600"},
           Case{24000 - width + 50, 15000 - height + 50, std::to_string(24000 - width) + "\r\n" + std::to_string(14400 - height) + "\r\n",
                std::to_string(24000 - width) + "," + std::to_string(15000 - height)},
           Case{30000, 2000, "5000\r\n2000\r\n" + second, "30000,2000"},
           Case{24900, -10, "0\r\n0\r\n" + second, "25000,0"},
       }) {
    rig.drag(left, top);
    EXPECT_EQ(rig.files.files["/DATA/CDPOSN.DAT"], stored);
    EXPECT_EQ(rig.place(), place);
  }
  rig.drag(30000, 2000);
  const auto files = rig.files.files;
  for (const bool there : {true, false}) {
    // Come back to, with the screen and without it.
    PositionRig later(there ? kTwoScreens : std::vector<WorkArea>{kTwoScreens[0]});
    later.form.unload();
    later.files.files = files;
    later.gate.enter([&] { later.orvanta.showFaceplate(); });
    EXPECT_EQ(later.place(), there ? "30000,2000" : "5000,2600");
    EXPECT_EQ(later.state.display.positionKnown, kOn);
  }
}

TEST(Position, IsPulledInWhenRead) {
  const auto at = [](const std::string& stored) { return PositionRig({}, stored).place(); };
  const PositionRig plain({});
  const int right = plain.screen.widthTwips() - plain.form.width;
  const int bottom = plain.screen.heightTwips() - plain.form.height;
  const auto text = [](int left, int top) { return std::to_string(left) + "\r\n" + std::to_string(top) + "\r\n"; };
  const auto place = [](int left, int top) { return std::to_string(left) + "," + std::to_string(top); };
  EXPECT_EQ(at(text(right - 400, bottom - 200)), place(right - 400, bottom - 200));
  EXPECT_EQ(at(text(right - 399, bottom - 199)), place(right, bottom));
  EXPECT_EQ(at(text(-1, -1)), place(0, 0));
  EXPECT_EQ(at("99999999999999\r\nx\r\n"), place(0, 0));
  EXPECT_EQ(at("12\r\n"), plain.place()) << "half a place is none";
  // A screen that is smaller than the deck shows its upper left corner.
  EXPECT_EQ(PositionRig({{"", {0, 0, 3000, 2000}}}, text(500, 500)).place(), place(0, 0));
}

}  // namespace
}  // namespace orvanta::test
