// XDG folders, and the folder that this program was started from.
#include "platform/linux/host_system.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "base/text.h"
#include "platform/linux/associations.h"

namespace orvanta {

namespace {

/// The home folder; without $HOME the one that the system has for this user.
std::string homeFolder() {
  const char* home = std::getenv("HOME");
  if (home != nullptr && home[0] == '/') return home;
  const passwd* user = ::getpwuid(::getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

/// $`variable` when it is an absolute path, as its rules ask, else `rest` in the home folder.
std::string xdgFolder(const char* variable, const char* rest) {
  const char* set = std::getenv(variable);
  if (set != nullptr && set[0] == '/') return set;
  return joinPath(homeFolder(), rest);
}

}  // namespace

std::string HostSystem::configHome() { return xdgFolder("XDG_CONFIG_HOME", ".config"); }

std::string HostSystem::dataHome() { return xdgFolder("XDG_DATA_HOME", ".local/share"); }

std::string HostSystem::discFolder() { return joinPath(xdgFolder("XDG_CACHE_HOME", ".cache"), "orvanta/disc"); }

std::string HostSystem::systemDir() const { return joinPath(configHome(), "orvanta"); }

std::string HostSystem::defaultDataDir() const { return joinPath(dataHome(), "orvanta"); }

std::string HostSystem::programFor(const std::vector<std::string>& types) const { return associatedCommand(types); }

std::string HostSystem::windowsDir() const {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

std::string HostSystem::mixerProgram() const {
  const char* path = std::getenv("PATH");
  std::error_code error;
  for (const char* name : {"pavucontrol", "pavucontrol-qt", "kmix", "mate-volume-control", "xfce4-mixer", "alsamixergui"}) {
    std::istringstream folders(path != nullptr ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
      std::string program = joinPath(folder, name);
      if (!folder.empty() && std::filesystem::is_regular_file(program, error)) return program;
    }
  }
  return {};
}

void HostSystem::changeDrive(const std::string& drive, const std::string& disc) {
  const auto set = [this](const char* option, const std::string& value) {
    const auto at = std::find(handedOn_.begin(), handedOn_.end(), option);
    if (at != handedOn_.end()) handedOn_.erase(at, at + 2);
    if (!value.empty()) handedOn_.insert(handedOn_.end(), {option, value});
  };
  set("--drive", drive);
  set("--disc", disc);
}

std::string HostSystem::demoFolder() const {
  return std::filesystem::path(windowsDir() + "/../share/orvanta/demo").lexically_normal().string();
}

}  // namespace orvanta
