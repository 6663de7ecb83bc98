// Other programs, by argument vector; never through a shell.
#pragma once

#include <string>
#include <vector>

namespace orvanta {

enum class WindowStyle { Normal, Minimised, Hidden };

struct ProcessRequest {
  std::vector<std::string> arguments;  ///< [0] is the program: a path, or a name looked up in PATH
  std::string folder;                  ///< to start in; the present one for "" and for one that is not there
  WindowStyle window = WindowStyle::Normal;
};

class Processes {
 public:
  using Id = int;  ///< above 0; 0 when the start failed
  virtual ~Processes() = default;
  virtual Id start(const ProcessRequest& request) = 0;
  virtual bool running(Id id) const = 0;
  /// Starts it and returns how it ended, delivering events meanwhile: 0 is good, -1 when it did not start or was killed.
  virtual int runAndWait(const ProcessRequest& request) = 0;
  /// True when a living process of this user has this program name, in any letter case.
  virtual bool nameRuns(const std::string& program) const = 0;
  /// True when there is such a program and this user may run it.
  virtual bool canStart(const std::string& program) const = 0;
};

}  // namespace orvanta
