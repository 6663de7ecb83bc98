// The two roads to a CDDB server, and everything in which they differ. Both carry the same questions.
#pragma once

#include <cstddef>

namespace orvanta {

struct Road {
  char separator;        ///< between the parts of a command
  size_t replyLines;     ///< of a query's reply that are kept; more are counted, not kept
  bool readsSingle;      ///< one inexact match is retrieved without asking the user
  bool parksSingle;      ///< one inexact match in an automatic lookup brings the window into sight
  bool trimsValues;      ///< each title and text of a record loses its blanks
  bool unknownLineEnds;  ///< a line of a record that the parser does not know ends it, else it is skipped
};

/// A conversation over TCP, at the protocol level that asks for none: no years and genres in records.
inline constexpr Road kCddbpRoad{' ', 501, false, true, false, true};
/// A POST each question, at level 4.
inline constexpr Road kHttpRoad{'+', 101, true, false, true, false};

}  // namespace orvanta
