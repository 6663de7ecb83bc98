// The faceplate's layouts against their table, and what goes with a change of layout, colours and fonts.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/support/core_rig.h"
#include "tests/support/places.h"

namespace orvanta::test {
namespace {

using Row = std::map<std::string, std::string>;

std::vector<std::string> cells(const std::string& line) {
  std::vector<std::string> all(1);
  bool quoted = false;
  for (const char c : line) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      all.emplace_back();
    } else if (c != '\r') {
      all.back() += c;
    }
  }
  return all;
}

std::vector<Row> table() {
  std::ifstream file(sourceFolder() + "/tests/data/faceplate.csv");
  std::string line;
  std::getline(file, line);
  const auto names = cells(line);
  std::vector<Row> rows;
  while (std::getline(file, line)) {
    const auto values = cells(line);
    Row& row = rows.emplace_back();
    for (size_t i = 0; i < names.size() && i < values.size(); ++i) row[names[i]] = values[i];
  }
  return rows;
}

struct Variant {
  const char* name;
  int twips;
  bool small;
  bool expanded;
};
constexpr Variant kVariants[] = {{"large", 15, false, false},    {"large0", 12, false, false}, {"expanded", 15, false, true},
                                 {"expanded0", 12, false, true}, {"small", 15, true, false},   {"small0", 12, true, false}};

/// What the table says of a place; "" when it says nothing.
std::string wanted(const Row& row, const std::string& edge, const Variant& variant) {
  const std::string fine = variant.twips == 12 ? "0" : "";
  const bool wide = variant.small || variant.expanded;
  const bool inPane = row.at("parent") != "CDForm";
  if (variant.small && (edge == "left" || edge == "top") && !row.at("small" + fine + "_left").empty())
    return row.at("small" + fine + "_" + edge);
  // The table has no heights of its own for the small faceplate at 12 twips: they are the large one's.
  if (variant.small && (edge == "width" || edge == "height") && !row.at("small_width").empty() &&
      (fine.empty() || row.at("name") != "icntlb")) {
    return fine == "0" && edge == "height" && row.at("name") == "Panel3D1" ? row.at("height0") : row.at("small_" + edge);
  }
  if (wide && edge == "left" && !row.at("exp_left").empty() && (variant.expanded || inPane)) {
    return fine == "0" && row.at("name") == "Image14" ? "5172" : row.at("exp_left");
  }
  if (wide && edge == "width" && !row.at("exp_width").empty() && (variant.expanded || inPane)) return row.at("exp_width");
  return row.at(edge + fine);
}

TEST(Layout, EveryControlStandsWhereTheTableHasIt) {
  const auto rows = table();
  ASSERT_GT(rows.size(), 200U);
  for (const Variant& variant : kVariants) {
    CoreRig rig;
    rig.screen.twips = variant.twips;
    rig.settings.smallFaceplate = variant.small ? kOn : kOff;
    rig.settings.expandedDisplay = variant.expanded ? kOn : kOff;
    rig.auxVolume.reading.volume = 0xBFFFBFFF;  // the table's sliders stand at 75 %
    rig.startWith(discA());
    for (const Row& row : rows) {
      const std::string& name = row.at("name");
      if (name == "CDForm") {
        EXPECT_EQ(rig.form.width, std::stoi(variant.small ? row.at("small_width") : row.at(variant.twips == 12 ? "width0" : "width")));
        continue;
      }
      const auto* control = rig.form.find(name, row.at("index").empty() ? forms::Control::kNoIndex : std::stoi(row.at("index")));
      ASSERT_NE(control, nullptr) << name;
      // At 12 twips the title lines follow their text; see below. The mark "mask" of the volume panel leaves with it.
      const bool follows = variant.twips == 12 && (name == "Label12" || name == "Label13");
      for (const auto& [edge, value] : std::initializer_list<std::pair<const char*, int>>{
               {"left", control->left}, {"top", control->top}, {"width", control->width}, {"height", control->height}}) {
        if (follows && (edge == std::string("top") || edge == std::string("height"))) continue;
        const std::string text = wanted(row, edge, variant);
        const int number = text == "Screen.Width+100" ? rig.screen.widthTwips() + 100 : std::stoi(text);
        EXPECT_EQ(value, number) << variant.name << ' ' << name << row.at("index") << ' ' << edge;
      }
    }
  }
}

TEST(Layout, ThereAndBackLeavesNothingBehind) {
  CoreRig rig;
  rig.startWith(discA());
  const std::string before = forms::formAsText(rig.form);
  rig.press(rig.form.Image11);
  EXPECT_EQ(rig.form.width, 5852);
  EXPECT_FALSE(rig.form.scntlb[0].visible);
  EXPECT_FALSE(rig.form.Image11.visible);
  const std::string small = forms::formAsText(rig.form);
  rig.press(rig.form.Image13);
  EXPECT_EQ(forms::formAsText(rig.form), before);
  rig.press(rig.form.Image20[0]);
  EXPECT_TRUE(rig.form.Line1.visible);
  EXPECT_GT(rig.form.Panel3D2.left, rig.screen.widthTwips());
  rig.press(rig.form.Image11);
  EXPECT_EQ(forms::formAsText(rig.form), small) << "small looks the same, whatever the large one showed";
  rig.press(rig.form.Image13);
  rig.press(rig.form.Image20[0]);
  EXPECT_EQ(forms::formAsText(rig.form), before);
  // While it plays the scan keys come back alive.
  rig.key('D');
  rig.press(rig.form.Image11);
  rig.press(rig.form.Image13);
  EXPECT_FALSE(rig.form.scntlb[0].visible);
  EXPECT_FALSE(rig.form.scntlb[3].visible);
}

