// Outputs by name.
#include "platform/linux/sound_choice.h"

#include "platform/linux/clocked_output.h"
#include "platform/linux/cubeb_output.h"

namespace orvanta {

bool isDevice(const std::string& drivePath) { return drivePath.rfind("/dev/", 0) == 0; }

SoundSetup makeSound(const std::string& audio) {
  SoundSetup sound;
  if (audio == "default") {
    sound.outputs = std::make_unique<CubebOutputs>();
    return sound;
  }
  if (audio.rfind("file:", 0) == 0) sound.wav = std::make_unique<WavFile>(audio.substr(5));
  sound.outputs = std::make_unique<ClockedOutputs>(sound.wav.get(), Pace::RealTime);
  return sound;
}

}  // namespace orvanta
