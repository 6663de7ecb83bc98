// Presses and releases of the transport row, and the keys that stand for them.
#include "playback/buttons.h"

#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "playback/upward.h"

namespace orvanta {

namespace {

/// Where the pressed plateau lies on a face, and how far a pressed face goes right and down.
constexpr int kPlateauLeft = 54;
constexpr int kPlateauTop = 70;

int pressDepth(const SharedState& state) { return state.process.smallFonts == kOn ? 10 : 12; }

}  // namespace

bool Buttons::accepts(size_t key) const { return !form_.icntlb[key].visible && !form_.icntlc[key].visible; }

void Buttons::icntla_MouseDown(size_t key) {
  if (state_.disc.noDiscState > 0 || state_.disc.drawerOpen == kOn || state_.settings.smallFaceplate == kOn) return;
  if (!accepts(key)) return;
  auto& face = form_.icntla[key];
  const int depth = pressDepth(state_);
  face.move(face.left + depth, face.top + depth);
  form_.Shape2.move(face.left + kPlateauLeft, face.top + kPlateauTop);
  form_.Shape2.visible = true;
  down_ = true;
}

void Buttons::icntla_MouseUp(size_t key) {
  if (state_.disc.noDiscState > 0 || state_.disc.drawerOpen == kOn) return;
  if (down_) {
    const int depth = pressDepth(state_);
    down_ = false;
    form_.Shape2.visible = false;
    form_.icntla[key].move(form_.icntla[key].left - depth, form_.icntla[key].top - depth);
  }
  switch (key) {
    case Play: playKey(); break;
    case Pause: pauseKey(); break;
    case Stop: stopKey(); break;
    case Record: upward_.record(); break;
    default: break;
  }
}

void Buttons::playKey() {
  form_.icntlc[Play].visible = true;
  engine_.MMControl1_PlayClick();
  device_.command("Play");
  engine_.playingLook();
}

void Buttons::pauseKey() {
  engine_.pausedLook();
  engine_.MMControl1_PauseClick();
  device_.command("Pause");
}

void Buttons::stopKey() {
  engine_.stoppedLook();
  engine_.MMControl1_StopClick();
  device_.command("Stop");
  form_.icntlb[Stop].visible = false;
  form_.icntlc[Stop].visible = true;
  form_.icntlc[Stop].refresh();
  clock_.delaySeconds(0.3);
  form_.icntlc[Stop].visible = false;
  form_.icntlb[Stop].visible = true;
}

void Buttons::pressed(TransportKey key) {
  if (!accepts(key)) return;
  icntla_MouseDown(key);
  icntla_MouseUp(key);
}

bool Buttons::keyDown(const forms::KeyPress& key) {
  if (key.control || key.alt) return false;
  switch (key.code) {
    case forms::key::kEscape: upward_.exitProgram(); return true;
    case 'D': pressed(Play); return true;
    case 'F': pressed(Pause); return true;
    case 'G': pressed(Stop); return true;
    case 'H': pressed(Record); return true;
    case 'J': engine_.mmcontrol1_EjectClick(); return true;
    default: return false;
  }
}

}  // namespace orvanta
