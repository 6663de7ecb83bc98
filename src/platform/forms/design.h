// Design values of a window: one row a control, both metric variants side by side.
#pragma once

#include <span>

#include "platform/forms/form.h"

namespace orvanta::forms {

struct DesignRow {
  const char* name;
  int index;  ///< Control::kNoIndex for a single control; the row of the form itself bears its name
  const char* parent;
  int z;
  Place fine;    ///< at 12 twips a pixel
  Place coarse;  ///< at 15 twips a pixel (small fonts)
  const char* caption;
  Colour fore;
  Colour back;
  const char* font;
  double points;
  bool bold;
  bool visible;
  Align align;
  bool wrap;
  bool tabStop;
  bool passesMouse;
  const char* art;
  const char* toolTip;
  const char* says;  ///< accessible name of a control without a caption
};

/// A row of a window that lays itself out; the row of the form itself gives its first size in `cell`'s
/// place: rows is the height, columns the width, in twips.
struct GridRow {
  const char* name;
  int index;
  const char* parent;
  Cell cell;
  const char* caption;
  const char* says;  ///< accessible name of a control without a caption
  bool tabStop = false;
  bool visible = true;
  const char* toolTip = "";
  const char* art = "";  ///< "tab", "frame", "heading", "value", "stretch", ...: hints for the view
};

/// Parts of a window that drawings work on beside its controls.
enum class AreaKind {
  Glass,    ///< all that the display's panes lie on
  KeyRow,   ///< the recess of a row of keys
  Bracket,  ///< over a group of keys, from its ends
  Tray,     ///< one picture of which each panel on it shows its own slice
  Rule,     ///< a hairline across a pane, over the digits; so is the next, upright
  Bar,      ///< the recess of a bar
  Plate,    ///< the recess of a display that may leave: a name plate lies in it
  UpperPane,
  LowerPane,
  Groove,  ///< between a strip and what it unfolds to
  Disc,    ///< sunk into the metal
  Column,
};
struct AreaRow {
  AreaKind kind;
  Place fine;
  Place coarse;
  int widest = kAnyWidth;  ///< twips of a window that has it so; the first row that fits counts

  static constexpr int kAnyWidth = 1 << 30;
};

constexpr int kEach = -2;  ///< every index of an array, each with the like index of its partner's

/// Who has which role for whom.
struct PartnerRow {
  Role role;
  const char* name;
  int index;
  const char* partner;
  int partnerIndex = kNoIndex;
};

void applyPartners(Form& form, std::span<const PartnerRow> rows);

void applyGrid(Form& form, std::span<const GridRow> rows);

/// Writes a table into a form's controls, as one batch before a view looks at them.
void applyDesign(Form& form, std::span<const DesignRow> rows, bool smallFonts);

}  // namespace orvanta::forms
