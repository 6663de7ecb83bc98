// Opening the door. Panel3D7 at its open place is what says that it stands open.
#include "faceplate/drawer.h"

#include <algorithm>

#include "base/text.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/upward.h"
#include "platform/ports/clock.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kFrame = 110;  ///< milliseconds between two frames
constexpr int kFrames = 3;
constexpr int kBevelWidth = 3;

struct Spot {
  int left;
  int top;
};
// Frames: the door a little open, the tray half out, the open tray in three slices.
constexpr Spot kDoorFrame{1320, 480};
constexpr Spot kDoorClosed{1320, 4920};
constexpr Spot kTrayFrame{1260, 540};
constexpr Spot kTrayClosed{1260, 5880};
constexpr Spot kOpenMain{1200, kOpenTrayTop};
constexpr Spot kOpenRight{4690, 840};
// Where the slices of the open tray wait, anywhere but at their open places.
constexpr int kParkedMain = 7080;
constexpr int kParkedRight = 7320;
constexpr int kParkedLower = 8050;

void place(forms::Control& panel, const Spot& spot) {
  panel.move(spot.left, spot.top);
  panel.visible = true;
  panel.refresh();
}

void bevels(forms::Panel& panel, int style) {
  panel.bevelInner = panel.bevelOuter = style;
  panel.bevelWidth = kBevelWidth;
}

}  // namespace

Drawer::Drawer(const FaceplatePorts& ports, Engine& engine, KeyLooks& looks, InterfaceSounds& sounds, CDForm& form, SharedState& state,
               FaceplateUpward& upward)
    : clock_(ports.clock),
      data_(ports.files, state.settings.appDir),
      screen_(ports.screen),
      engine_(engine),
      looks_(looks),
      sounds_(sounds),
      form_(form),
      state_(state),
      upward_(upward),
      timer_(ports.clock.makeTimer([this] { follow(); })) {}

Drawer::~Drawer() = default;

bool Drawer::isOpen() const { return form_.Panel3D7.top == kOpenMain.top; }

bool Drawer::slides() const { return state_.settings.smallFaceplate == 0 && state_.settings.expandedDisplay == 0; }

void Drawer::opendrawer() {
  if (motion_ == Motion::Opening || (isOpen() && motion_ == Motion::None)) return;
  if (form_.Panel3D6.visible) sounds_.play(Sound::OpenDrawer);
  // A deck that found no disc has nothing lying in its tray.
  for (auto* panel : {&form_.Panel3D8, &form_.Panel3D7, &form_.Panel3D9, &form_.Panel3D10})
    panel->empty = state_.disc.noDiscState != kDiscAtStart;
  start(Motion::Opening);
  looks_.show(DeckState::DoorOpen);
  form_.Image11.enabled = false;
  // Stays until the next process has started: that is how the old one knows.
  data_.mark(DataFile::HandOver);
  if (state_.settings.appOptions[kExitOnEject] == 1 && state_.disc.discLoaded && !leaving_) {
    // Eject opens the drawer, and the open drawer ejects: once round is enough.
    leaving_ = true;
    // While a window of the user's holds the exit, the eject that opened the drawer goes its way.
    if (!upward_.restartWaits()) engine_.mmcontrol1_EjectClick();
    upward_.exitWhenFree();
  }
}

void Drawer::start(Motion motion) {
  motion_ = motion;
  since_ = clock_.milliseconds();
  shown_ = 0;
  timer_->setInterval(kFrame);
  follow();
}

void Drawer::follow() {
  if (motion_ == Motion::None) return;
  // Without the door in sight nothing slides; the layout that shows it finds it as it stands.
  const auto due = slides() ? static_cast<int>((clock_.milliseconds() - since_) / kFrame) : kFrames;
  while (shown_ < std::min(due, kFrames)) {
    ++shown_;
    if (motion_ == Motion::Opening) {
      openFrame(shown_);
    } else {
      closeFrame(shown_);
    }
  }
  if (shown_ < kFrames) return;
  motion_ = Motion::None;
  timer_->setInterval(0);
}

void Drawer::openFrame(int frame) {
  if (frame == kFrames) {
    standOpen();
    return;
  }
  if (!slides()) return;
  if (frame == 1) {
    form_.Line7.visible = false;
    place(form_.Panel3D6, kDoorFrame);
    form_.Panel3D2.backColor = colours::kBlack;
    bevels(form_.Panel3D2, 1);
  } else {
    for (size_t i = 0; i < 2; ++i) form_.Image77[i].visible = form_.Label77[i].visible = false;
    form_.Panel3D6.visible = false;
    place(form_.Panel3D8, kTrayFrame);
  }
  form_.Panel3D2.refresh();
  form_.Label1.refresh();
}

void Drawer::standOpen() {
  form_.Line7.visible = false;
  for (size_t i = 0; i < 2; ++i) form_.Image77[i].visible = form_.Label77[i].visible = false;
  form_.Panel3D2.backColor = colours::kBlack;
  bevels(form_.Panel3D2, 1);
  form_.Panel3D6.visible = form_.Panel3D8.visible = false;
  form_.Panel3D7.move(kOpenMain.left, kOpenMain.top);
  form_.Panel3D9.move(kOpenRight.left, kOpenRight.top);
  form_.Panel3D10.top = kOpenTrayLowerTop;
  for (auto* slice : {&form_.Panel3D7, &form_.Panel3D9, &form_.Panel3D10}) slice->visible = slides();
  form_.Panel3D1.refresh();
  form_.Panel3D2.refresh();
  form_.Label1.refresh();
}

void Drawer::closedrawer() {
  if (!slides()) return;
  screen_.setPointer(Pointer::Hourglass);
  start(Motion::Closing);
}

void Drawer::closeFrame(int frame) {
  if (frame == 1) {
    for (auto* slice : {&form_.Panel3D7, &form_.Panel3D9, &form_.Panel3D10}) slice->visible = false;
    form_.Panel3D7.top = kParkedMain;
    form_.Panel3D9.top = kParkedRight;
    form_.Panel3D10.top = kParkedLower;
    place(form_.Panel3D8, kTrayFrame);
  } else if (frame == 2) {
    form_.Panel3D8.move(kTrayClosed.left, kTrayClosed.top);
    place(form_.Panel3D6, kDoorFrame);
  } else {
    form_.Panel3D6.move(kDoorClosed.left, kDoorClosed.top);
    for (size_t i = 0; i < 2; ++i) form_.Image77[i].visible = form_.Label77[i].visible = true;
    form_.Line7.visible = true;
    form_.Panel3D2.backColor = state_.settings.customColor[kCustomDoor] != 0 ? state_.settings.customColor[kCustomDoor] : 0x3D3733;
    bevels(form_.Panel3D2, 2);
    form_.Panel3D2.refresh();
  }
}

}  // namespace orvanta
