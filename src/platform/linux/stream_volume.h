// The sound board's one line, "CD Audio": the level of our own stream, kept in a file so that it outlives
// the process.
#pragma once

#include <string>

#include "platform/linux/level.h"
#include "platform/ports/aux_volume.h"

namespace orvanta {

class StreamVolume : public AuxVolume {
 public:
  /// Takes the level of the file, full without one. "" keeps it for this process alone.
  StreamVolume(Level& level, std::string path);

  int devices() const override { return 1; }
  AuxCaps caps(int device) const override;
  AuxReading volume(int device) const override;
  int setVolume(int device, uint32_t volume) override;

 private:
  Level& level_;
  std::string path_;
  uint32_t volume_ = 0xFFFFFFFF;
};

}  // namespace orvanta
