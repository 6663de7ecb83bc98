// Processes of the host, by posix_spawn; never a shell.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports/processes.h"

namespace orvanta {

class HostProcesses : public Processes {
 public:
  /// What is started gets the environment as it is now, whatever this program sets for itself later.
  HostProcesses();
  /// `yield` delivers events while runAndWait() waits.
  void setYield(std::function<void()> yield) { yield_ = std::move(yield); }

  Id start(const ProcessRequest& request) override;
  bool running(Id id) const override;
  std::optional<int> result(Id id) const override;
  std::optional<int> runAndWait(const ProcessRequest& request) override;
  bool nameRuns(const std::string& program) const override;
  std::string pathOf(const std::string& program) const override;

  /// Takes note of children that have ended, so that none stays behind as a zombie.
  void reap() const;

 private:
  std::function<void()> yield_ = [] {};
  std::vector<std::string> environment_;
  mutable std::map<Id, std::optional<int>> children_;  ///< how each has ended, nullopt while it runs
};

/// What a short-lived program writes to its standard output; nullopt when it cannot be run, fails, or
/// takes more than two seconds.
std::optional<std::string> outputOf(const std::vector<std::string>& arguments);

}  // namespace orvanta
