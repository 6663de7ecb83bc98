// The sequential record form of the settings and disc families: values in order, one a line, no
// keys; strings in double quotes, numbers plain. Files are Windows-1252 with CR LF.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Takes values off the front, separated by a line end or a comma.
class FieldReader {
 public:
  explicit FieldReader(std::string_view bytes) : rest_(bytes) {}
  /// The next value, quotes removed, as UTF-8; nullopt at the end of the file. An unclosed quote
  /// runs to the end of the file.
  std::optional<std::string> next();

 private:
  std::string_view rest_;
};

class FieldWriter {
 public:
  /// In quotes; a double quote within becomes a single one.
  void text(std::string_view utf8);
  void number(int64_t value);
  void empty() { bytes_ += "\r\n"; }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace orvanta
