// Whole files by host path, as bytes. A name of an existing file is found whatever its letter
// case, so that a data folder brought from another system works.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Local time.
struct FileTime {
  int year = 0;
  int month = 1;  ///< 1 to 12
  int day = 1;
  int hour = 0;
  int minute = 0;
};

class Files {
 public:
  virtual ~Files() = default;
  /// nullopt when it is missing, is no regular file or cannot be read; the caller keeps what it has.
  virtual std::optional<std::string> read(const std::string& path) const = 0;
  /// Replaces the file in one step; false leaves the old one whole (full disk, read-only folder).
  virtual bool write(const std::string& path, std::string_view bytes) = 0;
  /// The same, for a name that a person chose: one that differs in its letter case is another file.
  virtual bool writeNamed(const std::string& path, std::string_view bytes) = 0;
  /// The same for a file that need not outlive a crash of the machine: it does not wait for the disk.
  virtual bool writeMarker(const std::string& path, std::string_view bytes) = 0;
  /// True when the file is gone afterwards.
  virtual bool remove(const std::string& path) = 0;
  /// Why the last write or removal failed, in the system's words ("No space left on device"); "" after one that did not.
  virtual std::string reason() const = 0;
  virtual bool exists(const std::string& path) const = 0;
  /// When it was last written; nullopt when it is missing.
  virtual std::optional<FileTime> modified(const std::string& path) const = 0;
  /// With its parents, what is new for this user alone; true when it stands afterwards.
  virtual bool makeFolder(const std::string& path) = 0;
  /// Names in a folder, sorted without case; empty when it cannot be read.
  virtual std::vector<std::string> list(const std::string& folder) const = 0;
};

}  // namespace orvanta
