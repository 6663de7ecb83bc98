// The start-up form, never shown: command line, folders, settings.
#pragma once

#include <string>

#include "platform/ports/ports.h"
#include "state/shared_state.h"

namespace orvanta {

/// Data folder and drive of this start alone, "" to take those of the settings.
struct HostOptions {
  std::string dataDir;
  std::string drive;
  std::string words;  ///< the program words, as one line
};

/// The data folder of this start: the option's, else that of ORVWIN.INI.
std::string dataPath(const HostOptions& options, Files& files, const std::string& systemDir);

/// The drive of this start: the option's, else that of ORVWIN.INI, else the data folder's own.
std::string drivePath(const HostOptions& options, Files& files, const std::string& systemDir);

class StartUp {
 public:
  StartUp(Ports& ports, SharedState& state) : ports_(ports), state_(state) {}
  /// Reads everything that the faceplate's load needs; ends the process where a setup is due first.
  void run(const HostOptions& options);

 private:
  void runProgram(const std::string& line);
  void measureScreen();
  void findData(const HostOptions& options);
  [[noreturn]] void askForSetup();
  void readSettingsFiles();
  void takeWord(const std::string& line);

  Ports& ports_;
  SharedState& state_;
};

}  // namespace orvanta
