// Servers put several exact matches into one 200 at the level that is spoken here; a list is always of
// inexact ones.
#include "cddb/matches.h"

#include <algorithm>

#include "base/text.h"
#include "cddb/wire_text.h"

namespace orvanta {

namespace {

constexpr int kExactMatch = 200;
constexpr int kInexactMatches = 211;
constexpr size_t kIdLength = 8;
constexpr size_t kGap = 100;         ///< blanks before a row's id
constexpr size_t kFramingLines = 2;  ///< of a list: its first line, and the line "."

struct Lines {
  std::vector<std::string_view> kept;
  size_t count = 0;
};

/// Whole lines, cleaned, their CR still at the end; a tail without a line feed is dropped.
Lines cutLines(std::string_view reply, size_t most) {
  Lines lines;
  reply = trim(reply);
  for (auto end = reply.find('\n'); end != std::string_view::npos; end = reply.find('\n')) {
    if (lines.kept.size() < most) lines.kept.push_back(cleanStart(reply.substr(0, end)));
    ++lines.count;
    reply.remove_prefix(end + 1);
  }
  return lines;
}

/// What goes back to the server in a command: a word of ours, whatever it sent.
std::string plain(std::string_view bytes) {
  std::string text(bytes);
  for (char& c : text) {
    if (c < ' ' || c > '~') c = '?';
  }
  return text;
}

std::string_view withoutLast(std::string_view text) { return text.substr(0, text.empty() ? 0 : text.size() - 1); }

/// "200 misc 940c700b Artist / Title" CR.
std::string exactRow(std::string_view line) {
  constexpr size_t kCode = 3;
  line = trim(line.substr(std::min(line.size(), kCode)));
  const auto blank = std::min(line.find(' '), line.size());
  const std::string category = capitalised(trim(line.substr(0, blank)));
  line = trim(line.substr(blank));
  const std::string_view discId = trim(line.substr(0, line.find(' ')));
  const std::string_view rest = trim(withoutLast(line));
  return matchRow(category, trim(rest.substr(std::min(rest.size(), kIdLength))), discId.substr(0, kIdLength));
}

/// "misc 940c700b Artist / Title" CR. The category keeps its blank, so that rows read "Misc  - ...".
std::string listedRow(std::string_view line) {
  const auto blank = line.find(' ');
  const size_t start = blank == std::string_view::npos ? 0 : blank + 1;
  const std::string_view discId = line.substr(start, kIdLength);
  const std::string_view title = line.substr(std::min(line.size(), start + kIdLength));
  return matchRow(capitalised(line.substr(0, start)), withoutLast(trim(title)), discId);
}

}  // namespace

QueryReply readQueryReply(std::string_view reply, const Road& road) {
  const Lines lines = cutLines(reply, road.replyLines);
  QueryReply result;
  if (lines.kept.empty()) return result;
  result.serverLine = lineAsText(lines.kept.front());
  const int code = replyCode(lines.kept.front());
  if (code == kExactMatch) {
    result.found = Found::Exact;
    result.total = 1;
    result.rows.push_back(exactRow(lines.kept.front()));
  } else if (code == kInexactMatches) {
    result.found = Found::Inexact;
    // A list so short that it lacks its last line still counts as one match.
    result.total = std::max(lines.count, kFramingLines + 1) - kFramingLines;
    for (size_t i = 1; i < lines.kept.size() && result.rows.size() < result.total; ++i) result.rows.push_back(listedRow(lines.kept[i]));
  }
  // A list that broke off before its first match offers nothing to wait for.
  if (result.rows.empty()) result.found = Found::Nothing;
  return result;
}

std::string matchRow(std::string_view category, std::string_view title, std::string_view discId) {
  constexpr size_t kLongestCategory = 100;
  return plain(category.substr(0, kLongestCategory)) + " - " + lineAsText(title) + std::string(kGap, ' ') + plain(discId);
}

Match matchOfRow(std::string_view row) {
  row = trim(row);
  const size_t idAt = row.size() < kIdLength ? 0 : row.size() - kIdLength;
  Match match{"", std::string(row.substr(idAt))};
  const std::string_view category = withoutLast(row.substr(0, std::min(row.find('-'), idAt)));
  for (const char c : trim(category)) match.category += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return match;
}

}  // namespace orvanta
