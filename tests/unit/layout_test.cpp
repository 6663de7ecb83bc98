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

}  // namespace
}  // namespace orvanta::test
