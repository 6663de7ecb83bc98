// The room of the process's own life: start, exit, the change to another process, the recorder.
#pragma once

#include "app/exit.h"
#include "app/keeper.h"
#include "app/recorder.h"
#include "app/restart.h"
#include "app/setup_program.h"
#include "app/start_up.h"

namespace orvanta {

struct Life {
  Life(const LifePorts& ports, Playback& playback, Faceplate& faceplate, CDForm& form, SharedState& state)
      : startUp(ports, state),
        keeper(ports, state),
        exit(ports, playback.looks, faceplate.volume, faceplate.sounds, form, state),
        restart(ports, faceplate.volume, state),
        recorder(ports, playback.looks, faceplate.place, faceplate.volume, restart, form, state),
        setup(ports, startUp, playback.display, faceplate, form, state) {}

  StartUp startUp;
  Keeper keeper;
  Exit exit;
  Restart restart;
  Recorder recorder;
  SetupProgram setup;
};

}  // namespace orvanta
