// Plain text helpers of the core. Text is UTF-8; only ASCII letters change case here, which is
// all that command words, file endings and key names need.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Without blanks (ASCII 32 only) at both ends.
std::string_view trim(std::string_view text);

/// ASCII letters in upper case, everything else as it is.
std::string upper(std::string_view text);

bool equalsNoCase(std::string_view a, std::string_view b);
bool startsWithNoCase(std::string_view text, std::string_view start);
bool endsWithNoCase(std::string_view text, std::string_view end);

/// The number that a text starts with, blanks skipped; 0 when there is none. "4:18" gives 4.
double leadingNumber(std::string_view text);

/// `digits` places at least, zero-padded. Negative values keep their sign before the padding.
std::string padded(long value, int digits);

std::vector<std::string> splitLines(std::string_view text);

/// `folder` and `name` with one "/" between them; `name` alone when `folder` is empty.
std::string joinPath(std::string_view folder, std::string_view name);

}  // namespace orvanta
