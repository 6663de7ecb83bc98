// Reading and writing the lines of a companion.
#include "state/whole_texts.h"

#include <algorithm>

#include "base/text.h"

namespace orvanta {

std::string oneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    line += c == '\\' ? "\\\\" : c == '\n' ? "\\n" : c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
  }
  return line;
}

std::string anyLines(std::string_view line) {
  std::string text;
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\' || i + 1 == line.size()) {
      text += line[i];
      continue;
    }
    const char c = line[++i];
    text += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
  }
  return text;
}

WholeTexts::WholeTexts(std::string_view companion) {
  for (const std::string& line : splitLines(companion)) {
    const auto first = line.find('\t');
    const auto second = first == std::string::npos ? first : line.find('\t', first + 1);
    if (second == std::string::npos) continue;
    const double field = leadingNumber(line.substr(0, first));
    if (field < 1 || field > 1e6) continue;
    lines_.push_back({static_cast<int>(field), anyLines(line.substr(first + 1, second - first - 1)), anyLines(line.substr(second + 1))});
  }
}

std::string WholeTexts::restored(int field, const std::string& held) {
  auto found = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.field == field && line.held == held; });
  if (found == lines_.end()) found = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.held == held; });
  return found == lines_.end() ? held : found->whole;
}

std::string WholeTexts::line(int field, std::string_view held, std::string_view whole) {
  return std::to_string(field) + "\t" + oneLine(held) + "\t" + oneLine(whole) + "\n";
}

}  // namespace orvanta
