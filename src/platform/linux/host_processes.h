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
  /// `yield` delivers events while runAndWait() waits.
  explicit HostProcesses(std::function<void()> yield) : yield_(std::move(yield)) {}
  Id start(const ProcessRequest& request) override;
  bool running(Id id) const override;
  bool runAndWait(const ProcessRequest& request) override;
  bool nameRuns(const std::string& program) const override;

 private:
  std::function<void()> yield_;
  mutable std::map<Id, bool> ended_;  ///< what waitpid() has already told
};

/// What a short-lived program writes to its standard output; nullopt when it cannot be run, fails, or
/// takes more than two seconds.
std::optional<std::string> outputOf(const std::vector<std::string>& arguments);

}  // namespace orvanta
