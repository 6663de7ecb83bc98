// The record key: the disc goes to the recorder, and this program ends.
#pragma once

#include "app/ports.h"
#include "app/restart.h"
#include "faceplate/volume.h"
#include "faceplate/window_place.h"
#include "launch/known_applications.h"
#include "platform/ports/processes.h"
#include "playback/key_looks.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Recorder {
 public:
  Recorder(const LifePorts& ports, KeyLooks& looks, WindowPlace& place, Volume& volume, Restart& restart, CDForm& form, SharedState& state)
      : ports_(ports),
        looks_(looks),
        place_(place),
        volume_(volume),
        restart_(restart),
        form_(form),
        state_(state),
        known_(ports.dialogs, ports.processes) {}
  /// There is a recorder to be started, and it does not run; else the user is told.
  bool ready();
  /// Saves, lets go of the drive, starts the recorder with the disc's texts, and ends the process. A recorder that does
  /// not start is told, and the deck takes its disc up again.
  void run();

 private:
  bool usersOwn() const { return !state_.settings.recordCommand.empty(); }
  ProcessRequest request() const;
  void tellNotStarted();
  void letGo();

  LifePorts ports_;
  KeyLooks& looks_;
  WindowPlace& place_;
  Volume& volume_;
  Restart& restart_;
  CDForm& form_;
  SharedState& state_;
  KnownApplications known_;
};

}  // namespace orvanta
