// What stood in the CD Data window when the session ended under it, to be offered again: lines of "control<TAB>text", UTF-8.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace orvanta {

/// Names of controls, "List1(3)" for a row, and their texts.
using Draft = std::vector<std::pair<std::string, std::string>>;

/// What is no line of a draft is passed over.
Draft parseDraft(const std::string& bytes);
std::string draftBytes(const Draft& draft);

}  // namespace orvanta
