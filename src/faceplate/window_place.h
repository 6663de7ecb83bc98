// Where the faceplate stands on the screen; each of its two sizes has a place of its own.
#pragma once

#include "platform/ports/screen.h"
#include "state/data_folder.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Files;

class WindowPlace {
 public:
  WindowPlace(Files& files, Screen& screen, CDForm& form, SharedState& state)
      : data_(files, state.settings.appDir), screen_(screen), form_(form), state_(state) {}

  /// Pulls the window onto the screen and stores its place.
  void saveposn1();
  /// To the stored place, away from the right and lower edge; to the middle when there is none.
  void posfp1();
  /// To the middle, and the stored place is forgotten.
  void Form_DblClick();

 private:
  /// Of its present size.
  DataFile file() const;
  /// What is free of the screen that the window is on.
  WorkArea area() const;
  /// Places count from the screen's corner.
  void put(const WorkArea& area, int left, int top);
  void centre();

  DataFolder data_;
  Screen& screen_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
