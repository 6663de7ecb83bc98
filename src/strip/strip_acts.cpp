// The strip's keys by their given names.
#include "strip/strip_acts.h"

namespace orvanta {

void StripActs::Image1_MouseUp(size_t key) {
  static constexpr Action kRow[] = {Action::TrackBefore, Action::TrackAfter, Action::Play, Action::Pause, Action::Stop};
  if (key == kEject) {
    eject();
  } else if (key < kEject) {
    actions_.run(kRow[key]);
    mirror_.follow();
  }
}

void StripActs::Image5_MouseUp() {
  if (!volume_.muted() || !volume_.byHand()) actions_.run(Action::Mute, By::Program);
  mirror_.follow();
}

void StripActs::Image7_MouseUp() {
  if (volume_.muted() || !volume_.byHand()) actions_.run(Action::Mute, By::Program);
  mirror_.follow();
}

void StripActs::eject() {
  if (actions_.enabled(Action::PutIn)) {
    actions_.run(Action::PutIn);
  } else {
    actions_.run(Action::Eject, By::Program);
  }
}

}  // namespace orvanta
