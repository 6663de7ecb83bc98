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

/// The first `count` characters of UTF-8 text; never half a character.
std::string_view firstCharacters(std::string_view text, size_t count);

/// Characters of UTF-8 text.
size_t characterCount(std::string_view text);

/// Characters below 32 as blanks; with `keepBreaks` CR and LF stay.
std::string withoutControls(std::string_view text, bool keepBreaks = false);

/// Rows of at most `width` characters, broken at the last blank that fits and trimmed; a word that is
/// longer is cut.
std::vector<std::string> wrapWords(std::string_view text, size_t width);

/// Every line end as CR LF, whatever it was.
std::string withCrLf(std::string_view text);

/// The arguments of a stored command line: one program if a file of that whole name exists
/// (`wholeExists`), else split at blanks outside double quotes. Nothing is expanded.
std::vector<std::string> splitCommand(std::string_view command, bool wholeExists);

std::vector<std::string> splitLines(std::string_view text);

/// `folder` and `name` with one "/" between them; `name` alone when `folder` is empty.
std::string joinPath(std::string_view folder, std::string_view name);

}  // namespace orvanta
