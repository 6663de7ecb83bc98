// The faceplate's two places.
#include "faceplate/window_place.h"

namespace orvanta {

namespace {

// On reading alone: a window stored near an edge is pulled in whole at the next start.
constexpr ScreenPlace::Margins kMargins{400, 200};

}  // namespace

DataFile WindowPlace::file() const { return state_.settings.smallFaceplate == kOn ? DataFile::SmallPlace : DataFile::LargePlace; }

void WindowPlace::saveposn1() {
  if (state_.process.commandWord == "RUNRIPPER") return;
  place_.pullIn();
  state_.display.positionKnown = true;
  place_.save(file());
}

void WindowPlace::posfp1() {
  if (place_.restore(file(), kMargins)) {
    state_.display.positionKnown = true;
  } else {
    centre();
  }
}

void WindowPlace::Form_DblClick() {
  centre();
  data_.remove(file());
}

void WindowPlace::centre() {
  state_.display.positionKnown = false;
  const WorkArea on = place_.area();
  place_.put(on, (on.width() - form_.width) / 2, (on.height() - form_.height) / 2);
}

}  // namespace orvanta
