// A disc's table of contents as servers are told of it, and the id that they answer with. No id is worked
// out here: the server's is the only one there is.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Tables by track number, from 1; what they lack counts as 0.
struct TrackTable {
  int tracks = 0;
  std::span<const std::string> lengths;  ///< "m:ss"
  std::span<const int32_t> frames;       ///< [0]: start of the disc in frames; [t]: frames part of t's length
};

struct TocFrames {
  std::vector<int64_t> offsets;  ///< of each track, in frames
  int64_t seconds = 0;           ///< of the disc
};

TocFrames tocFrames(const TrackTable& table);

/// Track count, offsets, seconds of the disc: "3 150 18627 41002 812".
std::string tocText(const TrackTable& table, char separator);

/// The id out of the reply to `discid`: the last whole line's eight characters before its CR. Of a
/// refusal these are the tail of its words; "" without a whole line.
std::string discIdOf(std::string_view reply);

/// What discIdOf() makes of "incorrect number of arguments.": the server did not take the table.
inline constexpr std::string_view kTableRefused = "guments.";

}  // namespace orvanta
