// The desktop's associations and the windows of other programs.
#pragma once

#include <optional>
#include <string>

namespace orvanta {

class Shell {
 public:
  virtual ~Shell() = default;
  /// Program that the desktop opens a file of this MIME type with; nullopt when none is set.
  virtual std::optional<std::string> programFor(const std::string& mimeType) const = 0;
  /// Full path of a program in PATH; nullopt when it is not there.
  virtual std::optional<std::string> findProgram(const std::string& name) const = 0;
};

}  // namespace orvanta
