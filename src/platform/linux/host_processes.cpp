// Starting and watching programs. Nothing is killed: a started program outlives this one.
#include "platform/linux/host_processes.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "base/text.h"

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

}  // namespace orvanta
