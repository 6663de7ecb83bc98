// Which row is under edit, and whether its text was touched.
#include "library/row_entry.h"

namespace orvanta {

void RowEntry::reset() {
  row_ = -1;
  typed_ = false;
  box_.caption = "";
}

void RowEntry::edit(int row, const std::string& text) {
  if (row == row_ && typed_) return;
  row_ = row;
  typed_ = false;
  box_.caption = text;
}

}  // namespace orvanta
