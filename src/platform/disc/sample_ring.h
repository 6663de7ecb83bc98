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
  /// In sample pairs. The last `kept` that were read can be had once more, and take their part of the room.
  explicit SampleRing(size_t capacity, size_t kept = 0) : samples_(capacity * 2), kept_(kept) {}

  size_t capacity() const { return samples_.size() / 2; }
  /// Sample pairs that the reader can have now.
  size_t filled() const { return static_cast<size_t>(written_.load(std::memory_order_acquire) - read_.load(std::memory_order_acquire)); }
  size_t space() const { return capacity() - kept_ - filled(); }

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
    copyOut(at, count, pairs);
    read_.store(at + count, std::memory_order_release);
    return count;
  }

  /// Reader's side: the last that were read, once more; returns how many of them are left.
  size_t again(int16_t* pairs, size_t count) const {
    const uint64_t end = read_.load(std::memory_order_relaxed);
    count = static_cast<size_t>(std::min<uint64_t>({count, kept_, end}));
    copyOut(end - count, count, pairs);
    return count;
  }

  /// Only while neither side is at work.
  void clear() {
    written_ = 0;
    read_ = 0;
  }

 private:
  void copyOut(uint64_t at, size_t count, int16_t* pairs) const {
    transfer(at, count, [&](size_t place, size_t done, size_t shorts) {
      std::copy_n(samples_.begin() + static_cast<ptrdiff_t>(place), shorts, pairs + done);
    });
  }

  template <class Copy>
  void transfer(uint64_t at, size_t count, const Copy& copy) const {
    size_t done = 0;
    while (done < count * 2) {
      const size_t place = (static_cast<size_t>(at % capacity()) * 2 + done) % samples_.size();
      const size_t piece = std::min(count * 2 - done, samples_.size() - place);
      copy(place, done, piece);
      done += piece;
    }
  }

  std::vector<int16_t> samples_;
  size_t kept_;
  std::atomic<uint64_t> written_{0};
  std::atomic<uint64_t> read_{0};
};

}  // namespace orvanta
