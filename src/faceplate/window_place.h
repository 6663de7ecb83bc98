// Where the faceplate stands on the screen; each of its two sizes has a place of its own.
#pragma once

#include "faceplate/screen_place.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Files;

class WindowPlace {
 public:
  WindowPlace(Files& files, Screen& screen, CDForm& form, SharedState& state)
      : data_(files, state.settings.appDir), place_(data_, screen, form), form_(form), state_(state) {}

  /// Pulls the window onto the screen and stores its place.
  void saveposn1();
  /// To the stored place, away from the right and lower edge; to the middle when there is none.
  void posfp1();
  /// To the middle, and the stored place is forgotten.
  void Form_DblClick();

 private:
  /// Of its present size.
  DataFile file() const;
  void centre();

  DataFolder data_;
  ScreenPlace place_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
