// What the task button of a minimised deck reads: the title that plays.
#pragma once

#include <string>

#include "playback/deck_status.h"

namespace orvanta {

class TaskTitle {
 public:
  explicit TaskTitle(CDForm& form) : form_(form) {}
  void show(const DeckStatus& status) {
    title_ = status.trackTitle;
    follow();
  }
  /// After the window was minimised, or came back.
  void follow() { form_.caption = of(form_.minimised ? title_ : std::string()); }
  static std::string of(const std::string& title) { return title.empty() ? "Orvanta LX" : "Orvanta [" + title + "]"; }

 private:
  CDForm& form_;
  std::string title_;
};

}  // namespace orvanta
