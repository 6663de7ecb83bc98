// Whole-file reading and writing. A write goes to a file beside the old one, which it then replaces.
#include "platform/linux/host_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/text.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

constexpr int64_t kMaxFile = int64_t{64} << 20;

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = ::write(fd, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(done));
  }
  return true;
}

struct FolderCloser {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

/// A name that differs from `wanted` in letter case alone; "" when the folder has none. Each file that is not there costs
/// such a look, and the discs' folder may have many thousand names.
std::string inFolder(const fs::path& folder, std::string_view wanted) {
  const std::unique_ptr<DIR, FolderCloser> open(::opendir(folder.empty() ? "." : folder.c_str()));
  if (!open) return {};
  while (const dirent* entry = ::readdir(open.get())) {
    if (const std::string_view name = entry->d_name; equalsNoCase(name, wanted)) return entry->d_name;
  }
  return {};
}

/// A file that is reached through a link is replaced where it lies.
std::string behindLinks(const std::string& path) {
  std::error_code error;
  const fs::path real = fs::canonical(path, error);
  return error ? path : real.string();
}

mode_t modeOf(const std::string& path) {
  constexpr mode_t kUsual = 0644;
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 0777U : kUsual;
}

/// The errno of what went wrong; 0: all of it is on the disk, or, if that may wait, will be.
int putFresh(const std::string& path, std::string_view bytes, mode_t mode, bool mayWait) {
  std::remove(path.c_str());
  const UniqueFd fd(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!fd) return errno;
  errno = 0;
  if (writeAll(fd.get(), bytes) && (mayWait || ::fsync(fd.get()) == 0)) return 0;
  return errno != 0 ? errno : EIO;
}

/// The rename itself is on the disk when its folder is.
void syncFolder(const std::string& file) {
  const UniqueFd folder(::open(fs::path(file).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder) ::fsync(folder.get());
}

}  // namespace

std::string HostFiles::actual(const std::string& path) {
  std::error_code error;
  if (fs::exists(path, error)) return path;
  fs::path found;
  bool there = true;
  for (const fs::path& element : fs::path(path)) {
    fs::path next = found / element;
    if (there && !fs::exists(next, error)) {
      const std::string name = inFolder(found, element.string());
      there = !name.empty();
      if (there) next = found / name;
    }
    found = next;
  }
  return found.string();
}

std::optional<std::string> HostFiles::read(const std::string& path) const {
  const UniqueFd fd(::open(actual(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat info {};
  if (!fd || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxFile) return std::nullopt;
  std::string bytes(static_cast<size_t>(info.st_size), '\0');
  const ssize_t got = ::pread(fd.get(), bytes.data(), bytes.size(), 0);
  if (got < 0) return std::nullopt;
  bytes.resize(static_cast<size_t>(got));
  return bytes;
}

bool HostFiles::write(const std::string& path, std::string_view bytes) { return replace(behindLinks(actual(path)), bytes, false); }

bool HostFiles::writeNamed(const std::string& path, std::string_view bytes) { return replace(behindLinks(path), bytes, false); }

bool HostFiles::writeMarker(const std::string& path, std::string_view bytes) { return replace(behindLinks(actual(path)), bytes, true); }

/// The fresh file's name is this process's own: two that save at once do not write into one another's.
bool HostFiles::replace(const std::string& target, std::string_view bytes, bool mayWait) {
  const std::string fresh = target + "." + std::to_string(::getpid()) + ".new";
  error_ = putFresh(fresh, bytes, modeOf(target), mayWait);
  if (error_ == 0 && std::rename(fresh.c_str(), target.c_str()) != 0) error_ = errno;
  if (error_ != 0) {
    std::remove(fresh.c_str());
  } else if (!mayWait) {
    syncFolder(target);
  }
  return error_ == 0;
}

std::string HostFiles::reason() const { return error_ == 0 ? "" : std::generic_category().message(error_); }

bool HostFiles::remove(const std::string& path) {
  const bool gone = std::remove(actual(path).c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
  error_ = gone ? 0 : errno;
  return gone;
}

bool HostFiles::exists(const std::string& path) const {
  std::error_code error;
  return fs::exists(actual(path), error);
}

std::optional<FileTime> HostFiles::modified(const std::string& path) const {
  struct stat info {};
  struct tm local {};
  if (::stat(actual(path).c_str(), &info) != 0 || ::localtime_r(&info.st_mtime, &local) == nullptr) return std::nullopt;
  return FileTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

bool HostFiles::makeFolder(const std::string& path) {
  constexpr mode_t kUserAlone = 0700;
  const std::string target = actual(path);
  fs::path made;
  for (const fs::path& element : fs::path(target)) {
    made /= element;
    error_ = ::mkdir(made.c_str(), kUserAlone) == 0 || errno == EEXIST ? 0 : errno;
  }
  std::error_code error;
  if (fs::is_directory(target, error)) return true;
  if (error_ == 0) error_ = ENOTDIR;
  return false;
}

std::vector<std::string> HostFiles::list(const std::string& folder) const {
  std::vector<std::string> names;
  std::error_code error;
  for (auto entry = fs::directory_iterator(actual(folder), error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) { return upper(a) < upper(b); });
  return names;
}

}  // namespace orvanta
