// Reading and writing single values.
#include "state/field_file.h"

#include <algorithm>
#include <set>

#include "base/code_page.h"

namespace orvanta {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kEnds = ",\r\n";

/// Drops what stands between a value and the next: one comma or one line end, and before it what somebody has
/// put behind a closing quote.
void dropSeparator(std::string_view& rest) {
  const auto start = rest.find_first_of(kEnds);
  if (start == std::string_view::npos) {
    rest = {};
    return;
  }
  const bool pair = rest.substr(start, 2) == "\r\n";
  rest.remove_prefix(start + (pair ? 2 : 1));
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  const auto last = text.find_last_not_of(kBlanks);
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace

FieldReader::FieldReader(std::string_view bytes, std::string_view companion) : rest_(bytes), whole_(companion) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.substr(0, kMark.size()) != kMark) return;
  rest_.remove_prefix(kMark.size());
  utf8_ = isUtf8(rest_);
}

std::optional<std::string> FieldReader::next() {
  const auto start = rest_.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return std::nullopt;
  rest_.remove_prefix(start);
  std::string_view value;
  if (rest_.front() == '"') {
    rest_.remove_prefix(1);
    const auto close = rest_.find('"');
    value = rest_.substr(0, close);
    rest_.remove_prefix(close == std::string_view::npos ? rest_.size() : close + 1);
  } else {
    const auto end = rest_.find_first_of(kEnds);
    value = withoutTrailingBlanks(rest_.substr(0, end));
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end);
  }
  dropSeparator(rest_);
  return whole_.restored(++field_, utf8_ ? std::string(value) : fromWindows1252(value));
}

void FieldWriter::text(std::string_view utf8) {
  std::string bytes = toWindows1252(utf8);
  // The form has no way to hold a double quote, and one would cut the value short.
  std::replace(bytes.begin(), bytes.end(), '"', '\'');
  bytes_ += "\"" + bytes + "\"\r\n";
  texts_.push_back({++field_, fromWindows1252(bytes), std::string(utf8)});
}

std::string FieldWriter::companion() const {
  std::set<std::string> cut;
  for (const Text& text : texts_) {
    if (text.held != text.whole) cut.insert(text.held);
  }
  std::string lines;
  for (const Text& text : texts_) {
    // A field that truly holds what stands for another's text says so, or it would be given that text.
    if (cut.count(text.held) == 1) lines += WholeTexts::line(text.field, text.held, text.whole);
  }
  return lines;
}

void FieldWriter::number(int64_t value) {
  bytes_ += std::to_string(value) + "\r\n";
  ++field_;
}

void FieldWriter::empty() {
  bytes_ += "\r\n";
  ++field_;
}

}  // namespace orvanta
