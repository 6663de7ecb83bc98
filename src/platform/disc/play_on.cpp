// The deck's side of the hand-over.
#include "platform/disc/play_on.h"

#include <charconv>
#include <chrono>
#include <thread>

#include "base/log.h"
#include "platform/linux/host_processes.h"
#include "platform/linux/local_socket.h"

namespace orvanta {

namespace {

constexpr int kReply = 1000;  ///< milliseconds
constexpr auto kStart = std::chrono::milliseconds(3000);

}  // namespace

std::string playWords(const Stretch& stretch) { return std::to_string(stretch.from) + " " + std::to_string(stretch.to); }

std::optional<Stretch> stretchOf(const std::string& words) {
  Stretch stretch;
  const char* end = words.data() + words.size();
  const auto from = std::from_chars(words.data(), end, stretch.from);
  if (from.ec != std::errc{} || from.ptr == end || *from.ptr != ' ') return std::nullopt;
  const auto to = std::from_chars(from.ptr + 1, end, stretch.to);
  return to.ec == std::errc{} && to.ptr == end ? std::optional(stretch) : std::nullopt;
}

bool handOn(Player& player, int to, const std::string& drive, const std::string& program, const std::vector<std::string>& arguments) {
  HostProcesses processes;
  ProcessRequest request{{program}, "", WindowStyle::Hidden};
  request.arguments.insert(request.arguments.end(), arguments.begin(), arguments.end());
  const Processes::Id id = processes.start(request);
  const std::string socket = socketPath("play", drive);
  const auto patience = std::chrono::steady_clock::now() + kStart;
  // Ours plays on until the other knows the disc.
  while (ask(socket, "ready", kReply) != "ok") {
    if (!processes.running(id) || std::chrono::steady_clock::now() > patience) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  const Stretch rest{player.frame(), to};
  player.stop();
  const bool taken = ask(socket, "play " + playWords(rest), kReply) == "ok";
  if (logs("sound")) logLine("sound", "handed on at frame " + std::to_string(rest.from));
  return taken;
}

std::optional<Stretch> takeBack(const std::string& drive) {
  const auto words = ask(socketPath("play", drive), "take", kReply);
  return words ? stretchOf(*words) : std::nullopt;
}

}  // namespace orvanta
