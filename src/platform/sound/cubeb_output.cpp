// One cubeb stream for each start of sound; the context is opened with the first.
#include "platform/sound/cubeb_output.h"

#include <cubeb/cubeb.h>

#include <algorithm>
#include <atomic>
#include <cstring>

#include "platform/linux/late_library.h"
#include "platform/sound/clocked_output.h"
#include "platform/sound/samples.h"

namespace orvanta {

namespace {

/// What lies at the sound server, and passes until a moved slider is heard.
constexpr uint32_t kLatencyPairs = kSampleRate / 10;

/// The library's calls. It is loaded with the first sound.
struct Cubeb {
  decltype(&cubeb_init) init = nullptr;
  decltype(&cubeb_destroy) destroy = nullptr;
  decltype(&cubeb_stream_init) open = nullptr;
  decltype(&cubeb_stream_destroy) close = nullptr;
  decltype(&cubeb_stream_start) start = nullptr;
  decltype(&cubeb_stream_stop) stop = nullptr;
  decltype(&cubeb_stream_get_position) position = nullptr;
  LateLibrary library{"libcubeb.so.0"};
  bool whole() const { return library.whole(); }

  Cubeb() {
    library.find(init, "cubeb_init");
    library.find(destroy, "cubeb_destroy");
    library.find(open, "cubeb_stream_init");
    library.find(close, "cubeb_stream_destroy");
    library.find(start, "cubeb_stream_start");
    library.find(stop, "cubeb_stream_stop");
    library.find(position, "cubeb_stream_get_position");
  }
};

const Cubeb& library() {
  static const Cubeb loaded;
  return loaded;
}

class CubebOutput : public SoundOutput {
 public:
  CubebOutput(cubeb* context, SampleFeed& feed) : feed_(feed) {
    cubeb_stream_params params{};
    params.format = CUBEB_SAMPLE_S16NE;
    params.rate = kSampleRate;
    params.channels = 2;
    params.layout = CUBEB_LAYOUT_STEREO;
    params.prefs = CUBEB_STREAM_PREF_NONE;
    if (library().open(context, &stream_, "Orvanta LX", nullptr, nullptr, nullptr, &params, kLatencyPairs, &CubebOutput::data,
                       &CubebOutput::state, this) != CUBEB_OK) {
      stream_ = nullptr;
    }
  }
  CubebOutput(const CubebOutput&) = delete;
  CubebOutput& operator=(const CubebOutput&) = delete;
  ~CubebOutput() override {
    if (stream_ == nullptr) return;
    library().stop(stream_);
    library().close(stream_);
  }

  bool made() const { return stream_ != nullptr; }
  bool start() { return stream_ != nullptr && library().start(stream_) == CUBEB_OK; }
  void pause() override { library().stop(stream_); }
  void resume() override { library().start(stream_); }
  bool failed() const override { return failed_; }
  const char* road() const override { return "ALSA"; }

  uint64_t heard() const override {
    uint64_t position = 0;
    if (drained_ || library().position(stream_, &position) != CUBEB_OK) return given_;
    const uint64_t silence = silence_;
    return std::min<uint64_t>(position > silence ? position - silence : 0, given_);
  }

 private:
  static long data(cubeb_stream* /*stream*/, void* self, const void* /*input*/, void* output, long frames) {
    return static_cast<CubebOutput*>(self)->fill(static_cast<int16_t*>(output), static_cast<size_t>(frames));
  }

  static void state(cubeb_stream* /*stream*/, void* self, cubeb_state state) {
    auto& output = *static_cast<CubebOutput*>(self);
    if (state == CUBEB_STATE_ERROR) output.failed_ = true;
    if (state == CUBEB_STATE_DRAINED) output.drained_ = true;
  }

  /// Fewer than asked for ends the stream; a drive that is late is bridged with silence.
  long fill(int16_t* output, size_t frames) {
    const bool last = feed_.finished();
    const size_t got = feed_.pull(output, frames);
    given_ += got;
    if (got < frames && !last) {
      std::memset(output + got * 2, 0, (frames - got) * 4);
      silence_ += frames - got;
      return static_cast<long>(frames);
    }
    return static_cast<long>(got);
  }

  SampleFeed& feed_;
  cubeb_stream* stream_ = nullptr;
  std::atomic<uint64_t> given_{0};
  std::atomic<uint64_t> silence_{0};
  std::atomic<bool> failed_{false};
  std::atomic<bool> drained_{false};
};

}  // namespace

struct CubebOutputs::Context {
  cubeb* handle = nullptr;
  ~Context() {
    if (handle != nullptr) library().destroy(handle);
  }
};

CubebOutputs::CubebOutputs() = default;
CubebOutputs::~CubebOutputs() = default;

void CubebOutputs::connect() {
  context_ = std::make_unique<Context>();
  if (!library().whole() || library().init(&context_->handle, "Orvanta LX", nullptr) != CUBEB_OK) context_->handle = nullptr;
}

std::unique_ptr<SoundOutput> CubebOutputs::make(SampleFeed& feed, bool afterFailure) {
  if (afterFailure) context_.reset();
  if (!context_) connect();
  if (context_->handle != nullptr) {
    auto output = std::make_unique<CubebOutput>(context_->handle, feed);
    if (output->start()) return output;
  }
  context_.reset();
  return std::make_unique<ClockedOutput>(feed, nullptr, Pace::RealTime, true);
}

/// A stream that is made and never started tells more than the context: that one comes up without any card.
bool CubebOutputs::canSound() {
  class Silence : public SampleFeed {
   public:
    size_t pull(int16_t* /*pairs*/, size_t /*count*/) override { return 0; }
    bool finished() const override { return true; }
  } silence;
  context_.reset();
  connect();
  const bool can = context_->handle != nullptr && CubebOutput(context_->handle, silence).made();
  context_.reset();
  return can;
}

}  // namespace orvanta
