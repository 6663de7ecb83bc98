// Behaviour of CDForm: its load, and the road from its events to the handlers.
#pragma once

#include "faceplate/display_colours.h"
#include "platform/forms/form.h"
#include "playback/buttons.h"
#include "playback/clock.h"

namespace orvanta {

class Faceplate : public forms::FormEvents {
 public:
  Faceplate(CdDevice& device, Files& files, DiscLoad& discLoad, Engine& engine, PlaybackClock& clock, Buttons& buttons,
            DisplayColours& colours, CDForm& form, SharedState& state, PlaybackUpward& upward)
      : device_(device),
        files_(files),
        discLoad_(discLoad),
        engine_(engine),
        clock_(clock),
        buttons_(buttons),
        colours_(colours),
        form_(form),
        state_(state),
        upward_(upward) {}

  void load() override;
  void activate() override;
  void unload() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override;

 private:
  void setPlayState();

  CdDevice& device_;
  Files& files_;
  DiscLoad& discLoad_;
  Engine& engine_;
  PlaybackClock& clock_;
  Buttons& buttons_;
  DisplayColours& colours_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool keyTaken_ = false;
};

}  // namespace orvanta
