// Sound through PulseAudio, or PipeWire in its stead.
#pragma once

#include <memory>

#include "platform/sound/sound_output.h"

namespace orvanta {

/// More than half a second lies at the server, so that neither it nor we wake often. What of it was not heard yet is sent
/// anew when the level changes: a slider is heard at once. Without a server, another way to be heard.
class PulseOutputs : public SoundOutputs {
 public:
  explicit PulseOutputs(std::unique_ptr<SoundOutputs> instead);
  ~PulseOutputs() override;
  std::unique_ptr<SoundOutput> make(SampleFeed& feed, bool afterFailure) override;
  bool canSound() override;

 private:
  class Connection;
  class Stream;
  std::unique_ptr<Stream> streamOver(SampleFeed& feed);
  std::unique_ptr<SoundOutputs> instead_;
  std::shared_ptr<Connection> connection_;  ///< kept from stream to stream
};

}  // namespace orvanta
