// A sound output whose time a test moves by hand, and that keeps all it was given.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/disc/toc.h"
#include "platform/sound/sound_output.h"

namespace orvanta::test {

class SteppedOutputs : public SoundOutputs {
 public:
  std::unique_ptr<SoundOutput> make(SampleFeed& feed, bool afterFailure) override {
    const std::lock_guard lock(mutex_);
    ++streams;
    if (afterFailure) ++afterFailures;
    feed_ = &feed;
    heard_ = 0;
    paused_ = failing = false;
    toNobody = serverGone.load();
    return std::make_unique<Stream>(*this);
  }

  bool canSound() override {
    ++tries;
    return !serverGone;
  }

  /// Hears up to `pairs` more, waiting for the player's thread to bring them; returns how many. Less
  /// only when there is no stream, it has ended or is paused, or nothing came for five seconds.
  size_t hear(size_t pairs) {
    size_t done = 0;
    auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (done < pairs && std::chrono::steady_clock::now() < patience) {
      size_t got = 0;
      {
        const std::lock_guard lock(mutex_);
        if (feed_ == nullptr || paused_) return done;
        const bool last = feed_->finished();
        const size_t at = samples.size();
        const size_t piece = std::min<size_t>(pairs - done, size_t{1} << 14);
        samples.resize(at + piece * 2);
        got = feed_->pull(samples.data() + at, piece);
        samples.resize(at + got * 2);
        heard_ += got;
        done += got;
        if (got == 0 && last) return done;
      }
      if (got > 0) {
        patience = std::chrono::steady_clock::now() + std::chrono::seconds(5);
      } else {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
      }
    }
    return done;
  }

  bool open() const {
    const std::lock_guard lock(mutex_);
    return feed_ != nullptr;
  }

  std::vector<int16_t> samples;
  size_t held = 0;  ///< pairs of them that were not heard yet when the level changes
  std::atomic<int> streams{0};
  std::atomic<int> afterFailures{0};
  std::atomic<bool> failing{false};
  std::atomic<bool> serverGone{false};  ///< new streams are heard by nobody
  std::atomic<bool> toNobody{false};    ///< the present one
  std::atomic<int> tries{0};

 private:
  class Stream : public SoundOutput {
   public:
    explicit Stream(SteppedOutputs& owner) : owner_(owner) {}
    ~Stream() override {
      const std::lock_guard lock(owner_.mutex_);
      owner_.feed_ = nullptr;
    }
    void pause() override { set(true); }
    void resume() override { set(false); }
    void relevel() override {
      const std::lock_guard lock(owner_.mutex_);
      std::vector<int16_t> pairs(owner_.held * 2);
      const size_t shorts = owner_.feed_->again(pairs.data(), owner_.held) * 2;
      std::copy_n(pairs.begin(), shorts, owner_.samples.end() - static_cast<ptrdiff_t>(shorts));
    }
    uint64_t heard() const override { return owner_.heard_; }
    bool failed() const override { return owner_.failing; }
    bool paced() const override { return false; }
    bool toNobody() const override { return owner_.toNobody; }

   private:
    void set(bool paused) {
      const std::lock_guard lock(owner_.mutex_);
      owner_.paused_ = paused;
    }
    SteppedOutputs& owner_;
  };

  mutable std::mutex mutex_;
  SampleFeed* feed_ = nullptr;
  std::atomic<uint64_t> heard_{0};
  bool paused_ = false;
};

/// Waits for a condition that another thread brings about; false after five seconds.
template <class Condition>
bool becomes(const Condition& condition, int milliseconds = 5000) {
  const auto patience = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > patience) return false;
    std::this_thread::sleep_for(std::chrono::microseconds(500));
  }
  return true;
}

}  // namespace orvanta::test
