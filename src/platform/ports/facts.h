// What the program is and what it runs on, as it stands now.
#pragma once

#include <string>

namespace orvanta {

struct Facts {
  std::string version;
  std::string system;   ///< the host's own name of itself
  std::string toolkit;  ///< what draws the windows, and where
  std::string sound;    ///< the road that sound takes
  std::string drive;
};

class FactSource {
 public:
  virtual ~FactSource() = default;
  virtual Facts facts() const = 0;
};

}  // namespace orvanta
