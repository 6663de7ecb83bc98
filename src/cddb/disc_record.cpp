// Titles are numbered by their order, so that gaps close; keys only tell where a title goes on.
#include "cddb/disc_record.h"

#include <algorithm>

#include "base/text.h"
#include "cddb/wire_text.h"

namespace orvanta {

namespace {

/// What stands behind the first "="; "" without one.
std::string_view valueOf(std::string_view line) {
  const auto equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
}

/// Adds what there is room for, whole characters.
void add(std::string& text, std::string_view more, size_t most) {
  const auto amidCharacter = [&](size_t at) { return at < more.size() && (static_cast<unsigned char>(more[at]) & 0xC0U) == 0x80U; };
  size_t fits = std::min(more.size(), most - std::min(most, text.size()));
  while (amidCharacter(fits)) --fits;
  text += more.substr(0, fits);
}

/// `\t` and `\\` as two blanks, `\n` as a line break.
std::string unescaped(std::string_view text) {
  std::string result;
  for (size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
    if (next != 't' && next != '\\' && next != 'n') {
      result += text[i];
      continue;
    }
    result += next == 'n' ? "\r\n" : "  ";
    ++i;
  }
  return result;
}

class Reader {
 public:
  Reader(const Road& road, DiscRecord& record) : road_(road), record_(record) {
    record.title.clear();
    record.notes.clear();
    record.count = 0;
    record.hasExtended = false;
  }

  void line(std::string_view bytes) {
    std::string clean = withoutControls(trim(bytes));
    std::string_view text = road_.trimsValues ? std::string_view(clean) : trim(clean);
    if (startsWithNoCase(text, "DTITLE=")) {
      discTitle(text);
    } else if (pastTitle_) {
      other(text);
    }
  }
  bool ended() const { return ended_; }

  void finish() {
    if (record_.hasExtended) {
      for (size_t track = 1; track <= record_.count; ++track) record_.extended[track] = unescaped(trim(record_.extended[track]));
    }
    if (!notes_.empty()) record_.notes = unescaped(notes_) + "\r\n";
  }

 private:
  void discTitle(std::string_view line) {
    add(record_.title, trim(valueOf(line)), DiscRecord::kMostTitle);
    record_.title = std::string(cleanStart(record_.title));
    pastTitle_ = true;
  }

  void other(std::string_view line) {
    const std::string kind = upper(line.substr(0, 4));
    if (kind == "TTIT") {
      trackTitle(line);
    } else if (kind == "EXTD") {
      add(notes_, kept(valueOf(line)), DiscRecord::kMostText);
    } else if (kind == "EXTT") {
      trackText(line);
    } else if (kind == "PLAY") {
      ended_ = !road_.unknownLineEnds;
    } else {
      ended_ = road_.unknownLineEnds;
    }
  }

  void trackTitle(std::string_view line) {
    const std::string key(line.substr(0, line.find('=')));
    const bool goesOn = key == key_ && record_.count > 0;
    key_ = key;
    if (!goesOn && record_.count == DiscRecord::kMostTracks) {
      full_ = true;
    } else if (!goesOn) {
      record_.titles[++record_.count].clear();
    }
    if (!full_) add(record_.titles[record_.count], kept(valueOf(line)), DiscRecord::kMostTitle);
  }

  void trackText(std::string_view line) {
    constexpr size_t kNumber = 4;
    const double track = leadingNumber(line.substr(std::min(line.size(), kNumber))) + 1;
    if (track < 1 || track > DiscRecord::kMostTracks) return;
    const std::string_view value = kept(valueOf(line));
    add(record_.extended[static_cast<size_t>(track)], value, DiscRecord::kMostText);
    if (!value.empty()) record_.hasExtended = true;
  }

  std::string_view kept(std::string_view value) const { return road_.trimsValues ? trim(value) : value; }

  const Road& road_;
  DiscRecord& record_;
  std::string notes_;
  std::string key_;  ///< of the last title
  bool pastTitle_ = false;
  bool full_ = false;
  bool ended_ = false;
};

}  // namespace

void readRecord(std::string_view bytes, const Road& road, DiscRecord& record) {
  const std::string whole = fromWire(bytes);
  Reader reader(road, record);
  for (std::string_view rest = whole; !rest.empty() && !reader.ended();) {
    const auto end = std::min(rest.find('\n'), rest.size());
    reader.line(rest.substr(0, end));
    rest.remove_prefix(std::min(rest.size(), end + 1));
  }
  reader.finish();
}

Naming namingOf(std::string_view discTitle) {
  discTitle = trim(discTitle);
  const auto slash = discTitle.find('/');
  if (slash == std::string_view::npos) return {std::string(discTitle), std::string(discTitle)};
  return {std::string(trim(discTitle.substr(0, slash))), std::string(trim(discTitle.substr(slash + 1)))};
}

std::string yearIn(std::string_view text, int thisYear) {
  constexpr size_t kDigits = 4;
  constexpr int kBefore = 1900;
  for (size_t i = 0; i + kDigits <= text.size(); ++i) {
    const double value = leadingNumber(text.substr(i, kDigits));
    if (value > kBefore && value <= thisYear) return std::string(trim(text.substr(i, kDigits)));
  }
  return {};
}

}  // namespace orvanta
