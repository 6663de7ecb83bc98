// A disc's record as servers send it: lines "KEY=value", long values cut over several lines of one key.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "cddb/road.h"

namespace orvanta {

/// What the records of one visit left: each retrieval's titles take the place of the last one's, the
/// extended texts of a second retrieval are added to the first's.
struct DiscRecord {
  static constexpr size_t kMostTracks = 100;
  // Bytes that no honest record has: what a broken server sends beyond them is dropped, so that nothing stalls over it.
  static constexpr size_t kMostTitle = 1000;
  static constexpr size_t kMostText = 65536;  ///< as it came; line breaks grow in it
  std::string title;                          ///< "Artist / Title"
  std::string notes;                          ///< each line ends in CR LF
  size_t count = 0;                           ///< tracks that the last record named
  bool hasExtended = false;
  /// Worth saving: it names the disc and its tracks.
  bool tellsAnything() const { return count > 0 && title.find_first_not_of(' ') != std::string::npos; }

  std::array<std::string, kMostTracks + 1> titles;    ///< [1] to [count]
  std::array<std::string, kMostTracks + 1> extended;  ///< texts of the tracks, with CR LF
};

/// Reads a record into `record`, whatever the bytes are.
void readRecord(std::string_view bytes, const Road& road, DiscRecord& record);

/// Artist and title of "Artist / Title"; without a "/" both are the whole.
struct Naming {
  std::string artist;
  std::string title;
};
Naming namingOf(std::string_view discTitle);

/// The first year, from 1901 to `thisYear`, that four digits of a text make; "" for none.
std::string yearIn(std::string_view text, int thisYear);

}  // namespace orvanta
