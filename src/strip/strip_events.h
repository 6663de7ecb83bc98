// The road from the strip's events to what they mean.
#pragma once

#include "faceplate/disc_choice.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/keyboard.h"
#include "faceplate/window_grip.h"
#include "platform/forms/form.h"
#include "strip/strip_acts.h"
#include "strip/strip_press.h"
#include "strip/strip_window.h"

namespace orvanta {

/// What a hand on the strip reaches.
struct StripReach {
  Actions& actions;
  StripActs& acts;
  StripWindow& window;
  StripMirror& mirror;
  StripSliders& sliders;
  StripColours& colours;
  StripPlace& place;
  Keyboard& keyboard;
  InterfaceSounds& sounds;
  DiscChoice& choice;
  StripUpward& upward;
};

class StripEvents : public forms::FormEvents {
 public:
  StripEvents(const StripReach& on, VolCntl& form, const SharedState& state);

  void load() override;
  void unload() override { on_.window.unload(); }
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseMove(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void wheel(forms::Control& control, int notches) override;
  bool keyDown(const forms::KeyPress& key) override;
  void dragged() override;
  bool takesFile(const std::string& path) const override { return on_.choice.takesFile(path); }
  void fileDropped(const std::string& path) override { on_.choice.offer(path); }
  /// The window goes, the task button stays.
  void closeAsked() override { form_.unload(); }

 private:
  bool isBody(const forms::Control* control) const;
  void rightReleased(const forms::Control* control);
  void released(forms::Control& control, const forms::Mouse& mouse);
  void titleReleased(const forms::Control& title);
  void windowKey(const forms::Control& control);

  StripReach on_;
  StripPress press_;
  WindowGrip grip_;
  VolCntl& form_;
  const SharedState& state_;
};

}  // namespace orvanta
