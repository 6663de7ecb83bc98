// Behaviour of CDForm: its load, and the road from its events to the handlers.
#pragma once

#include "faceplate/display_colours.h"
#include "faceplate/position.h"
#include "platform/forms/form.h"
#include "playback/buttons.h"
#include "playback/clock.h"

namespace orvanta {

class Faceplate : public forms::FormEvents {
 public:
  Faceplate(Ports& ports, DiscLoad& discLoad, DeviceLayer& layer, Engine& engine, Modes& modes, PlaybackClock& clock, Buttons& buttons,
            DisplayColours& colours, Position& position, CDForm& form, SharedState& state, PlaybackUpward& upward);

  void load() override;
  void activate() override;
  void unload() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void doubleClick(forms::Control* control) override;
  void dragged() override;
  bool keyDown(const forms::KeyPress& key) override;
  void fileDropped(const std::string& path) override;
  void closeAsked() override;

 private:
  void setPlayState();
  void released(const std::string& name, size_t index, const forms::Mouse& mouse);
  void rightReleased(const forms::Control& control);
  void playTrackOfCommandLine();
  void askForDisc();

  CdDevice& device_;
  DiscTray& tray_;
  Dialogs& dialogs_;
  Files& files_;
  DiscLoad& discLoad_;
  DeviceLayer& layer_;
  Engine& engine_;
  Modes& modes_;
  PlaybackClock& clock_;
  Buttons& buttons_;
  DisplayColours& colours_;
  Position& position_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool keyTaken_ = false;
};

}  // namespace orvanta
