// What a disc holds beside its sound: files that a person can look at and start.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta {

class DiscData {
 public:
  virtual ~DiscData() = default;
  /// Tells the disc that lies there now from any other that may lie there later; "" for none.
  virtual std::string disc() = 0;
  /// Names of the files in its root, sorted; none where it holds none, or nobody has mounted it.
  virtual std::vector<std::string> rootFiles() = 0;
  /// A regular file of the disc by its way from the root, "/" between names, in any letter case, its accents composed or
  /// apart: the way as it is written there. "" for none, and for one that lies anywhere else in truth.
  virtual std::string find(const std::string& way) = 0;
  /// The start of a file that was found, `most` bytes of it; "" when it cannot be read.
  virtual std::string read(const std::string& way, size_t most) = 0;
  /// Where this machine has the file, to be started: a disc that is an image is copied out first, while events are delivered.
  /// "" when it cannot be had.
  virtual std::string bring(const std::string& way) = 0;
  /// The folder in which a person can look through its files; "" for none.
  virtual std::string folder() = 0;
  /// A file that a person picked lies on the disc: its way from the root, else "".
  virtual std::string wayOf(const std::string& path) = 0;
  /// Files that bring() or folder() had to leave out since the last call, by their ways: the disc could not be read there.
  virtual std::vector<std::string> takeUnread() = 0;
};

}  // namespace orvanta
