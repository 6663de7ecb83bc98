// Programs that are to run once: asked before one of them is started.
#pragma once

#include <string>

namespace orvanta {

class Dialogs;
class Processes;

class KnownApplications {
 public:
  KnownApplications(Dialogs& dialogs, const Processes& processes) : dialogs_(dialogs), processes_(processes) {}

  /// True: the program is one of the table and runs for this user; the user was told, and it is not to be started again.
  bool checkAlreadyRunning(const std::string& launchName);
  /// The same for a program that need not be in the table, as a mixer of the user's choice.
  bool runsAlready(const std::string& launchName);
  /// Without a word to the user.
  bool runs(const std::string& launchName) const;

 private:
  Dialogs& dialogs_;
  const Processes& processes_;
};

}  // namespace orvanta
