// The room of the deck's face: how it looks, how it is worked, its sounds and its door.
#pragma once

#include "faceplate/drawer.h"
#include "faceplate/faceplate_events.h"

namespace orvanta {

struct Faceplate {
  Faceplate(const FaceplatePorts& ports, Playback& playback, CDForm& form, SharedState& state, FaceplateUpward& upward)
      : place(ports.files, ports.screen, form, state),
        layout(ports.screen, place, playback.looks, form, state),
        sounds(ports, state),
        mixer(ports, form, state),
        volume(ports, layout, mixer, sounds, form, state),
        colours(ports, playback.display, playback.looks, layout, form, state),
        drawer(ports, playback.engine, playback.looks, sounds, form, state, upward),
        choice(ports, state),
        buttons(playback.engine, playback.modes, playback.display, playback.looks, form, state, upward),
        entry(buttons, playback.display, form, state),
        actions({playback.looks, playback.engine, playback.modes, buttons, layout, volume, sounds, choice, form, state, upward},
                playback.status),
        title(form),
        keyboard(actions, entry, volume),
        load(ports, playback, colours, layout, volume, sounds, form, state),
        events(load, actions, keyboard, entry, volume, layout, place, choice, title, form, state) {
    playback.status.watch([this, &form](const DeckStatus& now) {
      title.show(now);
      form.Image16[Repeat].engaged = now.repeat;
      form.scntla[kAbKey].engaged = now.loop;
    });
  }

  static constexpr size_t kAbKey = 2;  ///< in the row of the scan keys

  WindowPlace place;
  Layout layout;
  InterfaceSounds sounds;
  MixerDriver mixer;
  Volume volume;
  DisplayColours colours;
  Drawer drawer;
  DiscChoice choice;
  Buttons buttons;
  TrackEntry entry;
  Actions actions;
  TaskTitle title;
  Keyboard keyboard;
  FaceplateLoad load;
  FaceplateEvents events;
};

}  // namespace orvanta
