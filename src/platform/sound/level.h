// The level of the stream: each channel's gain, changed from any thread, applied on the output's.
#pragma once

#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace orvanta {

class Level {
 public:
  static constexpr uint16_t kFull = 65535;

  /// As the sliders give it, 0 to 65535.
  void set(uint16_t left, uint16_t right) {
    target_[0].store(gainOf(left), std::memory_order_relaxed);
    target_[1].store(gainOf(right), std::memory_order_relaxed);
  }

  /// By the third power, as the desktop's own sliders do: half way sounds half as loud.
  static float gainOf(uint16_t level) {
    const float part = static_cast<float>(level) / kFull;
    return part * part * part;
  }

  /// Moves to a new gain within ten milliseconds, so that nothing clicks. Full gain leaves samples as they are.
  void apply(int16_t* pairs, size_t count) {
    const float target[] = {target_[0].load(std::memory_order_relaxed), target_[1].load(std::memory_order_relaxed)};
    if (target[0] == 1 && target[1] == 1 && now_[0] == 1 && now_[1] == 1) return;
    for (size_t i = 0; i < count; ++i) {
      for (size_t channel = 0; channel < 2; ++channel) {
        float& gain = now_[channel];
        const float way = target[channel] - gain;
        gain = std::abs(way) <= kStep ? target[channel] : gain + std::copysign(kStep, way);
        int16_t& sample = pairs[2 * i + channel];
        sample = static_cast<int16_t>(std::lround(static_cast<float>(sample) * gain));
      }
    }
  }

 private:
  static constexpr float kStep = 1.0F / 441;
  std::atomic<float> target_[2] = {1, 1};
  float now_[2] = {1, 1};
};

}  // namespace orvanta
