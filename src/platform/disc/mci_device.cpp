// What each command does, and how lengths and positions are told.
#include "platform/disc/mci_device.h"

#include <algorithm>

#include "base/log.h"
#include "base/text.h"

namespace orvanta {

namespace {

namespace err = device_error;

/// Rounded up, so that rounding down gives the frame back.
std::string millisecondsText(int frame) { return std::to_string(int64_t{frame} * 1000 / kFramesPerSecond + 1); }

}  // namespace

MciDevice::MciDevice(DiscPlayer& player, Clock& clock) : player_(player), timer_(clock.makeTimer([this] { tick(); })) {}

void MciDevice::command(std::string_view word) {
  error_ = carryOut(word);
  if (logs("device")) logLine("device", std::string(word) + (error_ == err::kNone ? "" : " failed: " + std::to_string(error_)));
  if (error_ != err::kNone) {
    from_.reset();
    to_.reset();
  }
}

int16_t MciDevice::carryOut(std::string_view word) {
  if (equalsNoCase(word, "Open")) return open();
  if (equalsNoCase(word, "Eject")) {
    // The drive's own button: it works whether or not the device is open.
    playing_ = false;
    player_.eject();
    return err::kNone;
  }
  if (!open_) return err::kNotOpen;
  if (equalsNoCase(word, "Play")) return play();
  if (equalsNoCase(word, "Seek")) return seek();
  if (equalsNoCase(word, "Pause")) {
    if (player_.state() == PlayState::Playing) player_.pause();
  } else if (equalsNoCase(word, "Resume")) {
    if (player_.state() == PlayState::Paused) player_.resume();
  } else if (equalsNoCase(word, "Stop")) {
    playing_ = false;
    if (player_.state() != PlayState::Stopped) player_.stop();
  } else if (equalsNoCase(word, "Close")) {
    // What plays plays on: the next Open takes it over.
    open_ = false;
  } else {
    return err::kUnknownCommand;
  }
  return err::kNone;
}

int16_t MciDevice::open() {
  from_.reset();
  to_.reset();
  if (player_.holder() == Holder::Other) return err::kInUse;
  if (!player_.toc().hasAudio()) return err::kNoDisc;
  open_ = true;
  return err::kNone;
}

/// nullopt for a place outside the disc.
std::optional<int> MciDevice::frameOf(uint32_t tmsf) const {
  const Toc toc = player_.toc();
  const Tmsf place = unpackTmsf(tmsf);
  if (!toc.has(place.track)) return std::nullopt;
  const int frame = toc.startOf(place.track) + framesOf(place.time);
  return frame <= toc.leadOut ? std::optional(frame) : std::nullopt;
}

int16_t MciDevice::play() {
  const Toc toc = player_.toc();
  const std::optional<int> to = to_ ? frameOf(*to_) : std::optional(toc.leadOut);
  const std::optional<int> from = from_ ? frameOf(*from_) : std::optional(player_.frame());
  if (!from || !to || *from >= toc.leadOut || *to <= *from) return err::kOutOfRange;
  int audible = toc.trackAt(*from);
  while (toc.has(audible) && toc.isData(audible)) ++audible;
  if (!toc.has(audible)) return err::kOutOfRange;
  const bool goesOn = !from_ && *to == playTo_ && player_.state() != PlayState::Stopped;
  from_.reset();
  to_.reset();
  playTo_ = *to;
  playing_ = true;
  if (!goesOn) {
    player_.play(audible == toc.trackAt(*from) ? *from : toc.startOf(audible), *to);
  } else if (player_.state() == PlayState::Paused) {
    player_.resume();
  }
  return err::kNone;
}

int16_t MciDevice::seek() {
  if (!to_) return err::kMissingTarget;
  const std::optional<int> to = frameOf(*to_);
  if (!to) return err::kOutOfRange;
  from_.reset();
  to_.reset();
  playing_ = false;
  player_.seek(*to);
  return err::kNone;
}

int16_t MciDevice::tracks() const { return open_ ? static_cast<int16_t>(player_.toc().count()) : int16_t{0}; }

bool MciDevice::isData(int16_t track) const {
  const Toc toc = player_.toc();
  return toc.has(track) && toc.isData(track);
}

// Both lengths come out one frame short of the table of contents, as CD drivers tell them; disc
// keys and lookups are made of them.
uint32_t MciDevice::length() const {
  const Toc toc = player_.toc();
  return open_ && toc.count() > 0 ? packMsf(msfOfFrames(toc.leadOut - toc.startOf(1) - 1)) : 0;
}

uint32_t MciDevice::trackLength() const {
  const Toc toc = player_.toc();
  if (!open_ || !toc.has(track_)) return 0;
  const int frames = toc.endOf(track_) - toc.startOf(track_);
  return packMsf(msfOfFrames(track_ == toc.count() ? frames - 1 : frames));
}

uint32_t MciDevice::position() const {
  const Toc toc = player_.toc();
  if (!open_ || toc.count() == 0) return 0;
  const int frame = player_.frame();
  const int track = toc.trackAt(frame);
  return packTmsf({track, msfOfFrames(std::max(0, frame - toc.startOf(track)))});
}

DeviceMode MciDevice::mode() const {
  if (!open_ || player_.toc().count() == 0) return DeviceMode::NotOpen;
  switch (player_.state()) {
    case PlayState::Playing: return DeviceMode::Playing;
    case PlayState::Paused: return DeviceMode::Paused;
    default: return DeviceMode::Stopped;
  }
}

std::string MciDevice::sendString(std::string_view command) {
  if (equalsNoCase(command, "set cdaudio time format milliseconds")) {
    milliseconds_ = open_;
  } else if (equalsNoCase(command, "status cdaudio position") && open_ && milliseconds_) {
    return millisecondsText(player_.frame());
  } else if (equalsNoCase(command, "status cdaudio position track 1") && open_ && milliseconds_ && player_.toc().count() > 0) {
    return millisecondsText(player_.toc().startOf(1));
  }
  return {};
}

void MciDevice::tick() {
  if (events_ == nullptr) return;
  if (player_.takeFailure()) {
    playing_ = false;
    events_->playCompleted(err::kHardware);
  } else if (playing_ && player_.state() == PlayState::Stopped) {
    playing_ = false;
    events_->playCompleted(err::kNone);
  }
  events_->statusUpdate();
}

}  // namespace orvanta
