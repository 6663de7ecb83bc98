// The network: TCP connections, a listener, and HTTP questions. Nothing here waits: what comes of a call
// is told by an event on the core's thread, never before the call has returned.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/ports/http.h"

namespace orvanta {

/// A handler is not entered again while one runs, not even while a box is open in it.
class ConnectionEvents {
 public:
  virtual ~ConnectionEvents() = default;
  virtual void connected() = 0;
  /// A piece as it arrived, bytes.
  virtual void received(std::string_view bytes) = 0;
  /// The peer closed; nothing comes any more.
  virtual void closed() = 0;
  /// It never came about, or broke; the system's words for it.
  virtual void failed(const std::string& reason) = 0;
};

/// Dropping it first sends what was given, within a few seconds, then closes; nothing is delivered
/// afterwards. It may be dropped in a handler of its own.
class Connection {
 public:
  virtual ~Connection() = default;
  /// False when it is not connected, or not any more; nothing is sent then.
  virtual bool send(std::string_view bytes) = 0;
};

/// A question under way; dropping it gives it up, and nothing is delivered. It may be dropped in its own answer.
class Exchange {
 public:
  virtual ~Exchange() = default;
};

class Net {
 public:
  virtual ~Net() = default;
  virtual std::unique_ptr<Connection> connect(const std::string& host, uint16_t port, ConnectionEvents& events) = 0;
  /// Takes connections on the loopback address, reads nothing from them, and lets the last one live. Failing to
  /// listen is silent.
  virtual std::unique_ptr<Connection> listen(uint16_t port) = 0;
  virtual std::unique_ptr<Exchange> post(const HttpRequest& request, std::function<void(const HttpReply&)> done) = 0;
};

}  // namespace orvanta
