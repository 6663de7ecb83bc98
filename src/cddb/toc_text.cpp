// Offsets out of track lengths: whole seconds from their texts, frames from the drive's table.
#include "cddb/toc_text.h"

#include <algorithm>

#include "base/text.h"
#include "base/times.h"
#include "cddb/wire_text.h"

namespace orvanta {

namespace {

constexpr int kMostTracks = 100;

int64_t numberIn(std::string_view text) { return static_cast<int64_t>(leadingNumber(text)); }

/// "m:ss", and from six characters on "h:mm:ss".
int64_t secondsIn(std::string_view length) {
  constexpr size_t kWithHours = 6;
  length = trim(length);
  const std::string_view last = length.substr(length.size() < 2 ? 0 : length.size() - 2);
  if (length.size() < kWithHours) return 60 * numberIn(length) + numberIn(last);
  return 3600 * numberIn(length) + 60 * numberIn(length.substr(2, 2)) + numberIn(last);
}

}  // namespace

TocFrames tocFrames(const TrackTable& table) {
  const auto frames = [&](int track) {
    const auto at = static_cast<size_t>(track);
    return at < table.frames.size() ? int64_t{table.frames[at]} : 0;
  };
  const auto length = [&](int track) {
    const auto at = static_cast<size_t>(track);
    return (at < table.lengths.size() ? secondsIn(table.lengths[at]) : 0) * kFramesPerSecond + frames(track);
  };
  TocFrames toc;
  const int tracks = std::clamp(table.tracks, 0, kMostTracks);
  int64_t at = frames(0);
  for (int track = 1; track <= tracks; ++track) {
    toc.offsets.push_back(at);
    at += length(track);
  }
  // The drive tells the last track one frame short.
  toc.seconds = (at + 1) / kFramesPerSecond;
  return toc;
}

std::string tocText(const TrackTable& table, char separator) {
  const TocFrames toc = tocFrames(table);
  std::string text = std::to_string(toc.offsets.size()) + separator;
  for (const int64_t offset : toc.offsets) text += std::to_string(offset) + separator;
  return text + std::to_string(toc.seconds);
}

std::string discIdOf(std::string_view reply) {
  constexpr size_t kIdAndReturn = 9;
  const auto end = reply.rfind('\n');
  if (end == std::string_view::npos) return {};
  reply = reply.substr(0, end);
  const auto start = reply.rfind('\n');
  std::string_view line = cleanStart(start == std::string_view::npos ? reply : reply.substr(start + 1));
  if (line.size() > kIdAndReturn) line.remove_prefix(line.size() - kIdAndReturn);
  // It goes back to the server, on one line.
  return withoutControls(line.substr(0, kIdAndReturn - 1));
}

}  // namespace orvanta
