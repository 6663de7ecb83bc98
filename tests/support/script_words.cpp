#include "tests/support/script_words.h"

#include <cstdlib>
#include <sstream>

#include "base/code_page.h"

namespace orvanta::test {

Tape Word::list() const {
  Tape all;
  std::istringstream parts(value);
  for (std::string part; std::getline(parts, part, ',');) all.push_back(part);
  return all;
}

std::vector<int> Word::numbers() const {
  std::vector<int> all;
  for (const std::string& part : list()) all.push_back(static_cast<int>(std::strtol(part.c_str(), nullptr, 0)));
  return all;
}

int Word::number(size_t i) const {
  const auto all = numbers();
  return i < all.size() ? all[i] : 0;
}

std::vector<Word> wordsOf(const std::string& line) {
  std::vector<Word> words(1);
  bool quoted = false;
  bool inValue = false;
  for (size_t i = 0; i < line.size(); ++i) {
    char c = line[i];
    std::string& to = inValue ? words.back().value : words.back().verb;
    if (!quoted && c == '#' && to.empty() && !inValue) break;
    if (!quoted && c == ' ') {
      if (!words.back().verb.empty()) words.emplace_back();
      inValue = false;
    } else if (!quoted && c == '=' && !inValue) {
      inValue = true;
    } else if (c == '"') {
      quoted = !quoted;
    } else if (quoted && c == '\\' && i + 1 < line.size()) {
      c = line[++i];
      to += c == 'n' ? '\n' : c == 't' ? '\t' : c == 'r' ? '\r' : c;
    } else {
      to += c;
    }
  }
  if (words.back().verb.empty()) words.pop_back();
  return words;
}

std::string runs(const Tape& all, const char* between) {
  std::string text;
  for (size_t i = 0, next = 0; i < all.size(); i = next) {
    for (next = i; next < all.size() && all[next] == all[i];) ++next;
    text += (text.empty() ? "" : between) + all[i] + (next - i > 1 ? " x" + std::to_string(next - i) : "");
  }
  return text;
}

Tape linesOf(const std::string& bytes) {
  Tape all;
  std::istringstream lines(fromWindows1252(bytes));
  for (std::string line; std::getline(lines, line);) all.push_back(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
  return all;
}

}  // namespace orvanta::test
