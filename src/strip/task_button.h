// The task button of a hidden faceplate: its title is the track's, and whatever the user does with it wants the deck back.
#pragma once

#include "faceplate/task_title.h"
#include "strip/strip_window.h"
#include "windows/iconmin.h"

namespace orvanta {

class TaskButton : public forms::FormEvents {
 public:
  TaskButton(StripWindow& window, ICONmin& form) : window_(window), form_(form) { form.setEvents(this); }

  void show(const DeckStatus& status) { form_.caption = TaskTitle::of(status.trackTitle); }

  void activate() override { window_.restore(); }
  void minimisedChanged() override {
    if (!form_.minimised) window_.restore();
  }
  void closeAsked() override { window_.restore(); }

 private:
  StripWindow& window_;
  ICONmin& form_;
};

}  // namespace orvanta
