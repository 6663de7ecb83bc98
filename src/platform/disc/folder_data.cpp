// Links are followed first: what counts is where a file lies in truth.
#include "platform/disc/folder_data.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "base/text.h"
#include "platform/disc/image_file.h"
#include "platform/disc/image_path.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

/// "\040" is a blank.
std::string unescapedPath(const std::string& text) {
  std::string path;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool code = text[i] == '\\' && i + 3 < text.size();
    path += code ? static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0')) : text[i];
    if (code) i += 3;
  }
  return path;
}

/// A path below `root`, from there on, when it names a regular file in truth; "" otherwise.
std::string below(const std::string& root, const std::string& path) {
  std::error_code error;
  const fs::path top = fs::canonical(root, error);
  if (root.empty() || error) return {};
  const fs::path file = fs::canonical(path, error);
  if (error || !fs::is_regular_file(file, error)) return {};
  const std::string start = joinPath(top.string(), "");
  return file.string().starts_with(start) ? file.string().substr(start.size()) : "";
}

}  // namespace

std::string mountPointIn(const std::string& mounts, const std::function<bool(const std::string& source)>& same) {
  std::istringstream lines(mounts);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string source;
    std::string target;
    if (fields >> source >> target && source.starts_with('/') && same(unescapedPath(source))) return unescapedPath(target);
  }
  return {};
}

/// The kernel tells no size of it beforehand.
std::string mountList(const std::string& path) {
  constexpr size_t kMost = size_t{4} << 20;
  constexpr size_t kPiece = 65536;
  const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  std::string list;
  for (size_t got = fd ? kPiece : 0; got == kPiece && list.size() < kMost;) {
    const size_t before = list.size();
    list.resize(before + kPiece);
    got = static_cast<size_t>(std::max<int64_t>(readAt(fd.get(), static_cast<int64_t>(before), kPiece, &list[before]), 0));
    list.resize(before + got);
  }
  return list;
}

std::string mountPointOf(const std::string& device) {
  struct stat own {};
  if (::stat(device.c_str(), &own) != 0) return {};
  return mountPointIn(mountList("/proc/self/mounts"), [&](const std::string& source) {
    struct stat info {};
    return ::stat(source.c_str(), &info) == 0 && S_ISBLK(info.st_mode) && info.st_rdev == own.st_rdev;
  });
}

/// Another disc in the same drive is a file system of its own, made at another time.
std::string FolderData::disc() {
  const std::string root = root_();
  struct stat info {};
  if (root.empty() || ::stat(root.c_str(), &info) != 0) return {};
  return root + ' ' + std::to_string(info.st_dev) + ' ' + std::to_string(info.st_ino) + ' ' + std::to_string(info.st_mtime);
}

std::vector<std::string> FolderData::rootFiles() {
  std::vector<std::string> names;
  const std::string root = root_();
  if (root.empty()) return names;
  std::error_code error;
  for (auto entry = fs::directory_iterator(root, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (!below(root, entry->path().string()).empty()) names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string FolderData::find(const std::string& way) {
  const std::string root = root_();
  return root.empty() || way.empty() ? "" : below(root, resolveInside(root, way).path.string());
}

std::string FolderData::read(const std::string& way, size_t most) {
  // Never waits: a pipe in a file's place gives nothing.
  const UniqueFd fd(::open(joinPath(root_(), way).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat info {};
  if (!fd || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) return {};
  std::string bytes(std::min(most, static_cast<size_t>(info.st_size)), '\0');
  const int64_t got = readAt(fd.get(), 0, static_cast<int64_t>(bytes.size()), bytes.data());
  bytes.resize(static_cast<size_t>(std::max<int64_t>(got, 0)));
  return bytes;
}

std::string FolderData::bring(const std::string& way) {
  const std::string found = find(way);
  std::error_code error;
  return found.empty() ? "" : fs::canonical(joinPath(root_(), found), error).string();
}

std::string FolderData::wayOf(const std::string& path) { return below(root_(), path); }

}  // namespace orvanta
