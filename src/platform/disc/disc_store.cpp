// A store's name begins with the number of the process that made it.
#include "platform/disc/disc_store.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>

#include "base/text.h"
#include "platform/linux/folder_use.h"
#include "platform/linux/host_files.h"

namespace orvanta {

namespace fs = std::filesystem;

void DiscStore::clear() const {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(stores_, error)) {
    const auto owner = static_cast<pid_t>(leadingNumber(entry.path().filename().string()));
    const bool ended = owner == ::getpid() || owner <= 0 || (::kill(owner, 0) != 0 && errno == ESRCH);
    if (ended && !folderInUse(entry.path().string())) fs::remove_all(entry.path(), error);
  }
}

bool DiscStore::renew() {
  clear();
  const std::string own = joinPath(stores_, std::to_string(::getpid()));
  std::error_code error;
  folder_ = own;
  // A program of the disc before may still run from there.
  for (int i = 2; fs::exists(folder_, error); ++i) folder_ = own + "-" + std::to_string(i);
  return HostFiles().makeFolder(folder_);
}

void DiscStore::drop() {
  std::error_code error;
  if (!folder_.empty()) fs::remove_all(folder_, error);
  folder_.clear();
}

}  // namespace orvanta
