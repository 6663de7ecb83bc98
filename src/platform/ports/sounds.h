// Short interface sounds.
#pragma once

#include <string>

namespace orvanta {

class Sounds {
 public:
  virtual ~Sounds() = default;
  /// Plays a WAV file beside everything else; a missing file is silent.
  virtual void play(const std::string& path) = 0;
  /// The system's own sign that something cannot be had.
  virtual void beep() = 0;
};

}  // namespace orvanta
