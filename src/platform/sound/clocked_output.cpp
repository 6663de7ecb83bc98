// Playing by the clock: a thread takes what is due every so often.
#include "platform/sound/clocked_output.h"

#include <algorithm>
#include <array>

#include "platform/sound/samples.h"
#include "platform/sound/wav_file.h"

namespace orvanta {

namespace {

constexpr auto kStep = std::chrono::milliseconds(200);
constexpr size_t kPiece = kSampleRate / 10;  ///< sample pairs

}  // namespace

ClockedOutput::~ClockedOutput() {
  {
    const std::lock_guard lock(mutex_);
    quit_ = true;
  }
  wake_.notify_all();
  if (thread_.joinable()) thread_.join();
}

ClockedOutput::ClockedOutput(SampleFeed& feed, WavFile* wav, Pace pace, bool toNobody)
    : feed_(feed), wav_(wav), pace_(pace), toNobody_(toNobody), since_(SteadyClock::now()) {
  thread_ = std::thread([this] { run(); });
}

std::unique_ptr<SoundOutput> ClockedOutputs::make(SampleFeed& feed, bool /*afterFailure*/) {
  return std::make_unique<ClockedOutput>(feed, wav_, pace_, wav_ != nullptr && !wav_->good());
}

uint64_t ClockedOutput::due() const {
  if (paused_) return before_;
  const auto elapsed = std::chrono::duration_cast<std::chrono::microseconds>(SteadyClock::now() - since_).count();
  return before_ + static_cast<uint64_t>(elapsed) * kSampleRate / 1000000;
}

void ClockedOutput::pause() {
  const std::lock_guard lock(mutex_);
  before_ = due();
  paused_ = true;
}

void ClockedOutput::resume() {
  {
    const std::lock_guard lock(mutex_);
    if (!paused_) return;
    paused_ = false;
    since_ = SteadyClock::now();
  }
  wake_.notify_all();
}

uint64_t ClockedOutput::heard() const {
  if (pace_ == Pace::Unpaced) return pulled_;
  const std::lock_guard lock(mutex_);
  // The clock runs between two pulls: what is due and there counts as heard.
  return feed_.finished() ? std::min(due(), pulled_.load()) : due();
}

void ClockedOutput::run() {
  std::unique_lock lock(mutex_);
  while (!quit_) {
    const uint64_t target = pace_ == Pace::Unpaced && !paused_ ? UINT64_MAX : due();
    lock.unlock();
    pullTo(target);
    lock.lock();
    // Late samples make the clock wait for them, so that none is passed over.
    if (pace_ == Pace::RealTime && !paused_ && !feed_.finished() && pulled_ < target) {
      before_ = pulled_;
      since_ = SteadyClock::now();
    }
    wake_.wait_for(lock, pace_ == Pace::Unpaced ? std::chrono::milliseconds(1) : kStep, [this] { return quit_; });
  }
}

void ClockedOutput::pullTo(uint64_t target) {
  std::array<int16_t, kPiece * 2> pairs;
  while (pulled_ < target) {
    const size_t got = feed_.pull(pairs.data(), static_cast<size_t>(std::min<uint64_t>(kPiece, target - pulled_)));
    if (got == 0) return;
    if (wav_ != nullptr) wav_->append(pairs.data(), got);
    pulled_ += got;
  }
}

}  // namespace orvanta
