// The mail window's table.
#include "windows/cddbmail.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;

// clang-format off
constexpr forms::GridRow kMailGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"cddbmail", kNoIndex, "", {0, 0, 3000, 6600}, "Mail to the CDDB", ""},
    {"heading", kNoIndex, "cddbmail", {0, 0, 1, 1}, "To:", "", false, true, "", "heading"},
    {"address", kNoIndex, "cddbmail", {0, 1, 1, 1}, "", "", false, true, "", "value:wide"},
    {"status", kNoIndex, "cddbmail", {1, 0, 1, 2}, "", "", false, true, "", "text:frame"},
    {"Keys", kNoIndex, "cddbmail", {2, 0, 1, 2}, "", "", false, true, "", "left"},
    {"Command3", kNoIndex, "Keys", {0, 0, 1, 1}, "&Cancel", "", true},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> cddbmail::grid() const { return kMailGrid; }

}  // namespace orvanta
