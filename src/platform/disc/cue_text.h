// The bytes of a sheet as text.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// UTF-8 from UTF-8, from UTF-16 in either order, or from Windows-1252. A byte order mark tells, and goes; without one,
/// zero bytes tell UTF-16.
std::string cueText(std::string_view bytes);

}  // namespace orvanta
