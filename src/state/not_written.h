// The one box for an act of the user that should have written a file and could not.
#pragma once

#include <string>

#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"

namespace orvanta {

inline void tellNotWritten(Dialogs& dialogs, const Files& files, const std::string& path, const std::string& reason) {
  dialogs.message(BoxStyle::Warning, "Orvanta",
                  "The file " + path + " could not be written" + (reason.empty() ? "." : ": " + reason + ".") +
                      (files.exists(path) ? "\n\nWhat it held before is still there." : ""));
}

/// Right after the write that failed.
inline void tellNotWritten(Dialogs& dialogs, const Files& files, const std::string& path) {
  tellNotWritten(dialogs, files, path, files.reason());
}

}  // namespace orvanta
