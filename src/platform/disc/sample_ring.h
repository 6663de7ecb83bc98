// A ring of sample pairs between one writer and one reader, without locks.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orvanta {

class SampleRing {
 public:
  /// `capacity` in sample pairs.
  explicit SampleRing(size_t capacity) : samples_(capacity * 2) {}

  size_t capacity() const { return samples_.size() / 2; }
  /// Sample pairs that the reader can have now.
  size_t filled() const { return static_cast<size_t>(written_.load(std::memory_order_acquire) - read_.load(std::memory_order_acquire)); }
  size_t space() const { return capacity() - filled(); }

  /// Writer's side: as many as fit; returns how many.
  size_t write(const int16_t* pairs, size_t count) {
    const uint64_t at = written_.load(std::memory_order_relaxed);
    count = std::min(count, space());
    transfer(at, count, [&](size_t place, size_t done, size_t shorts) {
      std::copy_n(pairs + done, shorts, samples_.begin() + static_cast<ptrdiff_t>(place));
    });
    written_.store(at + count, std::memory_order_release);
    return count;
  }

  /// Reader's side: as many as there are; returns how many.
  size_t read(int16_t* pairs, size_t count) {
    const uint64_t at = read_.load(std::memory_order_relaxed);
    count = std::min(count, filled());
    transfer(at, count, [&](size_t place, size_t done, size_t shorts) {
      std::copy_n(samples_.begin() + static_cast<ptrdiff_t>(place), shorts, pairs + done);
    });
    read_.store(at + count, std::memory_order_release);
    return count;
  }

  /// Only while neither side is at work.
  void clear() {
    written_ = 0;
    read_ = 0;
  }

 private:
  template <class Copy>
  void transfer(uint64_t at, size_t count, const Copy& copy) {
    size_t done = 0;
    while (done < count * 2) {
      const size_t place = (static_cast<size_t>(at % capacity()) * 2 + done) % samples_.size();
      const size_t piece = std::min(count * 2 - done, samples_.size() - place);
      copy(place, done, piece);
      done += piece;
    }
  }

  std::vector<int16_t> samples_;
  std::atomic<uint64_t> written_{0};
  std::atomic<uint64_t> read_{0};
};

}  // namespace orvanta
