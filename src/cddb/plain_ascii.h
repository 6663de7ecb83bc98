// Texts for the checkers of submissions, which take no byte above 126.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// Letters lose their marks, quotes and dashes become plain; what has no likeness becomes "?".
std::string plainAscii(std::string_view text);

}  // namespace orvanta
