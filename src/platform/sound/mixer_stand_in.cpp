// Keys of the mixer's window, and the master volume by `pactl`, which PulseAudio and PipeWire both answer.
#include "platform/sound/mixer_stand_in.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <tuple>
#include <vector>

#include "platform/linux/host_processes.h"

namespace orvanta {

namespace {

using mixer::kPage;
using mixer::kTitle;
constexpr int kTop = mixer::kPlaces;
constexpr const char* kSink = "@DEFAULT_SINK@";
constexpr int kMiddle = 32;
constexpr int kRight = 64;
constexpr double kFull = 65536;

class Pactl : public MasterVolume {
 public:
  bool read(MasterLevel& level) override {
    const auto volume = outputOf({"pactl", "get-sink-volume", kSink});
    const auto mute = outputOf({"pactl", "get-sink-mute", kSink});
    if (!volume || !mute) return false;
    // "Volume: front-left: 32768 /  50% / -18.06 dB,   front-right: 32768 / ..."
    std::vector<double> channels;
    for (size_t at = volume->find(": "); at != std::string::npos; at = volume->find(": ", at + 1)) {
      char* end = nullptr;
      const double value = std::strtod(volume->c_str() + at + 2, &end);
      if (end != volume->c_str() + at + 2 && std::string_view(end).rfind(" /", 0) == 0) channels.push_back(value / kFull);
    }
    if (channels.empty()) return false;
    level = {channels.front(), channels.size() > 1 ? channels[1] : channels.front(), mute->find("yes") != std::string::npos};
    return true;
  }

  bool write(const MasterLevel& level) override {
    const auto words = [](double part) { return std::to_string(std::lround(part * kFull)); };
    return outputOf({"pactl", "set-sink-volume", kSink, words(level.left), words(level.right)}) &&
           outputOf({"pactl", "set-sink-mute", kSink, level.mute ? "1" : "0"});
  }
};

}  // namespace

std::unique_ptr<MasterVolume> systemMasterVolume() { return std::make_unique<Pactl>(); }

bool MixerStandIn::startHidden(const std::string& /*program*/) {
  MasterLevel level;
  open_ = master_.read(level);
  focus_ = Control::Balance;
  const double most = std::clamp(std::max(level.left, level.right), 0.0, 1.0);
  volume_ = static_cast<int>(std::lround(most * kTop));
  mute_ = level.mute;
  if (most > 0)
    balance_ =
        static_cast<int>(std::lround(level.left > level.right ? level.right / most * kMiddle : kRight - level.left / most * kMiddle));
  return open_;
}

bool MixerStandIn::activate(const std::string& title) { return open_ && title == kTitle; }

bool MixerStandIn::close(const std::string& title) {
  const bool was = open_ && title == kTitle;
  if (was) open_ = false;
  return was;
}

/// "{TAB}", "{PGUP 2}": one key, pressed so many times.
void MixerStandIn::sendKeys(const std::string& keys) {
  if (!open_ || keys.size() < 3 || keys.front() != '{' || keys.back() != '}') return;
  const std::string inner = keys.substr(1, keys.size() - 2);
  const auto blank = inner.find(' ');
  press(inner.substr(0, blank), blank == std::string::npos ? 1
                                                           : static_cast<int>(std::clamp(std::strtol(inner.c_str() + blank, nullptr, 10),
                                                                                         0L, static_cast<long>(kTop))));
}

void MixerStandIn::press(const std::string& key, int times) {
  if (key == "TAB") {
    focus_ = static_cast<Control>((static_cast<int>(focus_) + times) % 3);
    return;
  }
  const auto before = std::tuple(balance_, volume_, mute_);
  if (focus_ == Control::Mute) {
    if (key != "+" && key != "-") return;
    mute_ = key == "+";
  } else if (focus_ == Control::Balance) {
    if (key == "HOME") balance_ = 0;
    if (key == "END") balance_ = kRight;
    if (key == "RIGHT") balance_ = std::min(balance_ + times, kRight);
    if (key == "LEFT") balance_ = std::max(balance_ - times, 0);
  } else {
    if (key == "HOME") volume_ = kTop;
    if (key == "END") volume_ = 0;
    const int way = key == "PGUP" ? kPage : key == "PGDN" ? -kPage : key == "UP" ? 1 : key == "DOWN" ? -1 : 0;
    volume_ = std::clamp(volume_ + way * times, 0, kTop);
  }
  if (std::tuple(balance_, volume_, mute_) != before) store();
}

void MixerStandIn::store() {
  const double most = static_cast<double>(volume_) / kTop;
  const double left = std::min(1.0, static_cast<double>(kRight - balance_) / kMiddle);
  const double right = std::min(1.0, static_cast<double>(balance_) / kMiddle);
  // A sound system that does not answer is not asked again for each key: the window thread waits for it.
  open_ = master_.write({most * left, most * right, mute_});
}

}  // namespace orvanta
