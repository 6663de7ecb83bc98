// Starts the library program and waits for its end, with the deck minimised and playing on.
#include "web/library_program.h"

#include "launch/how_ended.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"

namespace orvanta {

void LibraryProgram::arun5() {
  const std::string program = ports_.system.companion("orvlib");
  if (known_.checkAlreadyRunning(program)) return;
  std::optional<int> how;
  if (ports_.processes.canStart(program)) {
    form_.minimised = true;
    how = ports_.processes.runAndWait({{program, "LX"}, state_.settings.appDir, WindowStyle::Normal});
    form_.minimised = false;
  }
  tellHowEnded(ports_.dialogs, "The library " + program, how);
}

}  // namespace orvanta
