// Which texts the code page cannot hold, and which line belongs to which.
#include "records/disc_whole_texts.h"

#include <algorithm>
#include <functional>

#include "base/code_page.h"
#include "base/text.h"
#include "records/escape.h"
#include "state/whole_texts.h"

namespace orvanta {

namespace {

/// All fields under names of their own.
template <class Texts, class Visit>
void eachText(Texts& texts, const Visit& visit) {
  visit("title", texts.discTitle);
  visit("artist", texts.discArtist);
  visit("notes", texts.linerNotes);
  for (size_t i = 1; i <= 100; ++i) visit("track" + std::to_string(i), texts.trackTitles[i]);
  for (size_t i = 1; i <= 5; ++i) visit("info" + std::to_string(i), texts.discInfo[i]);
  for (size_t i = 0; i <= 75; ++i) visit("extra" + std::to_string(i), texts.extraInfo[i]);
  for (size_t i = 1; i <= 50; ++i) visit("lyrics" + std::to_string(i), texts.lyricsHigh[i]);
}

bool has(const std::vector<WholeText>& lines, const std::string& field, const std::string& held) {
  return std::any_of(lines.begin(), lines.end(), [&](const WholeText& line) { return line.field == field && line.held == held; });
}

/// The extended fields may stand escaped in memory, from the save before.
std::string wholeOf(const std::string& field, const std::string& text) { return field.rfind("extra", 0) == 0 ? unescapeField(text) : text; }

}  // namespace

std::string asRead(const std::string& text) {
  std::string held = unescapeField(fromWindows1252(toWindows1252(escapeField(text))));
  // The rows of lists are parted by TABs.
  std::replace(held.begin(), held.end(), '\t', ' ');
  return held;
}

std::vector<WholeText> parseWholeTexts(const std::string& bytes) {
  std::vector<WholeText> lines;
  if (!isUtf8(bytes)) return lines;
  for (const std::string& line : splitLines(bytes)) {
    const auto first = line.find('\t');
    const auto second = first == std::string::npos ? first : line.find('\t', first + 1);
    if (second == std::string::npos) continue;
    lines.push_back({line.substr(0, first), anyLines(line.substr(first + 1, second - first - 1)), anyLines(line.substr(second + 1))});
  }
  return lines;
}

std::string wholeTextsBytes(const std::vector<WholeText>& lines) {
  std::string bytes;
  for (const WholeText& line : lines) bytes += line.field + "\t" + oneLine(line.held) + "\t" + oneLine(line.whole) + "\n";
  return bytes;
}

void makeWhole(DiscTexts& texts, const std::vector<WholeText>& lines) {
  if (lines.empty()) return;
  eachText(texts, [&](const std::string& field, std::string& text) {
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const WholeText& line) { return line.field == field && line.held == text; });
    if (found != lines.end()) text = found->whole;
  });
}

std::vector<WholeText> linesFor(const DiscTexts& texts) {
  std::vector<WholeText> lines;
  eachText(texts, [&](const std::string& field, const std::string& text) {
    if (!fitsWindows1252(text)) lines.push_back({field, asRead(text), wholeOf(field, text)});
  });
  return lines;
}

std::vector<WholeText> linesForBoth(const DiscTexts& fresh, const DiscTexts& held, const std::vector<WholeText>& old) {
  std::vector<WholeText> lines = linesFor(fresh);
  std::vector<WholeText> still;
  eachText(held, [&](const std::string& field, const std::string& text) {
    for (const WholeText& line : old) {
      if (line.field == field && line.held == text) still.push_back(line);
    }
  });
  eachText(fresh, [&](const std::string& field, const std::string& text) {
    if (has(still, field, asRead(text)) && !has(lines, field, asRead(text))) lines.push_back({field, asRead(text), wholeOf(field, text)});
  });
  lines.insert(lines.end(), still.begin(), still.end());
  return lines;
}

}  // namespace orvanta
