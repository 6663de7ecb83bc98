// Where the strip stands: where the user left it, else in the upper right corner.
#pragma once

#include "faceplate/screen_place.h"
#include "state/shared_state.h"
#include "windows/cdform.h"
#include "windows/volcntl.h"

namespace orvanta {

class StripPlace {
 public:
  StripPlace(Files& files, Screen& screen, VolCntl& form, const CDForm& faceplate, const SharedState& state)
      : data_(files, state.settings.appDir),
        screen_(screen),
        place_(data_, screen, form),
        form_(form),
        faceplate_(faceplate),
        state_(state) {}

  /// To the stored place, or on the faceplate's screen to the usual one; whole on the screen.
  void restore();
  /// To the usual place of the screen that it is on, which is kept.
  void reset();
  /// The user put it elsewhere: whole on the screen, and kept.
  void moved();
  void pullIn() { place_.pullIn(); }
  /// Grown: pulled up from the lower edge, for as long as it stays so and where it is.
  void unfolded();
  void folded();
  void save() const { place_.save(DataFile::StripPlace); }
  bool wantsTray() const { return state_.settings.minToTray == kOn || state_.display.trayWanted; }

 private:
  void putUsual(const WorkArea& area);

  DataFolder data_;
  Screen& screen_;
  ScreenPlace place_;
  VolCntl& form_;
  const CDForm& faceplate_;
  const SharedState& state_;
  int pulled_ = 0;  ///< twips that unfolding moved it up
};

}  // namespace orvanta
