// The playlist editor's table.
#include "windows/cdplist.h"

#include "platform/forms/design.h"

namespace orvanta {

namespace {

using forms::kNoIndex;

// clang-format off
constexpr forms::GridRow kPlaylistGrid[] = {
    // name, index, parent, {row, column, rows, columns}, caption, says, tab stop, visible, tool tip, art
    {"cdplist", kNoIndex, "", {0, 0, 4800, 8010}, "PGM Playlist Editor", ""},
    {"Label4", kNoIndex, "cdplist", {0, 0, 1, 1}, "Track Description:   ", "", false, true, "", "heading"},
    {"Label1", kNoIndex, "cdplist", {0, 2, 1, 1}, "Playlist:   ", "", false, true, "", "heading"},
    {"List1", kNoIndex, "cdplist", {1, 0, 1, 1}, "", "Tracks of the disc", true, true, "", "stretch"},
    {"Middle", kNoIndex, "cdplist", {1, 1, 1, 1}, "", "", false, true, "", "top"},
    {"Command5", kNoIndex, "Middle", {0, 0, 1, 1}, "Add -->", "", true},
    {"Command11", kNoIndex, "Middle", {1, 0, 1, 1}, "ALL -->", "", true},
    {"Command6", kNoIndex, "Middle", {2, 0, 1, 1}, "Remove", "", true},
    {"Command7", kNoIndex, "Middle", {3, 0, 1, 1}, "Move Up", "", true},
    {"Command8", kNoIndex, "Middle", {4, 0, 1, 1}, "Move Dn", "", true},
    {"Command3", kNoIndex, "Middle", {5, 0, 1, 1}, "<-- Clear", "", true},
    {"Command9", kNoIndex, "Middle", {6, 0, 1, 1}, "Clear -->", "", true},
    {"List2", kNoIndex, "cdplist", {1, 2, 1, 1}, "", "Playlist", true, true, "", "stretch:drag"},
    {"Keys", kNoIndex, "cdplist", {2, 0, 1, 3}, "", ""},
    {"Command12", kNoIndex, "Keys", {0, 0, 1, 1}, "Preview", "", true},
    {"Command13", kNoIndex, "Keys", {0, 1, 1, 1}, "Stop", "", true},
    {"Command2", kNoIndex, "Keys", {0, 2, 1, 1}, "Recall", "", true},
    {"Command10", kNoIndex, "Keys", {0, 3, 1, 1}, "Delete", "", true},
    {"Command1", kNoIndex, "Keys", {0, 4, 1, 1}, "Save", "", true},
    {"Command4", kNoIndex, "Keys", {0, 5, 1, 1}, "Play", "", true},
    {"List3", kNoIndex, "cdplist", {3, 0, 1, 1}, "", "", false, false},
};
// clang-format on

}  // namespace

std::span<const forms::GridRow> cdplist::grid() const { return kPlaylistGrid; }

}  // namespace orvanta
