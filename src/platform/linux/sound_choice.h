// Which drive and which sound a command line asks for.
#pragma once

#include <memory>
#include <string>

#include "platform/linux/sound_output.h"
#include "platform/linux/wav_file.h"

namespace orvanta {

/// A drive path that names a device; any other is a folder with disc images.
bool isDevice(const std::string& drivePath);

struct SoundSetup {
  std::unique_ptr<WavFile> wav;
  std::unique_ptr<SoundOutputs> outputs;
};

/// "default", "null" or "file:PATH".
SoundSetup makeSound(const std::string& audio);

}  // namespace orvanta
