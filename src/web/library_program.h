// The library program: it takes the deck's place on the screen until it ends.
#pragma once

#include "launch/known_applications.h"
#include "state/shared_state.h"
#include "web/ports.h"
#include "windows/cdform.h"

namespace orvanta {

class LibraryProgram {
 public:
  LibraryProgram(const WebPorts& ports, CDForm& form, const SharedState& state)
      : ports_(ports), known_(ports.dialogs, ports.processes), form_(form), state_(state) {}

  void arun5();

 private:
  WebPorts ports_;
  KnownApplications known_;
  CDForm& form_;
  const SharedState& state_;
};

}  // namespace orvanta
