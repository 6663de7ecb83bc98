// watch_screen SECONDS: waits for a window, then watches the screen for so long. Prints, in microseconds of the
// monotonic clock, when the window was mapped and when the screen first looked as it did in the end, but for a hundredth of
// its pixels: a clock that ticks is no new picture.
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

long long micros() { return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now().time_since_epoch()).count(); }

struct Frame {
  long long at;
  std::vector<uint32_t> pixels;
};

std::vector<uint32_t> look(xcb_connection_t* connection, const xcb_screen_t& screen) {
  const auto cookie =
      xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, 0, 0, screen.width_in_pixels, screen.height_in_pixels, ~0U);
  const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image(xcb_get_image_reply(connection, cookie, nullptr), &std::free);
  if (!image) return {};
  std::vector<uint32_t> pixels(static_cast<size_t>(xcb_get_image_data_length(image.get())) / 4);
  std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * 4);
  return pixels;
}

bool alike(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b, size_t differing) {
  for (size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && differing-- == 0) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (argc != 2 || xcb_connection_has_error(connection) != 0) return 2;
  const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
  const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, screen.root, XCB_CW_EVENT_MASK, &events);
  const auto empty = look(connection, screen);
  std::printf("ready\n");
  std::fflush(stdout);
  while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
    const bool mapped = (event->response_type & 0x7F) == XCB_MAP_NOTIFY;
    std::free(event);
    if (mapped) break;
  }
  const long long mapped = micros();
  std::vector<Frame> frames{{mapped, empty}};
  const auto until = Clock::now() + std::chrono::milliseconds(static_cast<int>(std::atof(argv[1]) * 1000));
  while (Clock::now() < until) {
    auto pixels = look(connection, screen);
    if (pixels != frames.back().pixels && frames.size() < 150) frames.push_back({micros(), std::move(pixels)});
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
  }
  size_t drawn = 0;  // pixels that are not the empty screen's
  for (size_t i = 0; i < empty.size(); ++i) drawn += empty[i] != frames.back().pixels[i] ? 1 : 0;
  size_t first = frames.size() - 1;
  while (first > 0 && alike(frames[first - 1].pixels, frames.back().pixels, drawn / 100)) --first;
  std::printf("mapped %lld\npicture %lld\n", mapped, frames[first].at);
  return 0;
}
