// Starting and watching programs. Nothing is killed: a started program outlives this one.
#include "platform/linux/host_processes.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "base/text.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

Processes::Id HostProcesses::start(const ProcessRequest& request) {
  if (request.arguments.empty()) return 0;
  std::vector<char*> arguments;
  for (const std::string& argument : request.arguments) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  if (!request.folder.empty()) posix_spawn_file_actions_addchdir_np(&actions, request.folder.c_str());
  pid_t pid = 0;
  const int error = posix_spawnp(&pid, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return error == 0 ? pid : 0;
}

bool HostProcesses::running(Id id) const {
  if (id <= 0 || ended_[id]) return false;
  int status = 0;
  if (::waitpid(id, &status, WNOHANG) != 0) ended_[id] = true;
  return !ended_[id];
}

bool HostProcesses::runAndWait(const ProcessRequest& request) {
  const Id id = start(request);
  while (running(id)) {
    yield_();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return id != 0;
}

bool HostProcesses::nameRuns(const std::string& program) const {
  std::error_code error;
  for (auto entry = std::filesystem::directory_iterator("/proc", error); !error && entry != std::filesystem::directory_iterator();
       entry.increment(error)) {
    std::ifstream file(entry->path() / "comm");
    std::string name;
    // The kernel keeps 15 letters of a name.
    if (std::getline(file, name) && name == program.substr(0, 15)) return true;
  }
  return false;
}

std::optional<std::string> outputOf(const std::vector<std::string>& arguments) {
  constexpr int kPatience = 2000;
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  const UniqueFd out(ends[0]);
  UniqueFd in(ends[1]);
  std::vector<char*> words;
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in.get(), STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  const int error = posix_spawnp(&pid, words[0], &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) return std::nullopt;
  in = UniqueFd();
  std::string text;
  char bytes[512];
  pollfd wait{out.get(), POLLIN, 0};
  ssize_t got = 1;
  while (got > 0) {
    if (::poll(&wait, 1, kPatience) <= 0) {
      ::kill(pid, SIGKILL);
      break;
    }
    got = ::read(out.get(), bytes, sizeof bytes);
    if (got > 0) text.append(bytes, static_cast<size_t>(got));
  }
  int status = 0;
  ::waitpid(pid, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) return std::nullopt;
  return text;
}

}  // namespace orvanta