TEST(Layout, TheOpenDrawerGoesWithTheDisplay) {
  CoreRig rig;
  rig.startWith(discA());
  rig.key('J');
  rig.clock.advance(400);
  ASSERT_TRUE(rig.form.Panel3D7.visible);
  EXPECT_EQ(rig.sounds.tape.back(), "/data/system/opendraw.wav");
  rig.press(rig.form.Image20[0]);
  EXPECT_FALSE(rig.form.Panel3D7.visible || rig.form.Panel3D9.visible || rig.form.Panel3D10.visible);
  EXPECT_EQ(rig.form.Panel3D7.top, 600) << "still open";
  rig.press(rig.form.Image20[0]);
  EXPECT_TRUE(rig.form.Panel3D7.visible && rig.form.Panel3D9.visible && rig.form.Panel3D10.visible);
}

TEST(Layout, TitleLinesMakeRoomForALongOne) {
  CoreRig rig;
  rig.screen.twips = 12;
  rig.startWith(discA());
  rig.form.Label12.caption = "Short";
  EXPECT_EQ(rig.form.Label13.top, 340);
  EXPECT_EQ(rig.form.Label13.height, 576);
  rig.form.Label12.caption = std::string(60, 'W');
  EXPECT_EQ(rig.form.Label12.height, 440);
  EXPECT_EQ(rig.form.Label13.top, 570);
  EXPECT_EQ(rig.form.Label13.height, 384);
}

TEST(Layout, KeysGiveWayAndComeBack) {
  CoreRig rig;
  rig.startWith(discA());
  const auto hold = [&](forms::Control& control) {
    rig.gate.enter([&] { rig.form.mouseDown(&control, {forms::MouseButton::Left, 100, 100}); });
  };
  const auto letGo = [&] { rig.gate.enter([&] { rig.form.mouseUp({forms::MouseButton::Left, 100, 100}); }); };
  hold(rig.form.Image2[1]);
  EXPECT_EQ(rig.form.Image2[1].left, 730);
  EXPECT_EQ(rig.form.Image2[1].top, 1840);
  EXPECT_TRUE(rig.form.Shape4.visible);
  letGo();
  EXPECT_EQ(rig.form.Image2[1].left, 720);
  EXPECT_FALSE(rig.form.Shape4.visible);
  hold(rig.form.Image19[0]);
  EXPECT_TRUE(rig.form.Image19[1].visible);
  EXPECT_FALSE(rig.form.Image19[0].visible);
  letGo();
  EXPECT_TRUE(rig.form.Image19[0].visible);
  EXPECT_EQ(rig.dialogs.tape.size(), 1U) << "no mixer chosen: one box tells how";
  hold(rig.form.Image17[2]);
  EXPECT_EQ(rig.form.Label34[2].left, 960 + 10) << "the number goes with its key";
  letGo();
  EXPECT_EQ(rig.form.Label34[2].left, 960);
}

TEST(Layout, ColoursFontsAndPicturesOfTheUser) {
  CoreRig rig;
  rig.files.files["/PICTURES/WOOD.PNG"] = "x";
  rig.files.files["/DATA/SYSTEM/ZPREVA.BMP"] = "x";
  rig.settings.faceplateBitmap = "/pictures/wood.png";
  rig.settings.faceplateBitmapOn = 1;
  rig.settings.customColor = {1, 2, 3, 4, 5, 0, 0, 0, 0, 9, 0};
  rig.settings.fonts[0] = {"Serif", 11, 1, 0, 0, 0x123456};
  rig.screen.missing = {"LcdD"};
  rig.startWith(discA());
  const CDForm& form = rig.form;
  EXPECT_EQ(rig.state.settings.customColor[1], 0U) << "the picture takes the window's colour away, in memory";
  EXPECT_EQ(form.Image8.picture.get(), "/pictures/wood.png");
  EXPECT_EQ(form.backColor, Colour{0});
  EXPECT_EQ(form.Label41.foreColor, Colour{0xCAC1AC});
  EXPECT_EQ(form.Panel3D8.backColor, Colour{3});
  EXPECT_EQ(form.SSPanel1.backColor, Colour{4});
  EXPECT_EQ(form.Label11.foreColor, Colour{9});
  EXPECT_EQ(form.Label8.foreColor, Colour{0x00FF00}) << "entry 10 is 0: no colour";
  EXPECT_EQ(form.Label12.font.get().family, "Serif");
  EXPECT_EQ(form.Label12.foreColor, Colour{0x123456});
  EXPECT_EQ(form.Label8.font.get().family, "Arial");
  EXPECT_TRUE(form.Label24.font.get().bold);
  EXPECT_EQ(form.Label24.left, 5370);
  EXPECT_EQ(form.icntla[0].picture.get(), "/data/system/zpreva.bmp");
  EXPECT_EQ(form.icntla[1].picture.get(), "");

  CoreRig plain;
  plain.screen.bits = 8;
  plain.settings.customColor = {};
  plain.startWith(discA());
  EXPECT_EQ(plain.form.Panel3D3.backColor, Colour{0x400000}) << "256 colours: plain dark panels";
}

}  // namespace
}  // namespace orvanta::test
