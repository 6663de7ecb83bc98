// The reply to `cddb query`: what servers hold for the disc, and the rows that a user picks from.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cddb/road.h"

namespace orvanta {

/// One disc that a server holds. The bytes of category and id go back to it as they came.
struct Match {
  std::string category;
  std::string discId;
  bool operator==(const Match&) const = default;
};

enum class Found { Nothing, Exact, Inexact };

struct QueryReply {
  Found found = Found::Nothing;
  std::vector<std::string> rows;  ///< for the list of matches
  size_t total = 0;               ///< matches that the server told of; the list may hold fewer
  std::string serverLine;         ///< the reply's first line as text, for logs and boxes
};

QueryReply readQueryReply(std::string_view reply, const Road& road);

/// Category, " - ", title, a gap that puts the id out of sight, the id.
std::string matchRow(std::string_view category, std::string_view title, std::string_view discId);
Match matchOfRow(std::string_view row);

}  // namespace orvanta
