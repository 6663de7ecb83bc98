// The windows' layouts against their tables.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "strip/strip_layout.h"
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

std::vector<Row> table(const std::string& name) {
  std::ifstream file(sourceFolder() + "/tests/data/" + name);
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

/// nullptr for the row of the form itself.
const forms::Control* controlOf(const forms::Form& form, const Row& row) {
  const std::string& index = row.at("index");
  return form.find(row.at("name"), index.empty() ? forms::kNoIndex : std::stoi(index));
}

using Edges = std::vector<std::pair<const char*, int>>;
Edges edgesOf(const forms::Control& control) {
  return {{"left", control.left}, {"top", control.top}, {"width", control.width}, {"height", control.height}};
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
  const auto rows = table("faceplate.csv");
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
      const auto* control = controlOf(rig.form, row);
      ASSERT_NE(control, nullptr) << name;
      // At 12 twips the title lines follow their text; see below. The mark "mask" of the volume panel leaves with it.
      const bool follows = variant.twips == 12 && (name == "Label12" || name == "Label13");
      for (const auto& [edge, value] : edgesOf(*control)) {
        if (follows && (edge == std::string("top") || edge == std::string("height"))) continue;
        const std::string text = wanted(row, edge, variant);
        const int number = text == "Screen.Width+100" ? rig.screen.widthTwips() + 100 : std::stoi(text);
        EXPECT_EQ(value, number) << variant.name << ' ' << name << row.at("index") << ' ' << edge;
      }
    }
  }
}

struct StripState {
  bool coarse;
  bool unfolded;
  bool border;
  bool sliders;
};

/// What the strip's table says of an edge.
int wantedEdge(const Row& row, const std::string& edge, const StripState& state) {
  const std::string fine = state.coarse ? "" : "0";
  const bool upright = edge == "top" || edge == "height";
  const bool place = edge == "left" || edge == "top";
  const std::string& more = row.at(upright ? "nob_dh" : "nob_dw");
  const int grown = state.border || place || more.empty() ? 0 : std::stoi(more);
  if (!state.border && place && !row.at("nob_left").empty()) return std::stoi(row.at("nob_" + edge));
  if (state.unfolded && upright && !row.at("unf" + fine + "_" + edge).empty()) return std::stoi(row.at("unf" + fine + "_" + edge)) + grown;
  return std::stoi(row.at(edge + fine)) + grown;
}

bool wantedVisible(const Row& row, const StripState& state) {
  std::string shows = row.at("visible");
  if (state.unfolded && !row.at("unf_visible").empty()) shows = row.at("unf_visible");
  if (!state.border && !row.at("nob_visible").empty()) shows = row.at("nob_visible");
  if (!state.sliders && !row.at("nos_visible").empty()) shows = row.at("nos_visible");
  return shows == "y";
}

TEST(Layout, TheStripStandsWhereItsTableHasIt) {
  const auto rows = table("popup.csv");
  ASSERT_GT(rows.size(), 80U);
  for (int bits = 0; bits < 16; ++bits) {
    const StripState state{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
    FakeDesktop desktop;
    SharedState shared;
    shared.settings.faceplateBorder = state.border ? kOn : kOff;
    shared.settings.soundMode = state.sliders ? kOwnVolume : kNoSliders;
    VolCntl form;
    form.smallFonts = state.coarse;
    form.load(desktop);
    StripLayout layout(form, shared);
    layout.apply();
    // There and back leaves nothing behind.
    layout.unfold();
    if (!state.unfolded) layout.fold();
    EXPECT_EQ(shared.display.popupLayout, state.unfolded ? kOn : kOff);
    for (const Row& row : rows) {
      const std::string where = std::to_string(bits) + ' ' + row.at("name") + row.at("index") + ' ';
      const auto* control = controlOf(form, row);
      const Edges edges = control != nullptr ? edgesOf(*control) : Edges{{"width", form.width}, {"height", form.height}};
      for (const auto& [edge, value] : edges) EXPECT_EQ(value, wantedEdge(row, edge, state)) << where << edge;
      if (control == nullptr) continue;
      const std::string& silent = row.at("nos_caption");
      // The titles are the disc's; the table shows a sample.
      const bool title = row.at("name") == "Label12" || row.at("name") == "Label13";
      EXPECT_EQ(control->visible, wantedVisible(row, state)) << where;
      EXPECT_EQ(control->caption.get(), title ? "" : !state.sliders && !silent.empty() ? silent : row.at("caption")) << where;
    }
  }
}

}  // namespace
}  // namespace orvanta::test
