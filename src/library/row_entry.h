// The field below a list, in which the list's rows are edited one after the other.
#pragma once

#include <string>

#include "platform/forms/control.h"

namespace orvanta {

class RowEntry {
 public:
  RowEntry(forms::ListBox& list, forms::TextBox& box) : list_(list), box_(box) {}

  forms::ListBox& list() const { return list_; }
  forms::TextBox& box() const { return box_; }
  int row() const { return row_; }  ///< zero-based, under edit; -1 for none

  /// No row is under edit and nothing stands in the field: before a fill by program.
  void reset();
  /// The row comes under edit with this text. The row that is it already keeps what is typed.
  void edit(int row, const std::string& text);
  /// A person changed the text.
  void typed() { typed_ = true; }
  /// What a person typed has gone where it belongs.
  void taken() { typed_ = false; }

  bool typedAnything() const { return typed_; }
  /// Something is typed for a row.
  bool waits() const { return typed_ && row_ >= 0 && row_ < list_.count(); }

 private:
  forms::ListBox& list_;
  forms::TextBox& box_;
  int row_ = -1;
  bool typed_ = false;
};

}  // namespace orvanta
