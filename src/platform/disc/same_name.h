// Whether two file names mean the same to a person.
#pragma once

#include <string_view>

namespace orvanta {

/// Equal but for the case of ASCII letters, and for accented letters (Latin, Greek, Cyrillic, kana, Hangul) being
/// one character or a letter and its marks: systems differ in which of the two they write.
bool sameName(std::string_view a, std::string_view b);

}  // namespace orvanta
