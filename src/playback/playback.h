// The room that plays: from the device to the display and the keys.
#pragma once

#include "playback/disc_watch.h"
#include "playback/ticks.h"

namespace orvanta {

struct Playback {
  Playback(const PlaybackPorts& ports, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : display(form, state),
        looks(ports.clock, form, state.settings),
        layer(ports.device, ports.dialogs, state.disc),
        load(ports, layer, display, looks, form, state, upward),
        engine(ports, layer, display, looks, form, state, upward),
        modes(ports, engine, display, looks, form, state),
        time(ports.device, layer, engine, display, state),
        answers(ports, engine, state),
        status(engine, form, state),
        ticks(ports, {load, engine, modes, time, answers, display, status}, form, state, upward),
        watch(ports, {load, engine, modes, time, answers, display, status}, form, state, upward) {}

  /// From the faceplate's load on.
  void start() {
    ticks.start();
    status.watch([this](const DeckStatus&) { ticks.wake(); });
    watch.start();
  }

  Display display;
  KeyLooks looks;
  DeviceLayer layer;
  DiscLoad load;
  Engine engine;
  Modes modes;
  TrackTime time;
  TrayAnswers answers;
  StatusBoard status;
  Ticks ticks;
  DiscWatch watch;
};

}  // namespace orvanta
