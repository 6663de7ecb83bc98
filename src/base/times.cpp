// Packing and wording of disc times.
#include "base/times.h"

#include "base/text.h"

namespace orvanta {

Msf msfOfFrames(int frames) { return {frames / kFramesPerMinute, frames / kFramesPerSecond % 60, frames % kFramesPerSecond}; }

int framesOf(const Msf& msf) { return (msf.minutes * 60 + msf.seconds) * kFramesPerSecond + msf.frames; }

uint32_t packMsf(const Msf& msf) {
  return (static_cast<uint32_t>(msf.minutes) & 0xFFU) | (static_cast<uint32_t>(msf.seconds) & 0xFFU) << 8U |
         (static_cast<uint32_t>(msf.frames) & 0xFFU) << 16U;
}

Msf unpackMsf(uint32_t packed) {
  return {static_cast<int>(packed & 0xFFU), static_cast<int>(packed >> 8U & 0xFFU), static_cast<int>(packed >> 16U & 0xFFU)};
}

uint32_t packTmsf(const Tmsf& tmsf) { return (static_cast<uint32_t>(tmsf.track) & 0xFFU) | packMsf(tmsf.time) << 8U; }

Tmsf unpackTmsf(uint32_t packed) { return {static_cast<int>(packed & 0xFFU), unpackMsf(packed >> 8U)}; }

uint32_t packSeekTarget(int track, int seconds) { return packTmsf({track, {seconds / 60, seconds % 60, 0}}); }

int secondsOf(std::string_view text) {
  const auto colon = text.find(':');
  const int before = static_cast<int>(leadingNumber(text.substr(0, colon)));
  const int behind = colon == std::string_view::npos ? 0 : static_cast<int>(leadingNumber(text.substr(colon + 1)));
  return before * 60 + behind;
}

std::string minutesSeconds(int seconds) { return std::to_string(seconds / 60) + ":" + padded(seconds % 60, 2); }

std::string longTime(int seconds) {
  const std::string tail = padded(seconds / 60 % 60, 2) + ":" + padded(seconds % 60, 2);
  return seconds >= 3600 ? std::to_string(seconds / 3600) + ":" + tail : tail;
}

std::string clockPicture(int minutes, int seconds) {
  if (minutes >= 24) return std::to_string(minutes) + ":" + std::to_string(seconds);
  return padded(minutes, 2) + ":" + padded(seconds, 2);
}

}  // namespace orvanta
