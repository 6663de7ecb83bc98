// Files through libsndfile; what cannot be read is silent.
#include "platform/sound/wave_player.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "platform/sound/samples.h"
#include "platform/sound/sndfile_library.h"

namespace orvanta {

namespace {

constexpr int kLongest = 3;  ///< seconds of a file that are played
constexpr auto kLatency = std::chrono::milliseconds(150);
constexpr auto kFarewell = std::chrono::milliseconds(500);

/// Sample pairs at the stream's rate; empty when the file is none.
std::vector<int16_t> pairsOf(const std::string& path) {
  const SndfileLibrary* library = SndfileLibrary::loaded();
  if (library == nullptr) return {};
  SF_INFO info{};
  SNDFILE* file = library->open(path.c_str(), SFM_READ, &info);
  if (file == nullptr) return {};
  const sf_count_t count = std::min<sf_count_t>(info.frames, sf_count_t{kLongest} * info.samplerate);
  std::vector<int16_t> samples(static_cast<size_t>(count * info.channels));
  const auto got = static_cast<size_t>(std::max<sf_count_t>(library->readPairs(file, samples.data(), count), 0));
  library->close(file);
  const auto channels = static_cast<size_t>(info.channels);
  std::vector<int16_t> pairs;
  const auto wanted = static_cast<size_t>(got * uint64_t{kSampleRate} / static_cast<uint64_t>(info.samplerate));
  for (size_t i = 0; i < wanted; ++i) {
    const size_t from = i * static_cast<size_t>(info.samplerate) / kSampleRate * channels;
    pairs.push_back(samples[from]);
    pairs.push_back(samples[from + (channels > 1 ? 1 : 0)]);
  }
  return pairs;
}

class Feed : public SampleFeed {
 public:
  explicit Feed(std::vector<int16_t> pairs) : pairs_(std::move(pairs)) {}
  size_t pull(int16_t* pairs, size_t count) override {
    const size_t got = std::min(count, pairs_.size() / 2 - at_);
    std::copy_n(pairs_.begin() + static_cast<ptrdiff_t>(at_ * 2), got * 2, pairs);
    at_ += got;
    return got;
  }
  bool finished() const override { return true; }
  std::chrono::milliseconds length() const { return std::chrono::milliseconds(pairs_.size() / 2 * 1000 / kSampleRate); }

 private:
  std::vector<int16_t> pairs_;
  size_t at_ = 0;
};

}  // namespace

WavePlayer::WavePlayer(SoundOutputs& outputs, std::function<void()> beep)
    : outputs_(outputs), beep_(std::move(beep)), thread_([this] { run(); }) {}

WavePlayer::~WavePlayer() {
  {
    const std::lock_guard lock(mutex_);
    quit_ = true;
  }
  wake_.notify_all();
  thread_.join();
}

void WavePlayer::play(const std::string& path) {
  {
    const std::lock_guard lock(mutex_);
    next_ = path;
  }
  wake_.notify_all();
}

void WavePlayer::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return quit_ || !next_.empty(); });
    if (next_.empty()) return;
    const std::string path = std::exchange(next_, {});
    lock.unlock();
    sound(path);
    lock.lock();
  }
}

void WavePlayer::sound(const std::string& path) {
  Feed feed(pairsOf(path));
  if (feed.length().count() == 0) return;
  const auto output = outputs_.make(feed, false);
  const auto end = std::chrono::steady_clock::now() + feed.length() + kLatency;
  std::unique_lock lock(mutex_);
  const auto over = [&] { return quit_ || !next_.empty(); };
  wake_.wait_until(lock, end, over);
  if (quit_) wake_.wait_until(lock, std::min(end, std::chrono::steady_clock::now() + kFarewell), [] { return false; });
}

}  // namespace orvanta
