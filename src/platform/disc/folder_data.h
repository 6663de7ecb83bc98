// The files of a disc under a folder of this machine: where the desktop has mounted it, or where they were copied to.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ports/disc_data.h"

namespace orvanta {

/// What /proc/self/mounts holds, or another such list; what lies behind 4 MB of it is left out.
std::string mountList(const std::string& path);

/// Where the desktop has mounted a device, by the text of /proc/self/mounts; `same` tells whether a source is that device. "" for
/// nowhere.
std::string mountPointIn(const std::string& mounts, const std::function<bool(const std::string& source)>& same);
std::string mountPointOf(const std::string& device);

class FolderData : public DiscData {
 public:
  /// `root` is asked each time: discs come and go.
  explicit FolderData(std::function<std::string()> root) : root_(std::move(root)) {}

  std::string disc() override;
  std::vector<std::string> rootFiles() override;
  std::string find(const std::string& way) override;
  std::string read(const std::string& way, size_t most) override;
  std::string bring(const std::string& way) override;
  std::string folder() override { return root_(); }
  std::string wayOf(const std::string& path) override;
  /// What is read where it lies is not copied.
  std::vector<std::string> takeUnread() override { return {}; }

 private:
  std::function<std::string()> root_;
};

}  // namespace orvanta
