// Leaving: red lamp, settings saved, marker gone, device stopped.
#include "app/exit.h"

#include "platform/ports/cd_device.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "state/data_folder.h"
#include "state/settings_files.h"

namespace orvanta {

void Exit::exitProgram() {
  save();
  sounds_.play(Sound::Click);
  leave();
}

void Exit::endOfSession() {
  save();
  leave();
}

void Exit::save() {
  volume_.releaseMute();
  keepModes(ports_.files, state_.settings);
}

void Exit::leave() {
  volume_.mixer().tidyUp();
  DataFolder(ports_.files, state_.settings.appDir).unmark(DataFile::Running);
  ports_.screen.setPointer(Pointer::Hourglass);
  looks_.goingOff();
  form_.SSPanel3.refresh();
  if (state_.transport.playingFlag) {
    state_.transport.playingFlag = false;
    looks_.show(DeckState::Leaving);
  }
  if (state_.settings.appOptions[kPlayOn] != 1) {
    ports_.device.command("Stop");
    ports_.device.command("Close");
  }
  end();
}

}  // namespace orvanta
