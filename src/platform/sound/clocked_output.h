// An output that plays by the clock instead of a sound card, into nothing or into a WAV file.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "platform/sound/sound_output.h"

namespace orvanta {

class WavFile;

enum class Pace { RealTime, Unpaced };

class ClockedOutput : public SoundOutput {
 public:
  /// `wav` nullptr: samples are dropped. It outlives the output. `toNobody`: nobody chose it.
  ClockedOutput(SampleFeed& feed, WavFile* wav, Pace pace, bool toNobody = false);
  ~ClockedOutput() override;

  void pause() override;
  void resume() override;
  uint64_t heard() const override;
  bool failed() const override { return false; }
  bool paced() const override { return pace_ == Pace::RealTime; }
  bool toNobody() const override { return toNobody_; }

 private:
  using SteadyClock = std::chrono::steady_clock;
  void run();
  void pullTo(uint64_t target);
  uint64_t due() const;

  SampleFeed& feed_;
  WavFile* wav_;
  Pace pace_;
  bool toNobody_;
  std::thread thread_;
  mutable std::mutex mutex_;  ///< over the clock's fields below
  std::condition_variable wake_;
  bool quit_ = false;
  bool paused_ = false;
  SteadyClock::time_point since_;
  uint64_t before_ = 0;  ///< pairs due before `since_`
  std::atomic<uint64_t> pulled_{0};
};

/// The chosen output: a WAV file or nothing, by the clock. A file that cannot be written is no choice.
class ClockedOutputs : public SoundOutputs {
 public:
  ClockedOutputs(WavFile* wav, Pace pace) : wav_(wav), pace_(pace) {}
  std::unique_ptr<SoundOutput> make(SampleFeed& feed, bool afterFailure) override;

 private:
  WavFile* wav_;
  Pace pace_;
};

}  // namespace orvanta
