// Files that belong together: all of them are written, or what was there before stands again.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvanta {

class Files;

/// A file that could not be written, and why; both "" when all went well.
struct Unwritten {
  std::string path;
  std::string reason;
  bool any() const { return !path.empty(); }
};

class FileSet {
 public:
  explicit FileSet(Files& files) : files_(files) {}
  /// Gathered only, in the order that commit() keeps.
  void write(const std::string& path, std::string bytes) { wanted_.push_back({path, std::move(bytes)}); }
  /// Stops at the first failure and puts back what it had written. A file that is there and cannot be read is not written
  /// over: nobody knows what it holds.
  Unwritten commit();

 private:
  struct Wanted {
    std::string path;
    std::string bytes;
    std::optional<std::string> before = std::nullopt;
  };
  void putBack(size_t count);

  Files& files_;
  std::vector<Wanted> wanted_;
};

}  // namespace orvanta
