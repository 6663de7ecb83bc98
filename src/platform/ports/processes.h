// Other programs, by argument vector; never through a shell.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvanta {

enum class WindowStyle { Normal, Minimised, Hidden };

struct ProcessRequest {
  std::vector<std::string> arguments;  ///< [0] is the program: a path, or a name looked up in PATH
  std::string folder;                  ///< to start in; the present one for "" and for one that is not there
  WindowStyle window = WindowStyle::Normal;
  bool detached = false;  ///< what ends this program from the terminal it was started in leaves the other alone
};

class Processes {
 public:
  using Id = int;  ///< above 0; 0 when the start failed
  virtual ~Processes() = default;
  virtual Id start(const ProcessRequest& request) = 0;
  virtual bool running(Id id) const = 0;
  /// Of a program that did not end by itself: it was killed, or broke down.
  static constexpr int kBrokeOff = -1;
  /// How it ended, 0 for well, kBrokeOff; nullopt while it runs.
  virtual std::optional<int> result(Id id) const = 0;
  /// Starts it and returns how it ended, as result() does, delivering events meanwhile; nullopt when it could not be started.
  virtual std::optional<int> runAndWait(const ProcessRequest& request) = 0;
  /// True when a living process of this user has this program name, in any letter case.
  virtual bool nameRuns(const std::string& program) const = 0;
  /// Of a program that this user may run, by its path or by a name in PATH; "" when there is none.
  virtual std::string pathOf(const std::string& program) const = 0;
  bool canStart(const std::string& program) const { return !pathOf(program).empty(); }
};

}  // namespace orvanta
