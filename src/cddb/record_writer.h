// A disc's record as it is submitted: text in, text out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cddb/toc_text.h"

namespace orvanta {

struct Submission {
  std::string discId;
  std::string artist;
  std::string title;
  std::string notes;  ///< with line breaks
  std::string label;
  std::string composer;
  std::vector<std::string> titles;  ///< from the first track on, one each
  std::vector<std::string> texts;   ///< of the tracks; may be fewer
};

/// Lines of CR LF, ASCII alone; what is too long for it is shortened. nullopt for an id that is none.
std::optional<std::string> writeRecord(const Submission& disc, const TocFrames& toc);

}  // namespace orvanta
