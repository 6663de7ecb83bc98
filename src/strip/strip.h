// The room of what stands in for the faceplate: the strip, and the task button beside it.
#pragma once

#include "faceplate/faceplate.h"
#include "playback/playback.h"
#include "strip/strip_events.h"
#include "strip/task_button.h"

namespace orvanta {

struct Strip {
  Strip(const StripPorts& ports, Playback& playback, Faceplate& deck, const StripForms& forms, CDForm& faceplate, SharedState& state,
        StripUpward& upward)
      : layout(forms.strip, state),
        colours(ports.files, ports.screen, forms.strip, state),
        sliders(deck.volume, forms.strip, state),
        mirror(colours, sliders, forms.strip, faceplate, state),
        place(ports.files, ports.screen, forms.strip, faceplate, state),
        window(ports, {layout, colours, sliders, mirror, place}, playback.engine, forms, faceplate, state, upward),
        acts(deck.actions, deck.volume, mirror, upward),
        events({deck.actions, acts, window, mirror, sliders, colours, place, deck.keyboard, deck.sounds, deck.choice, upward}, forms.strip,
               state),
        button(window, forms.icon) {
    playback.status.watch([this](const DeckStatus& now) {
      button.show(now);
      mirror.follow();
    });
  }

  StripLayout layout;
  StripColours colours;
  StripSliders sliders;
  StripMirror mirror;
  StripPlace place;
  StripWindow window;
  StripActs acts;
  StripEvents events;
  TaskButton button;
};

}  // namespace orvanta
