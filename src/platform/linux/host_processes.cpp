// Starting and watching programs. Nothing is killed: a started program outlives this one.
#include "platform/linux/host_processes.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "base/text.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
  std::vector<char*> all;
  all.reserve(texts.size() + 1);
  for (const std::string& text : texts) all.push_back(const_cast<char*>(text.c_str()));
  all.push_back(nullptr);
  return all;
}

/// With no signal held back: this program waits for some of its own in another way. 0 when it cannot be started.
pid_t spawn(const std::vector<std::string>& arguments, posix_spawn_file_actions_t& actions, char** environment, bool detached = false) {
  // Libraries open files too, and not all of them close theirs here.
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setflags(&attributes,
                           static_cast<short>(detached ? POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSID : POSIX_SPAWN_SETSIGMASK));
  pid_t pid = 0;
  const int error = posix_spawnp(&pid, arguments[0].c_str(), &actions, &attributes, pointersTo(arguments).data(), environment);
  posix_spawnattr_destroy(&attributes);
  return error == 0 ? pid : 0;
}

/// The name and state of a process of this user that lives: "12 (name) S ..."; "" for any other.
std::string livingName(const fs::path& process) {
  struct stat info {};
  if (::stat(process.c_str(), &info) != 0 || info.st_uid != ::getuid()) return {};
  std::ifstream file(process / "stat");
  std::string line;
  std::getline(file, line);
  const auto open = line.find('(');
  const auto close = line.rfind(')');
  if (open == std::string::npos || close == std::string::npos || close + 2 >= line.size()) return {};
  const char state = line[close + 2];
  return state == 'Z' || state == 'X' ? "" : line.substr(open + 1, close - open - 1);
}

bool isProgram(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

}  // namespace

HostProcesses::HostProcesses() {
  for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) environment_.emplace_back(*variable);
}

Processes::Id HostProcesses::start(const ProcessRequest& request) {
  reap();
  if (request.arguments.empty()) return 0;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  std::error_code error;
  if (fs::is_directory(request.folder, error)) posix_spawn_file_actions_addchdir_np(&actions, request.folder.c_str());
  const pid_t pid = spawn(request.arguments, actions, pointersTo(environment_).data(), request.detached);
  posix_spawn_file_actions_destroy(&actions);
  if (pid > 0) children_[pid] = std::nullopt;
  return pid;
}

void HostProcesses::reap() const {
  for (auto& [id, ended] : children_) {
    int status = 0;
    if (!ended && ::waitpid(id, &status, WNOHANG) != 0) ended = WIFEXITED(status) ? WEXITSTATUS(status) : kBrokeOff;
  }
}

bool HostProcesses::running(Id id) const {
  reap();
  const auto found = children_.find(id);
  return found != children_.end() && !found->second;
}

std::optional<int> HostProcesses::result(Id id) const {
  reap();
  const auto found = children_.find(id);
  return found == children_.end() ? std::optional(kBrokeOff) : found->second;
}

std::optional<int> HostProcesses::runAndWait(const ProcessRequest& request) {
  const Id id = start(request);
  if (id == 0) return std::nullopt;
  while (running(id)) {
    yield_();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return result(id);
}

bool HostProcesses::nameRuns(const std::string& program) const {
  constexpr size_t kKept = 15;  // letters of a name that the kernel keeps
  reap();
  std::error_code error;
  for (auto entry = fs::directory_iterator("/proc", error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = livingName(entry->path());
    if (!name.empty() && equalsNoCase(name, program.substr(0, kKept))) return true;
  }
  return false;
}

std::string HostProcesses::pathOf(const std::string& program) const {
  if (program.find('/') != std::string::npos) return isProgram(program) ? program : "";
  const char* path = std::getenv("PATH");
  std::istringstream folders(path != nullptr ? path : "");
  for (std::string folder; std::getline(folders, folder, ':');) {
    std::string found = joinPath(folder, program);
    if (!folder.empty() && !program.empty() && isProgram(found)) return found;
  }
  return {};
}

std::optional<std::string> outputOf(const std::vector<std::string>& arguments) {
  constexpr int kPatience = 2000;
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  const UniqueFd out(ends[0]);
  UniqueFd in(ends[1]);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in.get(), STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const pid_t pid = spawn(arguments, actions, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (pid == 0) return std::nullopt;
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
