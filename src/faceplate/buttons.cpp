// Presses and releases of the faceplate's keys.
#include "faceplate/buttons.h"

#include "faceplate/upward.h"

namespace orvanta {

namespace {

/// Where the pressed plateau lies on a face.
constexpr int kPlateauLeft = 54;
constexpr int kPlateauTop = 70;

}  // namespace

// ---- transport row

bool Buttons::pressStarts(size_t key) {
  if (asleep()) return false;
  modes_.stopintro();
  engine_.settle();
  if (!looks_.accepts(key)) return false;
  faceDown(key);
  return true;
}

void Buttons::pressEnds(size_t key) {
  faceUp(key);
  if (asleep()) return;
  engine_.settle();
  if (looks_.accepts(key)) icntla_MouseUp(key);
}

/// One key gives way at a time: a letter key struck meanwhile leaves the one under the mouse alone.
void Buttons::faceDown(size_t key) {
  if (state_.settings.smallFaceplate == kOn || down_) return;
  const auto& face = form_.icntla[key];
  const int depth = state_.process.smallFonts ? 10 : 12;
  face_.down(form_.icntla[key], depth, depth);
  form_.Shape2.move(face.left + kPlateauLeft, face.top + kPlateauTop);
  form_.Shape2.visible = true;
  down_ = key;
}

/// Whatever has become of the disc since the press, the face comes back.
void Buttons::faceUp(size_t key) {
  if (down_ != key) return;
  down_.reset();
  form_.Shape2.visible = false;
  face_.up();
}

void Buttons::icntla_MouseUp(size_t key) {
  faceUp(key);
  if (asleep()) return;
  switch (key) {
    case Previous: engine_.previousKey(); break;
    case Next: engine_.nextKey(); break;
    case Play: engine_.playKey(); break;
    case Pause: engine_.pauseKey(); break;
    case Stop: engine_.stopKey(); break;
    default: upward_.record(); break;
  }
}

// ---- scan row

void Buttons::scntla_MouseDown(size_t key) {
  if (asleep() || (key != ScanBack && key != ScanForward)) return;
  engine_.settle();
  if (!state_.transport.playingFlag || !looks_.acceptsScan()) return;
  looks_.lightScan(key, true);
  state_.transport.scanCount = static_cast<int16_t>(key == ScanForward ? 1 : -1);
}

void Buttons::scntla_MouseUp(size_t key) {
  // A scan ends with its key, whatever has become of the disc meanwhile.
  if (key == ScanBack || key == ScanForward) engine_.endScan();
  if (asleep()) return;
  if (key == TimeKey) timeMode();
  if (key == AbKey) modes_.abKey();
}

void Buttons::timeMode() {
  if (state_.transport.pausedFlag) return;
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  int16_t& mode = state_.settings.timeMode;
  mode = static_cast<int16_t>(mode < Time || mode >= TotRem ? Time : mode + 1);
  display_.showTimeModeLabel();
  if (state_.transport.playingFlag && display_.number() > 0) {
    engine_.showPlace();
  } else {
    display_.restTime();
  }
  looks_.timeLegend();
}

void Buttons::CDStatusBar_Click(int x) {
  engine_.settle();
  engine_.CDStatusBar_Click(x);
}

// ---- number and small keys

void Buttons::Image17_MouseUp(size_t key) {
  if (asleep()) return;
  jumpTo(static_cast<int>(key) + 1);
}

void Buttons::jumpTo(int track) {
  modes_.stopintro();
  engine_.settle();
  state_.transport.selTrack = static_cast<int16_t>(track - 1);
  engine_.clrab();
  engine_.jump();
}

void Buttons::Image16_MouseUp(size_t key) {
  switch (key) {
    case Above20:
      if (asleep()) return;
      form_.Image16[Above20].visible = form_.Label44.visible = false;
      form_.Text1.caption = "";
      form_.Text1.visible = true;
      form_.setFocus(form_.Text1);
      break;
    case Shuffle: modes_.shuffle(); break;
    default: modes_.repeatKey(); break;
  }
}

}  // namespace orvanta
