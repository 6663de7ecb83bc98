// Windows-1252, the code page of every file of the disc and settings families and of the wire.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

bool isUtf8(std::string_view bytes);

/// UTF-8 from Windows-1252; the five bytes that the page leaves open become U+FFFD.
std::string fromWindows1252(std::string_view bytes);

/// Windows-1252 from UTF-8. Latin letters that the page lacks lose their marks; all else that it
/// lacks, and broken UTF-8, becomes "?".
std::string toWindows1252(std::string_view text);

/// True when toWindows1252() keeps every character.
bool fitsWindows1252(std::string_view text);

}  // namespace orvanta
