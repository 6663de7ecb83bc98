// Outputs by name.
#include "platform/sound/sound_choice.h"

#include "platform/sound/clocked_output.h"
#include "platform/sound/cubeb_output.h"
#include "platform/sound/pulse_output.h"

namespace orvanta {

SoundSetup makeSound(const std::string& audio) {
  SoundSetup sound;
  if (audio == "default") {
    sound.outputs = std::make_unique<PulseOutputs>(std::make_unique<CubebOutputs>());
    return sound;
  }
  if (audio.rfind("file:", 0) == 0) sound.wav = std::make_unique<WavFile>(audio.substr(5));
  sound.outputs = std::make_unique<ClockedOutputs>(sound.wav.get(), Pace::RealTime);
  return sound;
}

}  // namespace orvanta
