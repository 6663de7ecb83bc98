// watch_screen SECONDS: waits for a window, then watches the screen for so long. Prints, in microseconds of the
// monotonic clock, when the window was mapped and when the screen first looked as it did in the end, but for a hundredth of
// its pixels: a clock that ticks is no new picture. It looks when the server tells of a change, through shared memory:
// fetching the screen over the connection would keep the server from the program that is measured.
#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <xcb/damage.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Pixels = std::vector<uint32_t>;

template <typename T>
using Owned = std::unique_ptr<T, decltype(&std::free)>;

long long micros() { return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now().time_since_epoch()).count(); }

struct Frame {
  long long at;
  Pixels pixels;
};

/// The screen in memory that the server writes to.
class Screen {
 public:
  Screen(xcb_connection_t* connection, const xcb_screen_t& screen) : connection_(connection), screen_(screen) {
    id_ = shmget(IPC_PRIVATE, size() * sizeof(uint32_t), IPC_CREAT | 0600);
    if (id_ < 0) return;
    shared_ = shmat(id_, nullptr, 0);
    segment_ = xcb_generate_id(connection_);
    const Owned<xcb_generic_error_t> error(
        xcb_request_check(connection_, xcb_shm_attach_checked(connection_, segment_, static_cast<uint32_t>(id_), 0)), &std::free);
    attached_ = error == nullptr;
    shmctl(id_, IPC_RMID, nullptr);
  }

  bool attached() const { return attached_; }

  Pixels look() const {
    const auto cookie = xcb_shm_get_image(connection_, screen_.root, 0, 0, screen_.width_in_pixels, screen_.height_in_pixels, ~0U,
                                          XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0);
    const Owned<xcb_shm_get_image_reply_t> reply(xcb_shm_get_image_reply(connection_, cookie, nullptr), &std::free);
    if (!reply) return {};
    const auto* first = static_cast<const uint32_t*>(shared_);
    return {first, first + size()};
  }

 private:
  size_t size() const { return size_t{screen_.width_in_pixels} * screen_.height_in_pixels; }

  xcb_connection_t* connection_;
  const xcb_screen_t& screen_;
  int id_ = -1;
  void* shared_ = nullptr;
  xcb_shm_seg_t segment_ = 0;
  bool attached_ = false;
};

bool alike(const Pixels& a, const Pixels& b, size_t differing) {
  for (size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && differing-- == 0) return false;
  }
  return true;
}

/// The server's next word, nullptr when there is none until then.
Owned<xcb_generic_event_t> nextEvent(xcb_connection_t* connection, Clock::time_point until) {
  for (;;) {
    Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection), &std::free);
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now()).count();
    if (event || left <= 0) return event;
    pollfd wait{xcb_get_file_descriptor(connection), POLLIN, 0};
    poll(&wait, 1, static_cast<int>(left));
  }
}

/// Reports each piece of the screen that is drawn; its event's number, nullopt where the server cannot.
std::optional<uint8_t> watchDamage(xcb_connection_t* connection, xcb_window_t root) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_damage_id);
  if (extension == nullptr || extension->present == 0) return std::nullopt;
  std::free(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1), nullptr));
  xcb_damage_create(connection, xcb_generate_id(connection), root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  return static_cast<uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);
}

}  // namespace

int main(int argc, char** argv) {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (argc != 2 || xcb_connection_has_error(connection) != 0) return 2;
  const xcb_screen_t& root = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
  const Screen screen(connection, root);
  const auto damage = watchDamage(connection, root.root);
  if (!screen.attached() || !damage) return 2;
  const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, root.root, XCB_CW_EVENT_MASK, &events);
  const Pixels empty = screen.look();
  std::printf("ready\n");
  std::fflush(stdout);

  const auto kind = [](const Owned<xcb_generic_event_t>& event) { return event->response_type & 0x7F; };
  for (;;) {
    const Owned<xcb_generic_event_t> event(xcb_wait_for_event(connection), &std::free);
    if (!event) return 1;
    if (kind(event) == XCB_MAP_NOTIFY) break;
  }
  const long long mapped = micros();
  std::vector<Frame> frames{{mapped, empty}};
  const auto until = Clock::now() + std::chrono::milliseconds(static_cast<int>(std::atof(argv[1]) * 1000));
  while (auto event = nextEvent(connection, until)) {
    bool drawn = false;
    for (; event; event.reset(xcb_poll_for_queued_event(connection))) drawn = drawn || kind(event) == *damage;
    if (!drawn) continue;
    Pixels pixels = screen.look();
    constexpr size_t kFrames = 150;
    if (pixels != frames.back().pixels && frames.size() < kFrames) frames.push_back({micros(), std::move(pixels)});
  }
  size_t drawn = 0;  // pixels that are not the empty screen's
  for (size_t i = 0; i < empty.size(); ++i) drawn += empty[i] != frames.back().pixels[i] ? 1 : 0;
  size_t first = frames.size() - 1;
  while (first > 0 && alike(frames[first - 1].pixels, frames.back().pixels, drawn / 100)) --first;
  std::printf("mapped %lld\npicture %lld\n", mapped, frames[first].at);
  return 0;
}
