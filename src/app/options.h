// The command line of the host: its own options first, the program's words last.
#pragma once

#include <string>
#include <vector>

#include "app/start_up.h"

namespace orvanta {

struct Options {
  HostOptions host;
  std::string disc;               ///< a CUE sheet to put into the tray
  std::string audio = "default";  ///< "default", "null", "file:PATH"
  double scale = 0;               ///< 0: the desktop's
  bool takeOver = false;          ///< started by a deck that makes way: no second window
  bool help = false;
  bool version = false;
  std::string error;  ///< what cannot be understood; "" for a good line

  /// What a restart of the program is given: everything of this start but the disc.
  std::vector<std::string> handedOn() const;
};

/// Paths become absolute, since a restart may run in another folder.
Options readOptions(const std::vector<std::string>& arguments, const std::string& currentFolder);

std::string helpText();

}  // namespace orvanta
