// A TCP connection and a listener, both with events on the core's thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

class SocketEvents {
 public:
  virtual ~SocketEvents() = default;
  virtual void socketConnected() = 0;
  /// A piece as it arrived, bytes.
  virtual void socketData(std::string_view bytes) = 0;
  virtual void socketClosed() = 0;
  virtual void socketFailed(const std::string& reason) = 0;
};

class Socket {
 public:
  virtual ~Socket() = default;
  virtual void setEvents(SocketEvents* events) = 0;
  /// Returns at once; the outcome is an event.
  virtual void connect(const std::string& host, uint16_t port) = 0;
  /// Ignored unless connected.
  virtual void send(std::string_view bytes) = 0;
  virtual void close() = 0;
};

/// Bound to the loopback address only. Failing to listen is silent.
class Listener {
 public:
  virtual ~Listener() = default;
  virtual void listen(uint16_t port) = 0;
  virtual void close() = 0;
};

}  // namespace orvanta
