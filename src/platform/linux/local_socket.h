// Lines between programs of one user: a socket file that nobody else can open.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/unique_fd.h"

namespace orvanta {

/// "$XDG_RUNTIME_DIR/orvanta-PURPOSE-HASH", the hash being of `subject` (a folder, a drive).
std::string socketPath(const std::string& purpose, const std::string& subject);

class SocketServer {
 public:
  /// Takes the place of whoever listened there before; a server that cannot listen hears nothing.
  explicit SocketServer(const std::string& path);
  /// To be waited on for reading; -1 when it does not listen.
  int fd() const { return fd_ ? fd_.get() : -1; }

  struct Request {
    UniqueFd from;
    std::string line;
  };
  /// What has come; never waits longer than a moment for a line that was begun.
  std::optional<Request> next();
  static void reply(const Request& request, const std::string& line);

 private:
  UniqueFd fd_;
};

/// Sends a line and returns the reply; nullopt when nobody listens or no reply comes in `milliseconds`.
std::optional<std::string> ask(const std::string& path, const std::string& line, int milliseconds);

}  // namespace orvanta
