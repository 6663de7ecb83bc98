// Unix sockets, one line each way.
#include "platform/linux/local_socket.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

#include "base/text.h"

namespace orvanta {

namespace {

constexpr int kPatience = 200;  ///< milliseconds for a line that was begun
constexpr size_t kMostBytes = 8192;

std::optional<sockaddr_un> addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

bool waitFor(int fd, int milliseconds) {
  pollfd wait{fd, POLLIN, 0};
  return ::poll(&wait, 1, milliseconds) > 0;
}

std::optional<std::string> readLine(int fd, int milliseconds) {
  std::string line;
  char c = 0;
  while (line.size() < kMostBytes && waitFor(fd, milliseconds) && ::recv(fd, &c, 1, 0) == 1) {
    if (c == '\n') return line;
    line += c;
  }
  return std::nullopt;
}

void sendLine(int fd, const std::string& line) {
  const std::string bytes = line + "\n";
  // A peer that has gone must not end us by a signal.
  [[maybe_unused]] const ssize_t sent = ::send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

/// Without a runtime folder, one of our own that only this user can enter.
std::string runtimeFolder() {
  const char* set = std::getenv("XDG_RUNTIME_DIR");
  if (set != nullptr && set[0] == '/') return set;
  const std::string own = "/tmp/orvanta-" + std::to_string(::getuid());
  ::mkdir(own.c_str(), 0700);
  struct stat info {};
  const bool ours = ::lstat(own.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::getuid() && (info.st_mode & 077U) == 0;
  return ours ? own : "/nonexistent";
}

}  // namespace

std::string socketPath(const std::string& purpose, const std::string& subject) {
  char hash[32];
  std::snprintf(hash, sizeof hash, "%016zx", std::hash<std::string>{}(subject));
  return joinPath(runtimeFolder(), "orvanta-" + purpose + "-" + hash);
}

SocketServer::SocketServer(const std::string& path) {
  const auto address = addressOf(path);
  UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!address || !fd) return;
  ::unlink(path.c_str());
  const mode_t before = ::umask(0177);
  const bool listens = ::bind(fd.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 && ::listen(fd.get(), 8) == 0;
  ::umask(before);
  if (listens) fd_ = std::move(fd);
}

std::optional<SocketServer::Request> SocketServer::next() {
  if (!fd_) return std::nullopt;
  Request request{UniqueFd(::accept4(fd_.get(), nullptr, nullptr, SOCK_CLOEXEC)), {}};
  if (!request.from) return std::nullopt;
  request.line = readLine(request.from.get(), kPatience).value_or("");
  return request;
}

void SocketServer::reply(const Request& request, const std::string& line) { sendLine(request.from.get(), line); }

std::optional<std::string> ask(const std::string& path, const std::string& line, int milliseconds) {
  const auto address = addressOf(path);
  const UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!address || !fd || ::connect(fd.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0) return std::nullopt;
  sendLine(fd.get(), line);
  return readLine(fd.get(), milliseconds);
}

}  // namespace orvanta
