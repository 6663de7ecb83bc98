// "start", then disc, drive and words, with tabs between them.
#include "state/second_start.h"

#include <array>

#include "state/whole_texts.h"

namespace orvanta {

namespace {

constexpr std::string_view kWord = "start";

}  // namespace

std::string lineOf(const SecondStart& start) {
  return std::string(kWord) + "\t" + oneLine(start.disc) + "\t" + oneLine(start.drive) + "\t" + oneLine(start.words);
}

std::optional<SecondStart> secondStartOf(const std::string& line) {
  std::array<std::string, 4> parts;
  size_t at = 0;
  for (std::string& part : parts) {
    if (at == std::string::npos) return std::nullopt;
    const auto tab = line.find('\t', at);
    part = anyLines(line.substr(at, tab - at));
    at = tab == std::string::npos ? tab : tab + 1;
  }
  if (at != std::string::npos || parts[0] != kWord) return std::nullopt;
  return SecondStart{parts[1], parts[2], parts[3]};
}

}  // namespace orvanta
