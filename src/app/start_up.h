// The start-up form, never shown: command line, folders, settings.
#pragma once

#include <string>

#include "app/ports.h"
#include "state/shared_state.h"

namespace orvanta {

/// Data folder and drive of this start alone, "" to take those of the settings.
struct HostOptions {
  std::string dataDir;
  std::string drive;
  std::string words;   ///< the program words, as one line
  std::string engine;  ///< search engine that was chosen in the menu of a deck before
  bool play = false;   ///< started by a deck that played: the disc was put in to be heard
};

/// Where this start finds its data and its drive: by the options, else by ORVWIN.INI; a data folder that was
/// given has a drive of its own where nothing else is set. "" for what is not known.
struct Places {
  std::string dataDir;
  std::string drive;
};
Places placesOf(const HostOptions& options, Files& files, const std::string& systemDir);

/// A first start, one without ORVWIN.INI, sets itself up in the usual folder, without a word. False when that did not
/// come about; a start that is none changes nothing.
bool setUpFirstStart(Files& files, Processes& processes, const System& system);

class StartUp {
 public:
  StartUp(const LifePorts& ports, SharedState& state) : ports_(ports), state_(state) {}
  /// Reads everything that the faceplate's load needs; ends the process where a setup is due first.
  void run(const HostOptions& options);
  /// This start was told its data folder.
  bool dataFolderGiven() const { return dataFolderGiven_; }
  /// The program words of this start, or of a second one that this deck takes over.
  void takeWord(const std::string& line);

 private:
  void runProgram(const std::string& words);
  void measureScreen();
  void findData(const HostOptions& options);
  [[noreturn]] void askForSetup();
  bool setUp(const std::string& program, const std::string& folder);
  [[noreturn]] void runSetup(const std::string& folder);
  void readSettingsFiles();

  LifePorts ports_;
  SharedState& state_;
  bool dataFolderGiven_ = false;
};

}  // namespace orvanta
