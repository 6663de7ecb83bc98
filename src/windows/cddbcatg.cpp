// The category dialog's table.
#include "windows/cddbcatg.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;

// clang-format off
constexpr forms::GridRow kCategoryGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"cddbcatg", kNoIndex, "", {0, 0, 6600, 4800}, "Submit to CDDB", ""},
    {"disc", kNoIndex, "cddbcatg", {0, 0, 1, 1}, "", "", false, true, "", "value:text"},
    {"heading", kNoIndex, "cddbcatg", {1, 0, 1, 1}, "Category:", "", false, true, "", "heading"},
    {"catfind", kNoIndex, "cddbcatg", {2, 0, 1, 1}, "", "Category", true, true, "", "stretch"},
    {"plain", kNoIndex, "cddbcatg", {3, 0, 1, 1}, "", "", false, false, "", "text"},
    {"Keys", kNoIndex, "cddbcatg", {4, 0, 1, 1}, "", "", false, true, "", "left"},
    {"Command1", kNoIndex, "Keys", {0, 0, 1, 1}, "&OK", "", true},
    {"Command3", kNoIndex, "Keys", {0, 1, 1, 1}, "&Cancel", "", true},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> cddbcatg::grid() const { return kCategoryGrid; }

}  // namespace orvanta
