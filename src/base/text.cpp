// Text helpers: trimming, case, leading numbers, paths.
#include "base/text.h"

#include <algorithm>
#include <charconv>

namespace orvanta {

namespace {

char upperChar(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

std::string_view trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string upper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upperChar);
  return result;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return upperChar(x) == upperChar(y); });
}

bool startsWithNoCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && equalsNoCase(text.substr(0, start.size()), start);
}

bool endsWithNoCase(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && equalsNoCase(text.substr(text.size() - end.size()), end);
}

double leadingNumber(std::string_view text) {
  text = trim(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  // from_chars also reads "inf" and "nan", which are words here, not numbers.
  const bool digits = result.ptr != text.data() && text.find_first_of("0123456789") < static_cast<size_t>(result.ptr - text.data());
  return result.ec == std::errc{} && digits ? value : 0;
}

std::string padded(long value, int digits) {
  std::string text = std::to_string(value < 0 ? -value : value);
  if (text.size() < static_cast<size_t>(digits)) text.insert(0, static_cast<size_t>(digits) - text.size(), '0');
  return value < 0 ? "-" + text : text;
}

std::string_view firstCharacters(std::string_view text, size_t count) {
  size_t at = 0;
  for (; at < text.size(); ++at) {
    const bool startsOne = (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U;
    if (startsOne && count-- == 0) break;
  }
  return text.substr(0, at);
}

std::vector<std::string> splitCommand(std::string_view command, bool wholeExists) {
  if (wholeExists) return {std::string(command)};
  std::vector<std::string> arguments;
  std::string word;
  bool quoted = false;
  bool any = false;
  for (const char c : std::string(command) + " ") {
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if (c == ' ' && !quoted) {
      if (any) arguments.push_back(word);
      word.clear();
      any = false;
    } else {
      word += c;
      any = true;
    }
  }
  return arguments;
}

std::vector<std::string> splitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (pair ? 2 : 1));
  }
  return lines;
}

std::string joinPath(std::string_view folder, std::string_view name) {
  if (folder.empty()) return std::string(name);
  std::string path(folder);
  if (path.back() != '/') path += '/';
  return path.append(name);
}

size_t characterCount(std::string_view text) {
  size_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80 ? 1 : 0;
  return count;
}

std::string withoutControls(std::string_view text, bool keepBreaks) {
  std::string clean(text);
  for (char& c : clean) {
    const bool line = c == '\r' || c == '\n';
    if (static_cast<unsigned char>(c) < 32 && !(line && keepBreaks)) c = ' ';
  }
  return clean;
}

std::vector<std::string> wrapWords(std::string_view text, size_t width) {
  std::vector<std::string> rows;
  std::string_view rest = trim(text);
  while (!rest.empty()) {
    if (characterCount(rest) <= width) {
      rows.emplace_back(rest);
      break;
    }
    size_t cut = firstCharacters(rest, width + 1).rfind(' ');
    if (cut == std::string_view::npos || cut == 0) cut = firstCharacters(rest, width).size();
    rows.emplace_back(trim(rest.substr(0, cut)));
    rest = trim(rest.substr(cut));
  }
  return rows;
}

std::string withCrLf(std::string_view text) {
  std::string whole;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (text[i] == '\r' || text[i] == '\n') {
      whole += "\r\n";
    } else {
      whole += text[i];
    }
  }
  return whole;
}

}  // namespace orvanta
