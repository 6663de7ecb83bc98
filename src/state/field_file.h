// The sequential form of the settings and disc families: values in order, one a line, no
// keys; strings in double quotes, numbers plain. Files are Windows-1252 with CR LF.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/whole_texts.h"

namespace orvanta {

/// Takes values off the front, separated by a line end or a comma.
class FieldReader {
 public:
  /// `companion` is the text of the file's companion, "" without one.
  explicit FieldReader(std::string_view bytes, std::string_view companion = {});
  /// The next value, quotes removed, as UTF-8; nullopt at the end of the file. An unclosed quote
  /// runs to the end of the file.
  std::optional<std::string> next();

 private:
  std::string_view rest_;
  bool utf8_ = false;  ///< an editor has saved the file so, and marked it
  WholeTexts whole_;
  int field_ = 0;
};

class FieldWriter {
 public:
  /// In quotes; a double quote within becomes a single one. A text that would not come back as it is goes
  /// into the companion too.
  void text(std::string_view utf8);
  void number(int64_t value);
  void empty();
  const std::string& bytes() const { return bytes_; }
  /// Of the companion; "" when the file alone holds everything.
  std::string companion() const;

 private:
  struct Text {
    int field;
    std::string held;
    std::string whole;
  };
  std::string bytes_;
  std::vector<Text> texts_;
  int field_ = 0;
};

}  // namespace orvanta
