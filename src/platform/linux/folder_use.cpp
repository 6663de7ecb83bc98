// What each process holds, /proc tells by links.
#include "platform/linux/folder_use.h"

#include <filesystem>

#include "base/text.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

/// `top` ends in "/".
bool leadsBelow(const fs::path& link, const std::string& top) {
  std::error_code error;
  const fs::path target = fs::read_symlink(link, error);
  return !error && (target.string() + '/').starts_with(top);
}

bool holds(const fs::path& process, const std::string& top) {
  if (leadsBelow(process / "exe", top) || leadsBelow(process / "cwd", top)) return true;
  std::error_code error;
  for (auto file = fs::directory_iterator(process / "fd", error); !error && file != fs::directory_iterator(); file.increment(error)) {
    if (leadsBelow(file->path(), top)) return true;
  }
  return false;
}

}  // namespace

bool folderInUse(const std::string& folder) {
  std::error_code error;
  const fs::path real = fs::canonical(folder, error);
  if (error) return false;
  const std::string top = joinPath(real.string(), "");
  for (auto entry = fs::directory_iterator("/proc", error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (leadingNumber(entry->path().filename().string()) > 0 && holds(entry->path(), top)) return true;
  }
  return false;
}

}  // namespace orvanta
