// The sound board's auxiliary lines; here one, "CD Audio": the level of our own stream.
#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

struct AuxReading {
  int error = 0;        ///< 0, else the number that the user is told
  uint32_t volume = 0;  ///< left in the low word, right in the high word, 0 to 65535 each
};

struct AuxCaps {
  int error = 0;     ///< as in AuxReading
  std::string name;  ///< the product's, at most 80 characters
};

class AuxVolume {
 public:
  virtual ~AuxVolume() = default;
  virtual int devices() const = 0;
  virtual AuxCaps caps(int device) const = 0;
  virtual AuxReading volume(int device) const = 0;
  /// 0, else an error number and the level stays.
  virtual int setVolume(int device, uint32_t volume) = 0;
  /// A level outlives the process; it is written down a moment after it was set. Now, for a process that reads it next.
  virtual void keep() {}
  /// Silence that will be lifted again: the level before it is the one that is kept. As setVolume(device, 0) else.
  virtual int mute(int device) { return setVolume(device, 0); }
};

}  // namespace orvanta
