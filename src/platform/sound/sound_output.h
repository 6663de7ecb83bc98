// Where sound goes: an output pulls sample pairs from a feed and knows how many were heard.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace orvanta {

/// What an output may hold unheard and ask for once more: 0.6 s.
constexpr size_t kMostHeldPairs = 26460;

/// The side that gives samples. Called from the output's own thread; never blocks.
class SampleFeed {
 public:
  virtual ~SampleFeed() = default;
  /// Up to `count` pairs; fewer when no more are there yet, or none will come.
  virtual size_t pull(int16_t* pairs, size_t count) = 0;
  /// The last `count` pairs once more, at the level of now; fewer where fewer were kept. While pull() does not run.
  virtual size_t again(int16_t* /*pairs*/, size_t /*count*/) { return 0; }
  /// No more will ever come.
  virtual bool finished() const = 0;
};

/// One stream; a seek or stop destroys it.
class SoundOutput {
 public:
  virtual ~SoundOutput() = default;
  virtual void pause() = 0;  ///< no sample is lost
  virtual void resume() = 0;
  /// The feed's level has changed: what was taken and not heard yet is taken once more, where that can be. From any thread.
  virtual void relevel() {}
  /// Pairs of the feed that were heard. Called from any thread, does not block.
  virtual uint64_t heard() const = 0;
  /// The sound server went away, or the device failed.
  virtual bool failed() const = 0;
  /// False for one that takes all it can get.
  virtual bool paced() const { return true; }
  /// What it goes through, by the name that users know.
  virtual const char* road() const { return "heard by nobody"; }
  /// It stands in for sound that cannot be had.
  virtual bool toNobody() const { return false; }
};

class SoundOutputs {
 public:
  virtual ~SoundOutputs() = default;
  /// A new stream over `feed`, pulling at once. `afterFailure`: the last one failed. Never nullptr.
  virtual std::unique_ptr<SoundOutput> make(SampleFeed& feed, bool afterFailure) = 0;
  /// Whether, after a stream to nobody, a new one would be heard. May take a moment.
  virtual bool canSound() { return false; }
};

}  // namespace orvanta
