// The road from the faceplate's events to what they mean: acts, sliders, the window's own place.
#pragma once

#include "faceplate/actions.h"
#include "faceplate/faceplate_load.h"
#include "faceplate/keyboard.h"
#include "faceplate/pressed_look.h"
#include "faceplate/task_title.h"
#include "faceplate/track_entry.h"
#include "faceplate/window_grip.h"
#include "faceplate/window_place.h"
#include "platform/forms/form.h"

namespace orvanta {

class FaceplateEvents : public forms::FormEvents {
 public:
  FaceplateEvents(FaceplateLoad& load, Actions& actions, Keyboard& keyboard, TrackEntry& entry, Volume& volume, Layout& layout,
                  WindowPlace& place, DiscChoice& choice, TaskTitle& title, CDForm& form, const SharedState& state);

  void load() override { load_.load(); }
  void activate() override { load_.activate(); }
  void unload() override { load_.unload(); }
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseMove(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void wheel(forms::Control& control, int notches) override;
  void textChanged(forms::Control& control) override;
  void doubleClick(forms::Control* control) override;
  void dragged() override;
  bool keyDown(const forms::KeyPress& key) override { return keyboard_.keyDown(key); }
  bool takesFile(const std::string& path) const override { return choice_.takesFile(path); }
  void fileDropped(const std::string& path) override { choice_.offer(path); }
  void minimisedChanged() override { title_.follow(); }
  void closeAsked() override { actions_.run(Action::Exit, By::Program); }

 private:
  FaceplateLoad& load_;
  Actions& actions_;
  Keyboard& keyboard_;
  TrackEntry& entry_;
  Volume& volume_;
  Layout& layout_;
  WindowPlace& place_;
  DiscChoice& choice_;
  TaskTitle& title_;
  PressedLook look_;
  CDForm& form_;
  WindowGrip grip_;
};

}  // namespace orvanta
