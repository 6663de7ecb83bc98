// Short sounds from WAV files, on a thread and a stream of their own.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include "platform/ports/sounds.h"
#include "platform/sound/sound_output.h"

namespace orvanta {

class WavePlayer : public Sounds {
 public:
  WavePlayer(SoundOutputs& outputs, std::function<void()> beep);
  /// A sound under way is heard out, for half a second at most.
  ~WavePlayer() override;

  void play(const std::string& path) override;
  void beep() override { beep_(); }

 private:
  void run();
  void sound(const std::string& path);

  SoundOutputs& outputs_;
  std::function<void()> beep_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::string next_;  ///< a newer one takes its place: presses that come fast sound once
  bool quit_ = false;
  std::thread thread_;
};

}  // namespace orvanta
