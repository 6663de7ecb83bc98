// Which sound a command line asks for.
#pragma once

#include <memory>
#include <string>

#include "platform/sound/sound_output.h"
#include "platform/sound/wav_file.h"

namespace orvanta {

struct SoundSetup {
  std::unique_ptr<WavFile> wav;
  std::unique_ptr<SoundOutputs> outputs;
};

/// "default", "null" or "file:PATH".
SoundSetup makeSound(const std::string& audio);

}  // namespace orvanta
