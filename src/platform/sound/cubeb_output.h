// Sound through libcubeb: ALSA, or whatever else it knows, where no PulseAudio or PipeWire is there.
#pragma once

#include <memory>

#include "platform/sound/sound_output.h"

namespace orvanta {

/// Streams of the desktop's sound. Where there is no sound card or server, and after one died that
/// cannot be opened again, the clock plays on to nobody.
class CubebOutputs : public SoundOutputs {
 public:
  CubebOutputs();
  ~CubebOutputs() override;
  std::unique_ptr<SoundOutput> make(SampleFeed& feed, bool afterFailure) override;
  bool canSound() override;

 private:
  struct Context;
  void connect();
  std::unique_ptr<Context> context_;
};

}  // namespace orvanta
