// The facts of a disc as web page and print have them in common: captions in capitals, the window's values.
#pragma once

#include <string>
#include <vector>

#include "state/shared_state.h"
#include "windows/acdtabs.h"

namespace orvanta {

struct DiscFact {
  std::string caption;
  std::string value;
  bool always = false;            ///< shown on the page without a value too
  bool printed = true;            ///< the page's last rows have other places on paper
  std::string paperCaption = {};  ///< where it differs; "" for the same
};

std::vector<DiscFact> discFacts(const acdtabs& form, const DiscState& disc);

/// Lyrics of a row of List2, cut off where its number's width is taken to end.
std::string lyricsOfRow(const forms::ListBox& list, int row);

}  // namespace orvanta
