// level.dat and tray.dat: what anybody left there.
#include <cstdlib>

#include "platform/disc/image_drive.h"
#include "platform/sound/stream_volume.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto level = orvanta::levelOf(bytes);
  if (level && orvanta::levelOf(std::to_string(*level & 0xFFFFU) + " " + std::to_string(*level >> 16U)) != level) std::abort();
  const std::string image = orvanta::rememberedImage(bytes, "/drive");
  if (!image.empty() && bytes.rfind("/drive", 0) != 0) std::abort();
  if (image.find('\n') != std::string::npos) std::abort();
  return 0;
}
