// Programs that are to run once: asked before one of them is started.
#pragma once

#include <string>
#include <vector>

namespace orvanta {

class Dialogs;
class Processes;

class KnownApplications {
 public:
  KnownApplications(Dialogs& dialogs, const Processes& processes) : dialogs_(dialogs), processes_(processes) {}

  /// True: the program is one of the table and runs for this user; the user was told, and it is not to be started again.
  bool checkAlreadyRunning(const std::string& launchName);
  /// The same for a command of the user's choice, whose program need not be in the table. The first of several words may be
  /// one that runs others, as a shell or a terminal does: it counts only if the table has it.
  bool runsAlready(const std::vector<std::string>& command);
  /// Without a word to the user.
  bool runs(const std::vector<std::string>& command) const;

 private:
  void tell(const std::string& file);

  Dialogs& dialogs_;
  const Processes& processes_;
};

}  // namespace orvanta
