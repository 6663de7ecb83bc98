// The library's own thread asks for samples; its lock is held wherever a stream is touched.
#include "platform/sound/pulse_output.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <vector>

#include "platform/sound/pulse_library.h"
#include "platform/sound/samples.h"

namespace orvanta {

namespace {

constexpr size_t kPairBytes = 4;
constexpr size_t kHeldPairs = kMostHeldPairs;
constexpr size_t kAskedPairs = kHeldPairs / 2;    ///< what the server asks for at a time: each asking wakes two processes
constexpr size_t kStartPairs = kSampleRate / 20;  ///< sound begins with so many, and again after a drive that was late
constexpr size_t kNearPairs = kSampleRate / 50;   ///< too close to being heard to be sent anew
constexpr pa_usec_t kLate = 20000;                ///< microseconds until a feed that was empty is asked again

uint32_t bytesOf(size_t pairs) { return static_cast<uint32_t>(pairs * kPairBytes); }

}  // namespace

class PulseOutputs::Connection {
 public:
  explicit Connection(const PulseLibrary& library) : pulse(library), loop(library.threaded_mainloop_new()) {
    if (loop == nullptr) return;
    context = pulse.context_new(pulse.threaded_mainloop_get_api(loop), "Orvanta LX");
    pulse.context_set_state_callback(
        context, [](pa_context* /*context*/, void* self) { static_cast<Connection*>(self)->wake(); }, this);
    if (pulse.context_connect(context, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0 || pulse.threaded_mainloop_start(loop) < 0) return;
    const Lock lock(*this);
    const auto waits = [&] {
      const auto state = pulse.context_get_state(context);
      return state != PA_CONTEXT_READY && PA_CONTEXT_IS_GOOD(state);
    };
    while (waits()) pulse.threaded_mainloop_wait(loop);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() {
    if (loop == nullptr) return;
    {
      const Lock lock(*this);
      pulse.context_set_state_callback(context, nullptr, nullptr);
      pulse.context_disconnect(context);
      pulse.context_unref(context);
    }
    pulse.threaded_mainloop_stop(loop);
    pulse.threaded_mainloop_free(loop);
  }

  bool ready() const {
    if (loop == nullptr) return false;
    const Lock lock(*this);
    return pulse.context_get_state(context) == PA_CONTEXT_READY;
  }
  void wake() const { pulse.threaded_mainloop_signal(loop, 0); }

  class Lock {
   public:
    explicit Lock(const Connection& of) : of_(of) { of_.pulse.threaded_mainloop_lock(of_.loop); }
    ~Lock() { of_.pulse.threaded_mainloop_unlock(of_.loop); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

   private:
    const Connection& of_;
  };

  const PulseLibrary& pulse;
  pa_threaded_mainloop* loop;
  pa_context* context = nullptr;
};

class PulseOutputs::Stream : public SoundOutput {
 public:
  Stream(std::shared_ptr<Connection> connection, SampleFeed& feed)
      : connection_(std::move(connection)), pulse_(connection_->pulse), feed_(feed) {
    const Lock lock(*connection_);
    const pa_sample_spec format{PA_SAMPLE_S16NE, kSampleRate, 2};
    stream_ = pulse_.stream_new(connection_->context, "Orvanta LX", &format, nullptr);
    if (stream_ == nullptr) return;
    pulse_.stream_set_state_callback(
        stream_, [](pa_stream* /*stream*/, void* self) { static_cast<Stream*>(self)->stateChanged(); }, this);
    pulse_.stream_set_write_callback(
        stream_, [](pa_stream* /*stream*/, size_t /*bytes*/, void* self) { static_cast<Stream*>(self)->fill(); }, this);
    const pa_buffer_attr buffer{UINT32_MAX, bytesOf(kHeldPairs), bytesOf(kStartPairs), bytesOf(kAskedPairs), UINT32_MAX};
    const auto flags =
        static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE);
    if (pulse_.stream_connect_playback(stream_, nullptr, &buffer, flags, nullptr, nullptr) < 0) return;
    while (pulse_.stream_get_state(stream_) == PA_STREAM_CREATING) pulse_.threaded_mainloop_wait(connection_->loop);
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() override {
    const Lock lock(*connection_);
    if (again_ != nullptr) api().time_free(again_);
    if (stream_ == nullptr) return;
    pulse_.stream_set_state_callback(stream_, nullptr, nullptr);
    pulse_.stream_set_write_callback(stream_, nullptr, nullptr);
    pulse_.stream_disconnect(stream_);
    pulse_.stream_unref(stream_);
  }

  bool ready() const {
    const Lock lock(*connection_);
    return stream_ != nullptr && pulse_.stream_get_state(stream_) == PA_STREAM_READY;
  }
  void pause() override { cork(1); }
  void resume() override { cork(0); }
  bool failed() const override { return failed_; }
  const char* road() const override { return "PulseAudio"; }

  uint64_t heard() const override {
    const Lock lock(*connection_);
    return heardPairs();
  }

  void relevel() override {
    const Lock lock(*connection_);
    const uint64_t keep = heardPairs() + kNearPairs;
    if (failed_ || keep >= given_) return;
    std::vector<int16_t> pairs((given_ - keep) * 2);
    const auto bytes = static_cast<int64_t>(bytesOf(feed_.again(pairs.data(), pairs.size() / 2)));
    if (bytes > 0) pulse_.stream_write(stream_, pairs.data(), static_cast<size_t>(bytes), nullptr, -bytes, PA_SEEK_RELATIVE);
  }

 private:
  using Lock = Connection::Lock;

  pa_mainloop_api& api() const { return *pulse_.threaded_mainloop_get_api(connection_->loop); }

  uint64_t heardPairs() const {
    if (drained_) return given_;
    pa_usec_t time = 0;
    if (!failed_ && pulse_.stream_get_time(stream_, &time) >= 0) {
      heard_ = std::clamp(time * kSampleRate / 1000000, heard_, given_);
    }
    return heard_;
  }

  void cork(int on) {
    const Lock lock(*connection_);
    letGo(pulse_.stream_cork(stream_, on, nullptr, nullptr));
  }

  void letGo(pa_operation* operation) const {
    if (operation != nullptr) pulse_.operation_unref(operation);
  }

  void stateChanged() {
    const auto state = pulse_.stream_get_state(stream_);
    if (state == PA_STREAM_FAILED || state == PA_STREAM_TERMINATED) failed_ = true;
    connection_->wake();
  }

  /// All that the server has room for. What is not there yet is asked for again in a moment; until then the server waits,
  /// so that its clock counts nothing but the feed's samples.
  void fill() {
    heardPairs();  // known from here on, should the server die
    while (!ended_) {
      const size_t room = pulse_.stream_writable_size(stream_);
      if (room == SIZE_MAX || room < kPairBytes) return;
      void* place = nullptr;
      size_t bytes = room;
      if (pulse_.stream_begin_write(stream_, &place, &bytes) < 0 || place == nullptr) return;
      const bool last = feed_.finished();
      const size_t got = feed_.pull(static_cast<int16_t*>(place), bytes / kPairBytes);
      if (got == 0) {
        pulse_.stream_cancel_write(stream_);
        return last ? end() : askAgain();
      }
      pulse_.stream_write(stream_, place, got * kPairBytes, nullptr, 0, PA_SEEK_RELATIVE);
      given_ += got;
    }
  }

  void askAgain() {
    const pa_usec_t when = pulse_.rtclock_now() + kLate;
    if (again_ != nullptr) return pulse_.context_rttime_restart(connection_->context, again_, when);
    again_ = pulse_.context_rttime_new(
        connection_->context, when,
        [](pa_mainloop_api* /*api*/, pa_time_event* /*event*/, const timeval* /*time*/, void* self) { static_cast<Stream*>(self)->fill(); },
        this);
  }

  void end() {
    ended_ = true;
    letGo(pulse_.stream_drain(
        stream_,
        [](pa_stream* /*stream*/, int success, void* self) {
          if (success != 0) static_cast<Stream*>(self)->drained_ = true;
        },
        this));
  }

  std::shared_ptr<Connection> connection_;
  const PulseLibrary& pulse_;
  SampleFeed& feed_;
  pa_stream* stream_ = nullptr;
  pa_time_event* again_ = nullptr;
  uint64_t given_ = 0;
  mutable uint64_t heard_ = 0;
  bool ended_ = false;  ///< the feed
  bool drained_ = false;
  std::atomic<bool> failed_{false};
};

PulseOutputs::PulseOutputs(std::unique_ptr<SoundOutputs> instead) : instead_(std::move(instead)) {}
PulseOutputs::~PulseOutputs() = default;

/// nullptr: the server is not there, or has nothing to sound on.
std::unique_ptr<PulseOutputs::Stream> PulseOutputs::streamOver(SampleFeed& feed) {
  const PulseLibrary* library = PulseLibrary::loaded();
  if (library == nullptr) return nullptr;
  if (!connection_ || !connection_->ready()) connection_ = std::make_shared<Connection>(*library);
  if (connection_->ready()) {
    auto stream = std::make_unique<Stream>(connection_, feed);
    if (stream->ready()) return stream;
  }
  connection_.reset();
  return nullptr;
}

std::unique_ptr<SoundOutput> PulseOutputs::make(SampleFeed& feed, bool afterFailure) {
  if (afterFailure) connection_.reset();
  if (auto stream = streamOver(feed)) return stream;
  return instead_->make(feed, afterFailure);
}

bool PulseOutputs::canSound() {
  class Silence : public SampleFeed {
   public:
    size_t pull(int16_t* /*pairs*/, size_t /*count*/) override { return 0; }
    bool finished() const override { return true; }
  } silence;
  return streamOver(silence) != nullptr || instead_->canSound();
}

}  // namespace orvanta
