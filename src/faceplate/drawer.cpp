// Opening the door. Panel3D7 at its open place is what says that it stands open.
#include "faceplate/drawer.h"

#include "base/text.h"
#include "platform/ports/files.h"

namespace orvanta {

namespace {

constexpr int kOpenTop = 600;
constexpr int kOpenLeft = 1200;

}  // namespace

bool Drawer::isOpen() const { return form_.Panel3D7.top == kOpenTop; }

void Drawer::opendrawer() {
  if (isOpen()) return;
  for (const size_t key : {0U, 3U}) form_.scntlb[key].visible = false;
  for (auto& mask : form_.icntlb) mask.visible = false;
  for (const size_t key : {Play, Pause, Stop}) form_.icntlc[key].visible = false;
  form_.Panel3D7.move(kOpenLeft, kOpenTop);
  maskKeys();
  greyLegends();
  form_.Image11.enabled = false;
  // Stays until the next process has started: that is how the old one knows.
  files_.write(joinPath(state_.settings.appDir, "ejcd.tmp"), "\"0\"\r\n");
}

void Drawer::maskKeys() {
  for (size_t key = Next; key <= Stop; ++key) {
    form_.icntlc[key].visible = false;
    form_.icntlb[key].visible = true;
  }
  for (size_t key = 1; key < 20; ++key) form_.Label34[key].foreColor = colours::kGrey;
  for (const size_t key : {0U, 3U}) {
    form_.scntlc[key].visible = false;
    if (state_.settings.smallFaceplate != kOn) form_.scntlb[key].visible = true;
  }
}

void Drawer::greyLegends() {
  for (auto* label : {&form_.Label35, &form_.Label24, &form_.Label17, &form_.Label19, &form_.Label20, &form_.Label25, &form_.Label38,
                      &form_.Label39, &form_.Label40}) {
    label->foreColor = colours::kGrey;
  }
}

}  // namespace orvanta
