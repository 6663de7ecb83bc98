// Files of the host.
#pragma once

#include "platform/ports/files.h"

namespace orvanta {

class HostFiles : public Files {
 public:
  std::optional<std::string> read(const std::string& path) const override;
  bool write(const std::string& path, std::string_view bytes) override;
  bool writeNamed(const std::string& path, std::string_view bytes) override;
  bool writeMarker(const std::string& path, std::string_view bytes) override;
  bool remove(const std::string& path) override;
  std::string reason() const override;
  bool exists(const std::string& path) const override;
  std::optional<FileTime> modified(const std::string& path) const override;
  bool makeFolder(const std::string& path) override;
  std::vector<std::string> list(const std::string& folder) const override;

  /// The path as it stands on disk, each of its elements in whatever letter case it is there. What is not there
  /// stays as it was given.
  static std::string actual(const std::string& path);

 private:
  bool replace(const std::string& target, std::string_view bytes, bool mayWait);

  int error_ = 0;  ///< errno of the last write, removal or folder, 0 for a good one
};

}  // namespace orvanta
