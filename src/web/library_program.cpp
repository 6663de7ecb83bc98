// Starts the library program and waits for its end, with the deck minimised and playing on.
#include "web/library_program.h"

#include "platform/ports/dialogs.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"

namespace orvanta {

void LibraryProgram::arun5() {
  const std::string program = ports_.system.companion("orvlib");
  if (known_.checkAlreadyRunning(program)) return;
  int how = -1;
  if (ports_.processes.canStart(program)) {
    form_.minimised = true;
    how = ports_.processes.runAndWait({{program, "LX"}, state_.settings.appDir, WindowStyle::Normal});
    form_.minimised = false;
  }
  if (how < 0) ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The library " + program + " could not be run.");
}

}  // namespace orvanta
