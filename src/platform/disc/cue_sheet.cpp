// A sheet is read line by line: FILE and TRACK open a context, the others fill it.
#include "platform/disc/cue_sheet.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "base/foreign_text.h"
#include "base/text.h"
#include "platform/disc/image_path.h"
#include "platform/disc/toc.h"

namespace orvanta {

namespace {

std::string_view withoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// Takes one word, or one quoted text, off the front.
std::string_view takeWord(std::string_view& line) {
  line = withoutBlanks(line);
  if (line.empty()) return {};
  const bool quoted = line.front() == '"';
  if (quoted) line.remove_prefix(1);
  const auto end = quoted ? line.find('"') : line.find_first_of(" \t");
  const std::string_view word = line.substr(0, end);
  line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
  return word;
}

/// A text is the rest of its line, without the outermost quotes: it may hold quotes itself, and blanks without any.
std::string textOf(std::string_view line) {
  line = withoutBlanks(line);
  if (!line.empty() && line.front() == '"') {
    line.remove_prefix(1);
    line = line.substr(0, line.rfind('"'));
  }
  return std::string(withoutBlanks(withoutControls(line)));
}

std::optional<int> number(std::string_view text, int most) {
  int value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size() || value < 0 || value > most) return std::nullopt;
  return value;
}

/// "mm:ss:ff" in frames.
std::optional<int> frames(std::string_view text) {
  const auto first = text.find(':');
  const auto second = first == std::string_view::npos ? first : text.find(':', first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const auto m = number(text.substr(0, first), 999);
  const auto s = number(text.substr(first + 1, second - first - 1), 59);
  const auto f = number(text.substr(second + 1), kFramesPerSecond - 1);
  if (!m || !s || !f) return std::nullopt;
  return framesOf({*m, *s, *f});
}

struct TrackType {
  std::string_view name;
  int sectorBytes;
  bool data;
};
constexpr std::array<TrackType, 8> kTrackTypes = {{{"AUDIO", 2352, false},
                                                   {"CDG", 2448, false},
                                                   {"MODE1/2048", 2048, true},
                                                   {"MODE1/2352", 2352, true},
                                                   {"MODE2/2336", 2336, true},
                                                   {"MODE2/2352", 2352, true},
                                                   {"CDI/2336", 2336, true},
                                                   {"CDI/2352", 2352, true}}};

constexpr const char* kNoSheet = "it is no CUE sheet; choose a CUE sheet, a file that ends in .cue";
constexpr const char* kEmpty = "it is empty";
constexpr size_t kLongestLine = 4096;  ///< bytes; no file system has longer paths

class Parser {
 public:
  explicit Parser(CueSheet& sheet) : sheet_(sheet) {}

  void line(std::string_view text) {
    const std::string word = upper(takeWord(text));
    if (word == "FILE") {
      file(text);
    } else if (word == "TRACK") {
      track(text);
    } else if (word == "INDEX") {
      index(text);
    } else if (word == "PREGAP" || word == "POSTGAP") {
      gap(word == "PREGAP", text);
    } else if (word == "CATALOG") {
      sheet_.catalog = textOf(text);
    } else if (word == "TITLE" || word == "PERFORMER") {
      texts(word == "TITLE", text);
    } else if (word == "REM") {
      // Makers of sheets put what the format has no word for into remarks.
      const std::string what = upper(takeWord(text));
      ofDisc(what, text);
    } else if (word == "GENRE" || word == "DATE") {
      ofDisc(word, text);
    } else if (word == "ISRC" && !sheet_.tracks.empty()) {
      sheet_.tracks.back().isrc = takeWord(text);
    }
  }

  void refuse(const std::string& why) {
    if (sheet_.error.empty()) sheet_.error = why;
  }

 private:
  static std::string trackName(int number) { return "track " + std::to_string(number); }

  void file(std::string_view text) {
    // A name without quotes may hold blanks: the type is the last word of the line.
    text = withoutBlanks(text);
    std::string name;
    if (!text.empty() && text.front() == '"') {
      // A name may hold quotes: the last one of the line ends it.
      const auto last = text.rfind('"');
      if (last == 0) return refuse("the name of a file has no closing quote");
      name = text.substr(1, last - 1);
      text.remove_prefix(last + 1);
    } else {
      const auto blank = text.find_last_of(" \t");
      name = withoutBlanks(text.substr(0, blank));
      text = blank == std::string_view::npos ? std::string_view{} : text.substr(blank);
    }
    const std::string type = upper(takeWord(text));
    if (sheet_.files.size() == kMaxTracks) return refuse("it names more files than a disc has tracks");
    if (type == "BINARY") {
      sheet_.files.push_back({name, CueFileType::Binary});
    } else if (type == "MOTOROLA") {
      sheet_.files.push_back({name, CueFileType::Motorola});
    } else if (type == "WAVE" || type == "FLAC" || type == "AIFF") {
      sheet_.files.push_back({name, CueFileType::Sound});
    } else {
      refuse("files of the type " + inQuotes(type) + " cannot be played");
    }
  }

  void track(std::string_view text) {
    const auto place = number(takeWord(text), kMaxTracks);
    const std::string type = upper(takeWord(text));
    const auto* found = std::find_if(kTrackTypes.begin(), kTrackTypes.end(), [&](const TrackType& t) { return t.name == type; });
    if (sheet_.files.empty()) return refuse("a track stands before the first file");
    if (!place || *place != static_cast<int>(sheet_.tracks.size()) + 1) return refuse("the tracks are not numbered from 1 to 99 in order");
    if (found == kTrackTypes.end()) return refuse(trackName(*place) + " is of the unknown type " + inQuotes(type));
    CueTrack made;
    made.number = *place;
    made.sectorBytes = found->sectorBytes;
    made.data = found->data;
    made.file = sheet_.files.size() - 1;
    sheet_.tracks.push_back(made);
  }

  void index(std::string_view text) {
    if (sheet_.tracks.empty()) return refuse("an index stands before the first track");
    CueTrack& track = sheet_.tracks.back();
    const auto place = number(takeWord(text), 99);
    const auto at = frames(takeWord(text));
    if (!place || !at) return refuse(trackName(track.number) + " has an index that cannot be read");
    if (track.indexes.empty()) track.file = sheet_.files.size() - 1;
    if (track.file != sheet_.files.size() - 1) {
      // The gap before a track may be the end of the file before: the track begins with index 1.
      if (*place != 1 || track.indexes.size() != 1 || track.indexes.front().number != 0) {
        return refuse(trackName(track.number) + " goes over more than one file");
      }
      track.indexes.clear();
      track.file = sheet_.files.size() - 1;
    }
    const bool onwards = track.indexes.empty() || (*place > track.indexes.back().number && *at >= track.indexes.back().frame);
    if (!onwards) return refuse(trackName(track.number) + " has indexes that go backwards");
    track.indexes.push_back({*place, *at});
  }

  void gap(bool before, std::string_view text) {
    const auto length = frames(takeWord(text));
    if (sheet_.tracks.empty() || !length) return refuse("a gap cannot be read");
    (before ? sheet_.tracks.back().pregap : sheet_.tracks.back().postgap) = *length;
  }

  /// The first one counts: a track's own comes later.
  void ofDisc(std::string_view what, std::string_view text) {
    std::string* const place = what == "GENRE" ? &sheet_.genre : what == "DATE" ? &sheet_.date : nullptr;
    if (place != nullptr && place->empty()) *place = textOf(text);
  }

  void texts(bool title, std::string_view text) {
    const std::string value = textOf(text);
    if (sheet_.tracks.empty()) {
      (title ? sheet_.title : sheet_.performer) = value;
    } else {
      (title ? sheet_.tracks.back().title : sheet_.tracks.back().performer) = value;
    }
  }

  CueSheet& sheet_;
};

bool hasStart(const CueTrack& track) {
  return std::any_of(track.indexes.begin(), track.indexes.end(), [](const CueIndex& index) { return index.number == 1; });
}

}  // namespace

CueSheet parseCue(std::string_view bytes) {
  CueSheet sheet;
  Parser parser(sheet);
  const std::vector<std::string> lines = splitLines(foreignText(bytes));
  for (size_t i = 0; i < lines.size() && sheet.error.empty(); ++i) {
    if (lines[i].size() > kLongestLine) {
      const bool noSheet = sheet.files.empty() && !startsWithNoCase(lines[i], "FILE");
      parser.refuse(noSheet ? kNoSheet : "line " + std::to_string(i + 1) + " is longer than any line of a sheet");
    }
    parser.line(lines[i]);
  }
  const bool empty = std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
  if (sheet.tracks.empty()) parser.refuse(empty ? kEmpty : sheet.files.empty() ? kNoSheet : "it holds no tracks");
  for (const CueTrack& track : sheet.tracks) {
    if (!hasStart(track)) parser.refuse("track " + std::to_string(track.number) + " has no INDEX 01");
  }
  return sheet;
}

SheetTexts textsOf(const CueSheet& sheet) {
  SheetTexts texts{sheet.title, sheet.performer, sheet.genre, sheet.date, sheet.catalog, {}};
  for (const CueTrack& track : sheet.tracks) texts.tracks.push_back({track.title, track.performer});
  const bool silent = std::all_of(texts.tracks.begin(), texts.tracks.end(), [](const auto& track) { return track == SheetTexts::Track{}; });
  if (silent) texts.tracks.clear();
  return texts;
}

}  // namespace orvanta
