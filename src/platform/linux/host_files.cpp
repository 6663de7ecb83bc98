// Whole-file reading and writing. A write goes to a file beside the old one, which it then replaces.
#include "platform/linux/host_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>

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

}  // namespace

std::string HostFiles::actual(const std::string& path) {
  std::error_code error;
  if (fs::exists(path, error)) return path;
  const fs::path wanted(path);
  for (auto entry = fs::directory_iterator(wanted.parent_path(), error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (equalsNoCase(entry->path().filename().string(), wanted.filename().string())) return entry->path().string();
  }
  return path;
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

bool HostFiles::write(const std::string& path, std::string_view bytes) {
  const std::string target = actual(path);
  const std::string fresh = target + ".new";
  UniqueFd fd(::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
  if (!fd) return false;
  const bool whole = writeAll(fd.get(), bytes) && ::fsync(fd.get()) == 0;
  fd = UniqueFd();
  if (whole && std::rename(fresh.c_str(), target.c_str()) == 0) return true;
  std::remove(fresh.c_str());
  return false;
}

bool HostFiles::remove(const std::string& path) {
  std::error_code error;
  const std::string target = actual(path);
  fs::remove(target, error);
  return !fs::exists(target, error);
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
  std::error_code error;
  fs::create_directories(path, error);
  return fs::is_directory(path, error);
}

std::vector<std::string> HostFiles::list(const std::string& folder) const {
  std::vector<std::string> names;
  std::error_code error;
  for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) { return upper(a) < upper(b); });
  return names;
}

}  // namespace orvanta
