// What Qt knows of the host.
#pragma once

#include <string>

namespace orvanta {

/// "Debian GNU/Linux 12 (bookworm)".
std::string systemName();
/// "Qt 6.4.2 on X11".
std::string toolkitName();

}  // namespace orvanta
