// The user's browser: found once, remembered in the settings, started with one address at a time.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ports/clock.h"
#include "platform/ports/processes.h"
#include "state/shared_state.h"
#include "web/ports.h"

namespace orvanta {

class Browser {
 public:
  Browser(const WebPorts& ports, SharedState& state);

  /// Starts it with an address, or, for "", as it is. False: it was not started, and the user knows why.
  bool launch(const std::string& address);

 private:
  bool there(const std::string& command) const;
  std::string detected() const;
  std::string ofDesktop() const;
  std::string chosenByUser();
  bool ask();
  void remember(const std::string& command);
  bool start(const std::string& address);
  void watch(Processes::Id id);
  void look();

  WebPorts ports_;
  SharedState& state_;
  bool asking_ = false;  ///< a question about it stands
  // The one that was started last, until it has lived long enough.
  std::unique_ptr<Timer> timer_;
  Processes::Id started_ = 0;
  int64_t until_ = 0;
};

/// False for a command that would have the address read as something else than one argument: in the middle of a word, as a
/// shell's command line.
bool takesAddress(const std::vector<std::string>& command);

/// A browser's command with an address in the place that it names, or behind it; without an address that place goes. Empty for one
/// that does not take it.
std::vector<std::string> browserArguments(std::vector<std::string> command, const std::string& address);

}  // namespace orvanta
