// Looking up names as careful systems and careless people write them.
#include "platform/disc/image_path.h"

#include <algorithm>

#include "base/text.h"
#include "platform/disc/same_name.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

constexpr size_t kMostShown = 100;  ///< characters
constexpr size_t kShownEnd = 40;

/// `name` in `folder` as it is, or the entry that means the same.
fs::path entryOf(const fs::path& folder, const fs::path& name) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(folder / name, error))) return folder / name;
  for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (sameName(entry->path().filename().string(), name.string())) return entry->path();
  }
  return folder / name;
}

bool liesIn(const fs::path& path, const fs::path& folder) {
  const auto [end, rest] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return end == folder.end() && rest != path.end();
}

}  // namespace

ImagePath resolveInside(const std::string& folder, const std::string& name) {
  std::string forward = name;
  std::replace(forward.begin(), forward.end(), '\\', '/');
  std::error_code error;
  const fs::path base = fs::canonical(folder, error);
  if (error || forward.empty()) return {{}, inQuotes(name) + " is missing"};
  if (fs::path(forward).is_absolute() || (forward.size() > 1 && forward[1] == ':'))
    return {{}, inQuotes(name) + " lies outside its folder"};
  fs::path path = base;
  for (const fs::path& part : fs::path(forward)) path = part == ".." || part == "." ? path / part : entryOf(path, part);
  const fs::path real = fs::canonical(path, error);
  if (error) return {{}, inQuotes(name) + " is missing"};
  if (!liesIn(real, base)) return {{}, inQuotes(name) + " lies outside its folder"};
  return {real, ""};
}

std::string shown(std::string_view name) {
  std::string line = withoutControls(name);
  const size_t count = characterCount(line);
  if (count <= kMostShown) return line;
  const size_t end = firstCharacters(line, count - kShownEnd).size();
  return std::string(firstCharacters(line, kMostShown - kShownEnd)) + "..." + line.substr(end);
}

std::string inQuotes(std::string_view name) { return "\"" + shown(name) + "\""; }

}  // namespace orvanta
