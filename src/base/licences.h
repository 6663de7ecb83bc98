// What the program is made of, and under which licences: for --version and the About box.
#pragma once

#include <string>

namespace orvanta {

struct Licence {
  const char* what;
  const char* how;  ///< it comes to us; "" for what is our own
  const char* licence;
  const char* address;  ///< of the licence's text
};

inline constexpr Licence kLicences[] = {
    {"Orvanta LX", "", "MIT licence", "https://opensource.org/license/mit"},
    {"Qt 6", "linked dynamically", "LGPL-3.0", "https://www.gnu.org/licenses/lgpl-3.0.html"},
    {"libxcb", "linked dynamically", "MIT licence", "https://opensource.org/license/mit"},
    {"libsndfile", "loaded", "LGPL-2.1 or later", "https://www.gnu.org/licenses/old-licenses/lgpl-2.1.html"},
    {"libpulse", "loaded", "LGPL-2.1 or later", "https://www.gnu.org/licenses/old-licenses/lgpl-2.1.html"},
    {"libcubeb", "loaded", "ISC licence", "https://opensource.org/license/isc-license-txt"},
    {"DSEG7 Classic", "embedded font", "SIL Open Font Licence 1.1", "https://openfontlicense.org"},
    {"Roboto Condensed", "embedded font", "Apache Licence 2.0", "https://www.apache.org/licenses/LICENSE-2.0"},
};

/// "Qt 6 (linked dynamically)".
inline std::string nameAndUse(const Licence& licence) {
  const std::string how = licence.how;
  return licence.what + (how.empty() ? "" : " (" + how + ")");
}

}  // namespace orvanta
