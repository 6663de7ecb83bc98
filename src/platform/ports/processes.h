// Other programs, by argument vector; never through a shell.
#pragma once

#include <string>
#include <vector>

namespace orvanta {

enum class WindowStyle { Normal, Minimised, Hidden };

struct ProcessRequest {
  std::vector<std::string> arguments;  ///< [0] is the program: a path, or a name looked up in PATH
  std::string folder;                  ///< to start in; "" for the present one
  WindowStyle window = WindowStyle::Normal;
};

class Processes {
 public:
  using Id = int;  ///< above 0; 0 when the start failed
  virtual ~Processes() = default;
  virtual Id start(const ProcessRequest& request) = 0;
  virtual bool running(Id id) const = 0;
  /// Starts it and returns when it has ended, delivering events meanwhile. False when it did not start.
  virtual bool runAndWait(const ProcessRequest& request) = 0;
  /// True when a process of the user has this program name.
  virtual bool nameRuns(const std::string& program) const = 0;
};

}  // namespace orvanta
