// Unix sockets, one line each way.
#include "platform/linux/local_socket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <thread>

#include "base/text.h"

namespace orvanta {

namespace {

constexpr std::chrono::seconds kRequestTime{1};  ///< from the connection to the end of the line
constexpr size_t kMostBytes = 8192;              ///< of a line
constexpr size_t kMostOfWord = 64;               ///< of its first word
constexpr size_t kMostPeers = 16;
constexpr size_t kPiece = 1024;

std::optional<sockaddr_un> addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

struct Reply {
  std::optional<std::string> line;  ///< nullopt when none came
  bool gone = false;                ///< the other side closed before it
};

/// Of a server, within `milliseconds` in all.
Reply readReply(int fd, int milliseconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  std::string line;
  while (line.size() < kMostBytes) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
    pollfd wait{fd, POLLIN, 0};
    if (left <= 0 || ::poll(&wait, 1, static_cast<int>(left)) <= 0) return {};
    char c = 0;
    if (::recv(fd, &c, 1, 0) != 1) return {std::nullopt, true};
    if (c == '\n') return {line, false};
    line += c;
  }
  return {};
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

std::string identityOf(const std::string& folder) {
  struct stat info {};
  if (::stat(folder.c_str(), &info) != 0) return folder;
  return std::to_string(info.st_dev) + ":" + std::to_string(info.st_ino);
}

SocketServer::SocketServer(std::string path, std::string lockFolder) : path_(std::move(path)), lockFolder_(std::move(lockFolder)) {
  listen();
}

SocketServer::~SocketServer() {
  if (listener_) ::unlink(path_.c_str());
}

/// Outlives its server in a thread that may wait for ever.
struct SocketServer::Turn {
  UniqueFd folder;
  std::atomic<bool> come = false;
};

void SocketServer::waitInLine() {
  if (lockFolder_.empty() || lock_ || turn_) return;
  auto turn = std::make_shared<Turn>();
  turn->folder = UniqueFd(::open(lockFolder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!turn->folder) return;
  turn_ = turn;
  std::thread([turn] {
    while (::flock(turn->folder.get(), LOCK_EX) != 0) {
      if (errno != EINTR) return;
    }
    turn->come = true;
  }).detach();
}

bool SocketServer::listen() {
  if (listener_) return true;
  if (turn_) {
    if (!turn_->come) return false;
    lock_ = std::move(turn_->folder);
    turn_.reset();
  }
  if (!lockFolder_.empty() && !lock_) {
    UniqueFd folder(::open(lockFolder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder && ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0) return false;
    lock_ = std::move(folder);
  }
  const auto address = addressOf(path_);
  UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  UniqueFd events(::epoll_create1(EPOLL_CLOEXEC));
  if (!address || !fd || !events) return false;
  ::unlink(path_.c_str());
  const mode_t before = ::umask(0177);
  const bool listens =
      ::bind(fd.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 && ::listen(fd.get(), kMostPeers) == 0;
  ::umask(before);
  epoll_event wanted{EPOLLIN, {}};
  if (!listens || ::epoll_ctl(events.get(), EPOLL_CTL_ADD, fd.get(), &wanted) != 0) return false;
  listener_ = std::move(fd);
  events_ = std::move(events);
  return true;
}

void SocketServer::accept() {
  while (true) {
    UniqueFd fd(::accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    epoll_event wanted{EPOLLIN, {}};
    if (!fd || ::epoll_ctl(events_.get(), EPOLL_CTL_ADD, fd.get(), &wanted) != 0) return;
    if (peers_.size() == kMostPeers) peers_.pop_front();
    peers_.push_back({std::move(fd), Clock::now(), {}});
  }
}

bool SocketServer::take(Peer& peer) {
  char piece[kPiece];
  ssize_t got = 0;
  while ((got = ::recv(peer.fd.get(), piece, sizeof piece, 0)) > 0) {
    peer.bytes.append(piece, static_cast<size_t>(got));
    if (peer.bytes.find('\n') != std::string::npos) break;
    if (peer.bytes.size() > kMostBytes) return false;
  }
  const bool more = got < 0 && (errno == EAGAIN || errno == EINTR);
  const bool longWord = std::min(peer.bytes.find_first_of(" \t\n"), peer.bytes.size()) > kMostOfWord;
  return !longWord && (got > 0 || more) && Clock::now() - peer.since < kRequestTime;
}

std::optional<SocketServer::Request> SocketServer::next() {
  if (!listener_) return std::nullopt;
  accept();
  for (auto peer = peers_.begin(); peer != peers_.end();) {
    const bool good = take(*peer);
    const auto end = good ? peer->bytes.find('\n') : std::string::npos;
    if (end != std::string::npos) {
      Request request{std::move(peer->fd), peer->bytes.substr(0, end)};
      ::epoll_ctl(events_.get(), EPOLL_CTL_DEL, request.from.get(), nullptr);
      peers_.erase(peer);
      return request;
    }
    peer = good ? std::next(peer) : peers_.erase(peer);
  }
  return std::nullopt;
}

void SocketServer::reply(const Request& request, const std::string& line) { sendLine(request.from.get(), line); }

Asked askWhoListens(const std::string& path, const std::string& line, int milliseconds) {
  const auto address = addressOf(path);
  const UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!address || !fd) return {};
  const timeval patience{milliseconds / 1000, suseconds_t{milliseconds % 1000} * 1000};
  ::setsockopt(fd.get(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  // EAGAIN: somebody listens, and so many wait that there is no room for one more.
  if (::connect(fd.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0) return {errno == EAGAIN, std::nullopt};
  sendLine(fd.get(), line);
  Reply reply = readReply(fd.get(), milliseconds);
  // One that went away without a word has not taken it.
  return {!reply.gone, std::move(reply.line)};
}

std::optional<std::string> ask(const std::string& path, const std::string& line, int milliseconds) {
  return askWhoListens(path, line, milliseconds).reply;
}

}  // namespace orvanta
