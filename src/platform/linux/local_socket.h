// Lines between programs of one user: a socket file that nobody else can open.
#pragma once

#include <chrono>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/unique_fd.h"

namespace orvanta {

/// "$XDG_RUNTIME_DIR/orvanta-PURPOSE-HASH", the hash being of `subject` (a folder, a drive).
std::string socketPath(const std::string& purpose, const std::string& subject);

/// A folder's own identity, however its path is spelled; the path of one that is not there.
std::string identityOf(const std::string& folder);

/// Reads without blocking: a peer that writes slowly, too much, or nothing at all holds nobody up.
class SocketServer {
 public:
  /// With a folder to be locked, one server at a time listens for it; without one it takes the place of whoever
  /// listened there before.
  explicit SocketServer(std::string path, std::string lockFolder = {});
  SocketServer(const SocketServer&) = delete;
  SocketServer& operator=(const SocketServer&) = delete;
  /// Takes the socket's file away.
  ~SocketServer();

  /// Tries once more where another one listened at first. True when it listens.
  bool listen();
  /// Whoever has the folder now is about to go: from here on this one is the next to have it, before any that comes later.
  void waitInLine();
  /// To be waited on for reading, for whatever next() has to do; -1 when it does not listen.
  int fd() const { return listener_ ? events_.get() : -1; }

  struct Request {
    UniqueFd from;
    std::string line;
  };
  /// What has come whole; nullopt when nothing has.
  std::optional<Request> next();
  static void reply(const Request& request, const std::string& line);

 private:
  using Clock = std::chrono::steady_clock;
  struct Peer {
    UniqueFd fd;
    Clock::time_point since;
    std::string bytes;
  };
  void accept();
  /// False: the peer is to be let go of.
  static bool take(Peer& peer);

  std::string path_;
  std::string lockFolder_;
  UniqueFd lock_;
  struct Turn;
  std::shared_ptr<Turn> turn_;  ///< while it waits in line
  UniqueFd events_;
  UniqueFd listener_;
  std::list<Peer> peers_;
};

/// What came of a question to whoever listens.
struct Asked {
  bool delivered = false;            ///< somebody listens, and has the line or will have it
  std::optional<std::string> reply;  ///< nullopt when none came in time
};
Asked askWhoListens(const std::string& path, const std::string& line, int milliseconds);

/// Sends a line and returns the reply; nullopt when nobody listens or no reply comes in `milliseconds`.
std::optional<std::string> ask(const std::string& path, const std::string& line, int milliseconds);

}  // namespace orvanta
