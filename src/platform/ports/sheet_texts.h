// What a disc tells about itself: the texts that came with it, beside those that the user keeps.
#pragma once

#include <string>
#include <vector>

namespace orvanta {

/// UTF-8, one line each, "" for what the disc does not tell.
struct SheetTexts {
  struct Track {
    std::string title;
    std::string performer;
    bool operator==(const Track&) const = default;
  };

  std::string title;
  std::string performer;
  std::string genre;
  std::string date;           ///< as written, most often a year
  std::string catalog;        ///< thirteen digits, as a rule
  std::vector<Track> tracks;  ///< one for each track of the disc, in order; none at all where no track has a text

  bool empty() const { return *this == SheetTexts{}; }
  bool operator==(const SheetTexts&) const = default;
};

}  // namespace orvanta
