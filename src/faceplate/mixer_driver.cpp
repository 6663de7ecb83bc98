// Key texts as the mixer's window takes them. Its slider has 250 places: a page is 50 of them.
#include "faceplate/mixer_driver.h"

#include <cmath>
#include <cstdlib>

#include "base/text.h"
#include "platform/ports/files.h"
#include "platform/ports/mixer_application.h"

namespace orvanta {

namespace {

using mixer::kPage;
using mixer::kPlaces;
using mixer::kTitle;
constexpr const char* kOldTitle = "Sndvol32";
constexpr int kMiddle = 125;
constexpr int kBusy = 3;
constexpr int kMostWindows = 16;  ///< a window that will not close must not hold us up

}  // namespace

void MixerDriver::start() {
  const std::string& folder = state_.process.windowsDir;
  const std::string plain = joinPath(folder, "sndvol32.exe");
  const std::string system = joinPath(folder, "system32/sndvol32.exe");
  const int family = state_.process.osFamily;
  ports_.mixer.startHidden(family == 1 ? plain : family == 2 || ports_.files.exists(system) ? system : plain);
}

void MixerDriver::send(std::initializer_list<const char*> keys) {
  for (const char* key : keys) ports_.mixer.sendKeys(key);
}

void MixerDriver::close() { ports_.mixer.close(kTitle); }

void MixerDriver::prepare() {
  form_.Image9[0].visible = false;
  form_.Image9[1].visible = true;
  state_.volume.muteRight = kMiddle;
  form_.Image8.refresh();
  for (const char* title : {kTitle, kOldTitle}) {
    for (int i = 0; i < kMostWindows && ports_.mixer.close(title); ++i) {
    }
  }
  start();
  ports_.mixer.activate(kTitle);
  send({"{TAB}"});
  ports_.mixer.activate(kTitle);
  send({"{TAB}", "{END}", "{PGUP 2}", "{UP 25}", "{TAB}", "{+}", "{-}"});
  close();
  start();
  ports_.mixer.activate(kTitle);
  send({"{HOME}", "{RIGHT 32}", "{TAB}", "{END}", "{PGUP 2}", "{UP 25}", "{TAB}", "{+}", "{-}"});
  close();
  if (form_.view() != nullptr) form_.view()->raise();
}

void MixerDriver::setFVol(int attenuation) {
  VolumeState& volume = state_.volume;
  if (volume.mixerBusy > 2) return;
  volume.mixerBusy = kBusy;
  start();
  ports_.mixer.activate(kTitle);
  const int position = static_cast<int>(std::nearbyint(kPlaces - attenuation * 2.5));
  ports_.mixer.sendKeys("{TAB}");
  if (position < 1 || attenuation > 99) {
    ports_.mixer.sendKeys("{END}");
  } else if (position > kPlaces - 1 || attenuation < 1) {
    ports_.mixer.sendKeys("{HOME}");
  } else {
    const bool up = position > volume.muteRight;
    const int way = std::abs(position - volume.muteRight);
    if (way >= kPage) ports_.mixer.sendKeys((up ? "{PGUP " : "{PGDN ") + std::to_string(way / kPage) + "}");
    if (way % kPage > 0) ports_.mixer.sendKeys((up ? "{UP " : "{DOWN ") + std::to_string(way % kPage) + "}");
  }
  volume.muteRight = position;
  close();
  if (form_.view() != nullptr) form_.view()->raise();
  volume.mixerBusy = 0;
  volume.volDrag = kNoDrag;
}

void MixerDriver::setMute(bool mute) {
  start();
  ports_.mixer.activate(kTitle);
  send({"{TAB}", "{TAB}", mute ? "{+}" : "{-}"});
  close();
  if (form_.view() != nullptr) form_.view()->raise();
}

void MixerDriver::tidyUp() {
  if (state_.settings.soundMode != kMixerProgram) return;
  start();
  send({"{TAB}", "{+}", "{-}"});
  close();
}

}  // namespace orvanta
