// The calls of the sound server's library. It is loaded with the first sound.
#pragma once

#include <pulse/pulseaudio.h>

namespace orvanta {

// clang-format off
#define ORVANTA_PULSE_CALLS(CALL) \
  CALL(threaded_mainloop_new) CALL(threaded_mainloop_free) CALL(threaded_mainloop_start) CALL(threaded_mainloop_stop) \
  CALL(threaded_mainloop_lock) CALL(threaded_mainloop_unlock) CALL(threaded_mainloop_wait) CALL(threaded_mainloop_signal) \
  CALL(threaded_mainloop_get_api) CALL(rtclock_now) CALL(operation_unref) \
  CALL(context_new) CALL(context_unref) CALL(context_connect) CALL(context_disconnect) CALL(context_get_state) \
  CALL(context_set_state_callback) CALL(context_rttime_new) CALL(context_rttime_restart) \
  CALL(stream_new) CALL(stream_unref) CALL(stream_connect_playback) CALL(stream_disconnect) CALL(stream_get_state) \
  CALL(stream_set_state_callback) CALL(stream_set_write_callback) CALL(stream_writable_size) CALL(stream_begin_write) \
  CALL(stream_cancel_write) CALL(stream_write) CALL(stream_cork) CALL(stream_drain) CALL(stream_get_time)
// clang-format on

struct PulseLibrary {
#define ORVANTA_PULSE_MEMBER(name) decltype(&pa_##name) name = nullptr;
  ORVANTA_PULSE_CALLS(ORVANTA_PULSE_MEMBER)
#undef ORVANTA_PULSE_MEMBER

  /// nullptr where it is not installed.
  static const PulseLibrary* loaded();
};

}  // namespace orvanta
