// Files of the host.
#pragma once

#include "platform/ports/files.h"

namespace orvanta {

class HostFiles : public Files {
 public:
  std::optional<std::string> read(const std::string& path) const override;
  bool write(const std::string& path, std::string_view bytes) override;
  bool remove(const std::string& path) override;
  bool exists(const std::string& path) const override;
  std::optional<FileTime> modified(const std::string& path) const override;
  bool makeFolder(const std::string& path) override;
  std::vector<std::string> list(const std::string& folder) const override;

 private:
  /// The path as it stands on disk, in whatever letter case its last name is.
  static std::string actual(const std::string& path);
};

}  // namespace orvanta
