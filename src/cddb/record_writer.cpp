// Servers take lines of few characters and records of few thousand: long texts are wrapped, and the tracks' texts give
// way first when the whole is too long.
#include "cddb/record_writer.h"

#include <algorithm>

#include "base/text.h"
#include "cddb/plain_ascii.h"

namespace orvanta {

namespace {

constexpr size_t kWidth = 70;
constexpr size_t kMostCharacters = 8000;
constexpr const char* kBreak = "\\n";  ///< a line break within a value

std::string clean(std::string_view text) { return std::string(trim(withoutControls(plainAscii(text)))); }

/// Pieces of at most kWidth, cut at blanks, which go; a stretch without one is cut as it is.
std::vector<std::string> wrapped(std::string_view text) {
  std::vector<std::string> pieces;
  text = trim(text);
  // The first piece may be followed by its blank, the others end with it.
  for (size_t reach = kWidth + 1; text.size() >= kWidth; reach = kWidth) {
    const auto blank = text.substr(0, reach).rfind(' ');
    const bool found = blank != std::string_view::npos && blank > 0;
    const size_t cut = found ? blank : kWidth;
    pieces.emplace_back(trim(text.substr(0, cut)));
    text.remove_prefix(std::min(text.size(), found ? cut + 1 : cut));
  }
  if (!text.empty()) pieces.emplace_back(text);
  return pieces;
}

/// Lines as they were typed, where all are short; what follows the last break does not count. Else one wrapped text.
std::vector<std::string> notePieces(std::string_view typed) {
  const std::string notes = withCrLf(plainAscii(trim(typed)));
  std::vector<std::string> pieces;
  std::string_view rest = notes;
  for (auto end = rest.find("\r\n"); end != std::string_view::npos; end = rest.find("\r\n")) {
    pieces.push_back(withoutControls(rest.substr(0, end)));
    rest.remove_prefix(end + 2);
  }
  const bool fit = std::all_of(pieces.begin(), pieces.end(), [](const std::string& piece) { return piece.size() < kWidth; });
  return !pieces.empty() && fit ? pieces : wrapped(withoutControls(notes));
}

class Writer {
 public:
  void line(const std::string& text) { text_.append(text).append("\r\n"); }

  void head(const std::string& discId, const TocFrames& toc) {
    line("# xmcd database file");
    line("#");
    line("# Track frame offsets:");
    for (const int64_t offset : toc.offsets) line("#" + std::to_string(offset));
    line("#");
    line("# Disc length: " + std::to_string(toc.seconds) + " seconds");
    line("# Submitted via: Orvanta 10.0");
    line("#");
    line("DISCID=" + discId);
  }

  void discTitle(const std::string& artist, const std::string& title) {
    const std::string key = "DTITLE=";
    const std::string whole = key + artist + " / " + title;
    line(whole.substr(0, kWidth));
    if (whole.size() > kWidth) line(key + whole.substr(kWidth));
  }

  void extended(const Submission& disc) {
    constexpr size_t kShortest = 4;
    const std::string key = "EXTD=";
    bool written = false;
    for (const std::string& piece : notePieces(disc.notes)) {
      line(key + (written ? kBreak : "") + piece);
      written = true;
    }
    const std::string label = clean(disc.label);
    const std::string composer = clean(disc.composer);
    if (label.size() >= kShortest) {
      line(key + (written ? kBreak : "") + label.substr(0, kWidth + 1));
      written = true;
    }
    if (composer.size() >= kShortest) line(key + (written ? kBreak : "") + composer.substr(0, kWidth + 1));
    if (!written) line(key);
  }

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

/// How much of a track's text goes along, from all of it to nothing.
enum class Room { Whole, EightSlices, OneSlice, None };

std::string trackText(size_t track, const std::string& text, Room room) {
  constexpr size_t kSlices = 8;
  const std::string key = "EXTT" + std::to_string(track) + "=";
  if (text.empty() || room == Room::None) return key + "\r\n";
  if (room == Room::Whole && text.size() < kWidth - 1) return key + text + kBreak + "\r\n";
  std::string lines;
  if (room == Room::Whole) {
    for (const std::string& piece : wrapped(text)) lines += key + piece + kBreak + "\r\n";
    return lines;
  }
  for (size_t slice = 0; slice < (room == Room::OneSlice ? 1 : kSlices); ++slice) {
    const size_t from = std::min(text.size(), slice * kWidth);
    lines += key + text.substr(from, kWidth) + kBreak + "\r\n";
  }
  return lines;
}

std::string trackTexts(const Submission& disc, Room room) {
  std::string lines;
  for (size_t track = 0; track < disc.titles.size(); ++track) {
    lines += trackText(track, track < disc.texts.size() ? clean(disc.texts[track]) : "", room);
  }
  return lines;
}

bool isId(const std::string& text) {
  constexpr size_t kLength = 8;
  const bool word = std::all_of(text.begin(), text.end(),
                                [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
  return text.size() == kLength && word && text != "00000000";
}

}  // namespace

std::optional<std::string> writeRecord(const Submission& disc, const TocFrames& toc) {
  if (!isId(disc.discId)) return std::nullopt;
  Writer out;
  out.head(disc.discId, toc);
  out.discTitle(clean(disc.artist), clean(disc.title));
  for (size_t track = 0; track < disc.titles.size(); ++track) {
    out.line("TTITLE" + std::to_string(track) + "=" + std::string(trim(clean(disc.titles[track]).substr(0, kWidth))));
  }
  out.extended(disc);
  std::string texts;
  for (const Room room : {Room::Whole, Room::EightSlices, Room::OneSlice, Room::None}) {
    texts = trackTexts(disc, room);
    if (out.text().size() + texts.size() <= kMostCharacters) break;
  }
  return out.text() + texts + "PLAYORDER=\r\n";
}

}  // namespace orvanta
