// level.dat: left and right, 0 to 65535, as two numbers on a line.
#include "platform/sound/stream_volume.h"

#include <charconv>

#include "base/log.h"
#include "base/text.h"

namespace orvanta {

namespace {

constexpr int kNoSuchDevice = 2;
constexpr int kRest = 1000;  ///< milliseconds without a change before a level is kept

std::optional<uint32_t> takeNumber(std::string_view& text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  text.remove_prefix(first == std::string_view::npos ? text.size() : first);
  uint32_t value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc{} || value > Level::kFull) return std::nullopt;
  text.remove_prefix(static_cast<size_t>(result.ptr - text.data()));
  return value;
}

}  // namespace

std::optional<uint32_t> levelOf(std::string_view bytes) {
  const auto left = takeNumber(bytes);
  const auto right = left ? takeNumber(bytes) : std::nullopt;
  return right ? std::optional(*right << 16U | *left) : std::nullopt;
}

uint32_t keptLevel(const Files& files, const std::string& path) {
  const auto bytes = path.empty() ? std::nullopt : files.read(path);
  return (bytes ? levelOf(*bytes) : std::nullopt).value_or(0xFFFFFFFF);
}

void setLevel(Level& level, uint32_t volume) { level.set(static_cast<uint16_t>(volume), static_cast<uint16_t>(volume >> 16U)); }

StreamVolume::StreamVolume(Level& level, Files& files, Clock& clock, std::string path, std::function<void()> changed)
    : level_(level),
      files_(files),
      path_(std::move(path)),
      changed_(std::move(changed)),
      volume_(keptLevel(files, path_)),
      lasting_(volume_),
      kept_(volume_),
      timer_(clock.makeTimer([this] { keep(); })) {
  setLevel(level_, volume_);
}

AuxCaps StreamVolume::caps(int device) const { return device == 0 ? AuxCaps{0, "CD Audio"} : AuxCaps{kNoSuchDevice, ""}; }

AuxReading StreamVolume::volume(int device) const { return device == 0 ? AuxReading{0, volume_} : AuxReading{kNoSuchDevice, 0}; }

int StreamVolume::setVolume(int device, uint32_t volume) {
  if (device != 0) return kNoSuchDevice;
  volume_ = lasting_ = volume;
  setLevel(level_, volume);
  changed_();
  // The second begins anew with each change: a slider that moves writes nothing.
  timer_->setInterval(0);
  timer_->setInterval(kRest);
  return 0;
}

int StreamVolume::mute(int device) {
  if (device != 0) return kNoSuchDevice;
  volume_ = 0;
  setLevel(level_, 0);
  changed_();
  return 0;
}

/// A disk that is full keeps the level of before; the next change tries again.
void StreamVolume::keep() {
  timer_->setInterval(0);
  if (path_.empty() || lasting_ == kept_) return;
  const std::string line = std::to_string(lasting_ & 0xFFFFU) + " " + std::to_string(lasting_ >> 16U) + "\n";
  if (files_.write(path_, line)) {
    kept_ = lasting_;
  } else if (logs("sound")) {
    logLine("sound", path_ + " cannot be written");
  }
}

}  // namespace orvanta
