// Behaviour of CDForm: its load, and the road from its events to the handlers.
#pragma once

#include <optional>

#include "faceplate/display_colours.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/position.h"
#include "faceplate/pressed_look.h"
#include "faceplate/volume.h"
#include "platform/forms/form.h"
#include "playback/buttons.h"
#include "playback/clock.h"

namespace orvanta {

/// The parts of the core that the faceplate's events reach.
struct FaceplateParts {
  DiscLoad& discLoad;
  DeviceLayer& layer;
  KeyLooks& looks;
  Engine& engine;
  Modes& modes;
  PlaybackClock& clock;
  Buttons& buttons;
  DisplayColours& colours;
  Position& position;
  Layout& layout;
  Volume& volume;
  InterfaceSounds& sounds;
};

class Faceplate : public forms::FormEvents {
 public:
  Faceplate(Ports& ports, const FaceplateParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward);

  void load() override;
  void activate() override;
  void unload() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseMove(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void wheel(forms::Control& control, int notches) override;
  void textChanged(forms::Control& control) override;
  void doubleClick(forms::Control* control) override;
  void dragged() override;
  bool keyDown(const forms::KeyPress& key) override;
  bool takesFile(const std::string& path) const override;
  void fileDropped(const std::string& path) override;
  void closeAsked() override;

  /// Plays the track of the start's words; a number above the disc's tracks is passed over.
  void playTrackOfCommandLine();

 private:
  void setPlayState();
  void pressed(forms::Control& control);
  void released(const std::string& name, size_t index, const forms::Mouse& mouse);
  bool panelReleased(const std::string& name, size_t index);
  void rightReleased(const forms::Control& control);
  void letGo(const forms::Control& control);
  bool sliderKey(const forms::KeyPress& key);
  void askForDisc();
  /// The drawer is open, or nothing lies in it.
  bool discWanted() const;

  CdDevice& device_;
  DiscTray& tray_;
  Dialogs& dialogs_;
  Files& files_;
  FaceplateParts on_;
  PressedLook look_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool keyTaken_ = false;
  std::optional<forms::Mouse> grip_;  ///< where the metal was taken hold of
};

}  // namespace orvanta
