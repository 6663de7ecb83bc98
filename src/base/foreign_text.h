// Text that others wrote: sheets, lists and names of discs.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// UTF-8 from UTF-8, from UTF-16 in either order, or from Windows-1252. A byte order mark tells, and goes; without one,
/// zero bytes tell UTF-16.
std::string foreignText(std::string_view bytes);

/// UTF-8 from UTF-16; half a pair, and half a unit at the end, become U+FFFD or nothing.
std::string fromUtf16(std::string_view bytes, bool bigEndian);

}  // namespace orvanta
