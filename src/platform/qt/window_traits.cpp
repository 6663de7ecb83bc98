// Qt has flags for above and below. A window without a task button it knows only as a part of another one, which would go and
// come with that: so X11's window managers are asked directly.
#include "platform/qt/window_traits.h"

#include <xcb/xcb.h>
#include <QGuiApplication>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace orvanta {

namespace {

xcb_atom_t atomOf(xcb_connection_t* server, std::string_view name) {
  const auto asked = xcb_intern_atom(server, 0, static_cast<uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(xcb_intern_atom_reply(server, asked, nullptr), &std::free);
  return reply == nullptr ? static_cast<xcb_atom_t>(XCB_ATOM_NONE) : reply->atom;
}

/// nullptr where there is none.
xcb_connection_t* x11Server() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

}  // namespace

Qt::WindowFlags flagsOf(const forms::WindowTraits& traits) {
  Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
  if (traits.onTop) flags |= Qt::WindowStaysOnTopHint;
  if (traits.behind) flags |= Qt::WindowStaysOnBottomHint | Qt::WindowDoesNotAcceptFocus;
  return flags;
}

void tellDesktop(QWidget& window, const forms::WindowTraits& traits) {
  xcb_connection_t* server = x11Server();
  if (server == nullptr || traits.inTaskbar || window.isVisible()) return;
  // What Qt has to say of the window's state it adds when it shows it.
  const std::array<xcb_atom_t, 2> states = {atomOf(server, "_NET_WM_STATE_SKIP_TASKBAR"), atomOf(server, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(server, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()), atomOf(server, "_NET_WM_STATE"),
                      XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void cancelSystemMove(QWidget& window) {
  constexpr uint32_t kCancel = 11;  // of the directions of a move
  xcb_connection_t* server = x11Server();
  if (server == nullptr) return;
  xcb_client_message_event_t asked{};
  asked.response_type = XCB_CLIENT_MESSAGE;
  asked.format = 32;
  asked.window = static_cast<xcb_window_t>(window.winId());
  asked.type = atomOf(server, "_NET_WM_MOVERESIZE");
  asked.data.data32[2] = kCancel;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
  // A message of 32 bytes, as all of the protocol's.
  xcb_send_event(server, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&asked));
  xcb_flush(server);
}

}  // namespace orvanta
