// The CD Info window's table.
#include "windows/cdartext.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;

// clang-format off
constexpr forms::GridRow kInfoGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"cdartext", kNoIndex, "", {0, 0, 6000, 6450}, "CD Info", ""},
    {"Heads", kNoIndex, "cdartext", {0, 0, 1, 1}, "", ""},
    {"Label5", kNoIndex, "Heads", {0, 0, 1, 1}, "#", "", false, true, "", "heading:number"},
    {"Label6", kNoIndex, "Heads", {0, 1, 1, 1}, "Description", "", false, true, "", "heading:wide"},
    {"Label7", kNoIndex, "Heads", {0, 2, 1, 1}, "Time", "", false, true, "", "heading:right"},
    {"List1", kNoIndex, "cdartext", {1, 0, 1, 1}, "", "Disc", true, true, "", "stretch"},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> cdartext::grid() const { return kInfoGrid; }

}  // namespace orvanta
