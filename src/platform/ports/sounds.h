// Short interface sounds.
#pragma once

#include <string>

namespace orvanta {

class Sounds {
 public:
  virtual ~Sounds() = default;
  /// Plays a WAV file beside everything else; a missing file is silent.
  virtual void play(const std::string& path) = 0;
};

}  // namespace orvanta
