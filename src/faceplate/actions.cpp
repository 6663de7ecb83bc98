// Presses, releases and whole acts.
#include "faceplate/actions.h"

namespace orvanta {

namespace {

bool isTransport(Action action) { return action <= Action::Record; }
bool isScan(Action action) { return action == Action::ScanBack || action == Action::ScanForward; }
/// In the order of the transport row.
size_t keyOf(Action action) { return static_cast<size_t>(action); }
ScanKey scanKeyOf(Action action) { return action == Action::ScanBack ? ScanBack : ScanForward; }

}  // namespace

/// Intro ends by the press, even by one that is then refused.
bool Actions::pressTransport(Action action) {
  if (!on_.buttons.pressStarts(keyOf(action))) return false;
  on_.sounds.play(Sound::Click);
  return true;
}

void Actions::press(Action action) {
  if (isTransport(action)) {
    held_.reset();
    if (pressTransport(action)) held_ = action;
    return;
  }
  // An open tray is no key.
  const bool tray = action == Action::Eject && on_.choice.discWanted();
  if (actOf(action).clicks && !tray) on_.sounds.play(Sound::Click1);
  if (isScan(action)) on_.buttons.scntla_MouseDown(scanKeyOf(action));
}

void Actions::release(Action action, int argument) {
  if (!isTransport(action)) {
    act(action, By::Person, argument);
  } else if (held_ == action) {
    held_.reset();
    on_.buttons.pressEnds(keyOf(action));
    status_.tell();
  }
}

void Actions::letGo(Action action) {
  held_.reset();
  if (isTransport(action)) on_.buttons.faceUp(keyOf(action));
  if (isScan(action)) on_.buttons.scntla_MouseUp(scanKeyOf(action));
}

void Actions::run(Action action, By by, int argument) {
  if (by == By::Program) {
    act(action, by, argument);
  } else if (!isTransport(action)) {
    press(action);
    release(action, argument);
  } else if (pressTransport(action)) {
    // A key that the mouse holds meanwhile stays held.
    on_.buttons.pressEnds(keyOf(action));
    status_.tell();
  }
}

void Actions::act(Action action, By by, int argument) {
  const Act& row = actOf(action);
  if (by == By::Person && row.refuses == Refuses::Row && !row.enabled(on_, argument)) return;
  row.run(on_, by, argument);
  status_.tell();
}

}  // namespace orvanta
