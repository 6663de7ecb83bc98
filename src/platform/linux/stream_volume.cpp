// level.dat: left and right, 0 to 65535, as two numbers on a line.
#include "platform/linux/stream_volume.h"

#include <fstream>

namespace orvanta {

namespace {

constexpr int kNoSuchDevice = 2;

}  // namespace

StreamVolume::StreamVolume(Level& level, std::string path) : level_(level), path_(std::move(path)) {
  std::ifstream file(path_);
  uint32_t left = 0;
  uint32_t right = 0;
  if (file >> left >> right && left <= Level::kFull && right <= Level::kFull) volume_ = right << 16U | left;
  level_.set(static_cast<uint16_t>(volume_), static_cast<uint16_t>(volume_ >> 16U));
}

AuxCaps StreamVolume::caps(int device) const { return device == 0 ? AuxCaps{0, "CD Audio"} : AuxCaps{kNoSuchDevice, ""}; }

AuxReading StreamVolume::volume(int device) const { return device == 0 ? AuxReading{0, volume_} : AuxReading{kNoSuchDevice, 0}; }

int StreamVolume::setVolume(int device, uint32_t volume) {
  if (device != 0) return kNoSuchDevice;
  volume_ = volume;
  const auto left = static_cast<uint16_t>(volume);
  const auto right = static_cast<uint16_t>(volume >> 16U);
  level_.set(left, right);
  if (!path_.empty()) std::ofstream(path_, std::ios::trunc) << left << ' ' << right << '\n';
  return 0;
}

}  // namespace orvanta
