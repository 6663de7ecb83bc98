// What a slider's place sets.
#include "faceplate/volume.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/text.h"
#include "faceplate/display_colours.h"
#include "platform/ports/aux_volume.h"
#include "platform/ports/dialogs.h"

namespace orvanta {

namespace {

constexpr int kFull = 65535;
constexpr int kPrepared = 50;  ///< attenuation that the mixer program is set to at first
constexpr const char* kNoDevice =
    "Specified sound board device ID is out of range; you may need to install an updated driver for your sound board, or use the Force "
    "Windows Compatible sound mode or disable the internal volume sliders in the Orvanta Setup Section.";
constexpr const char* kNoDriver = "The driver failed to install.";

/// To the nearest, ties to the even number.
int nearest(double value) { return static_cast<int>(std::nearbyint(value)); }

}  // namespace

uint32_t packedVolume(int32_t left, int32_t right) {
  return (static_cast<uint32_t>(right) & 0xFFFFU) << 16U | (static_cast<uint32_t>(left) & 0xFFFFU);
}

Volume::Volume(const FaceplatePorts& ports, Layout& layout, MixerDriver& mixer, InterfaceSounds& sounds, CDForm& form, SharedState& state)
    : aux_(ports.auxVolume),
      dialogs_(ports.dialogs),
      layout_(layout),
      mixer_(mixer),
      sounds_(sounds),
      form_(form),
      state_(state),
      sliders_({form.PctL, form.VolumeL, form.VbartopL, form.VbarbtmL, form.ThumbL, form.TlineL},
               {form.PctR, form.VolumeR, form.VbartopR, form.VbarbtmR, form.ThumbR, form.TlineR}, form.Image9, form.Image2[0], state,
               [this](Side side) { setVolume(side); }) {}

Volume::Channel Volume::channel(Side side) {
  VolumeState& volume = state_.volume;
  if (side == SliderPair::Left) return {volume.leftRaw, volume.leftAtten, volume.leftAttenPrev};
  return {volume.rightRaw, volume.rightAtten, volume.rightAttenPrev};
}

// ---- modes

void Volume::activate() {
  int16_t& mode = state_.settings.soundMode;
  if (mode > kNoSliders && mode < kOwnVolume) mode = kOwnVolume;
  if (mutedBy_ != mode) releaseMute();
  if (mode == kOwnVolume && state_.volume.volBlocked == -1) cdvol();
  layout_.placeVolumePanel();
  if (mode == kOwnVolume && state_.volume.volDrag == kArea) state_.volume.volDrag = kNoDrag;
  // Once: at the start, or when the setup has turned to the mixer.
  if (mode == kMixerProgram && std::exchange(fresh_, false)) {
    mixer_.prepare();
    for (const Side side : SliderPair::kBoth) {
      channel(side).atten = channel(side).attenPrev = kPrepared;
      sliders_.show(side, kPrepared);
    }
  }
}

void Volume::slidersOff() {
  state_.settings.soundMode = kNoSliders;
  layout_.placeVolumePanel();
}

void Volume::SSPanel1_RightClick() {
  if (state_.settings.soundMode == kMixerProgram) {
    sounds_.beep();
    return;
  }
  slidersOff();
}

void Volume::Command3D16_RightClick() {
  state_.settings.soundMode = kOwnVolume;
  if (state_.volume.volBlocked == -1) cdvol();
  state_.volume.volDrag = kNoDrag;
  layout_.placeVolumePanel();
}

// ---- the device

bool Volume::findDevice() {
  state_.volume.auxDeviceId = 0;
  const int count = aux_.devices();
  for (int id = 0; id < count; ++id) {
    const AuxCaps caps = aux_.caps(id);
    if (caps.error != 0) {
      report(caps.error);
      return false;
    }
    if (caps.name.find("CD") == std::string::npos) continue;
    state_.volume.auxDeviceId = static_cast<int16_t>(id);
    break;
  }
  return true;
}

void Volume::cdvol() {
  VolumeState& volume = state_.volume;
  volume.volDrag = kArea;
  volume.volBlocked = -1;
  if (!findDevice()) {
    slidersOff();
    return;
  }
  const AuxReading reading = aux_.volume(volume.auxDeviceId);
  if (reading.error != 0) {
    report(reading.error);
    slidersOff();
    return;
  }
  volume.leftRaw = static_cast<int32_t>(reading.volume & 0xFFFFU);
  // The right half comes as a signed number; the left one never did. The sum comes out the same.
  volume.rightRaw = static_cast<int16_t>(reading.volume >> 16U);
  volume.leftAtten = static_cast<int16_t>(std::abs(100 - nearest(volume.leftRaw * 100.0 / kFull)));
  int right = std::abs(nearest(volume.rightRaw * 100.0 / kFull));
  if (volume.rightRaw < 0) right = std::abs(100 - right);
  volume.rightAtten = static_cast<int16_t>(std::abs(100 - right));
  for (const Side side : SliderPair::kBoth) {
    channel(side).attenPrev = channel(side).atten;
    sliders_.show(side, channel(side).atten);
  }
  if (volume.rightRaw < 0) volume.rightRaw += 65536;
  volume.volBlocked = 0;
  form_.Image2[1].visible = true;
  form_.Image2[0].visible = false;
  sliders_.link(std::abs(volume.leftAtten - volume.rightAtten) < 2);
}

void Volume::write() {
  const int error = aux_.setVolume(state_.volume.auxDeviceId, packedVolume(state_.volume.leftRaw, state_.volume.rightRaw));
  if (error != 0) report(error);
}

void Volume::report(int error) {
  if (error == 2) dialogs_.message(BoxStyle::Critical, "Orvanta", kNoDevice);
  if (error == 6) dialogs_.message(BoxStyle::Critical, "Orvanta", kNoDriver);
}

/// The value moves by the difference, not from the percent, so roundings of a long drag add up; at
/// 0 % it is set, which is what makes silence sure.
void Volume::setVolume(Side side) {
  const Channel own = channel(side);
  own.atten = static_cast<int16_t>(sliders_.attenuation(side));
  if (byMixer()) {
    mixer_.setFVol(own.atten);
    return;
  }
  if (muted()) {
    unmuted();
    write();
  }
  if (state_.volume.volBlocked == -1) return;
  const int delta = own.atten - own.attenPrev;
  own.attenPrev = own.atten;
  const int step = nearest(std::abs(delta) * double{kFull} / 100);
  own.raw = delta < 0 ? std::min(own.raw + step, kFull) : std::max(own.raw - step, 0);
  if (own.atten > 99) own.raw = 0;
  if (linked()) {
    // The other one follows, so that its next difference starts from here.
    const Channel other = channel(SliderPair::other(side));
    other.raw = own.raw;
    other.atten = other.attenPrev = own.atten;
  }
  write();
}

// ---- mute and link

void Volume::unmuted() {
  form_.Image2[0].visible = false;
  form_.Image2[1].visible = true;
  paintLevelBars(form_, state_.settings);
  state_.volume.rightRaw = state_.volume.muteRight;
  state_.volume.leftRaw = state_.volume.muteLeft;
}

void Volume::Image2_MouseUp(size_t index) {
  VolumeState& volume = state_.volume;
  const bool mute = index == 1;
  // A second mute would keep the silence in place of the level.
  if (mute == muted()) return;
  // The sound comes back by the road that it went.
  if (mute) mutedBy_ = state_.settings.soundMode;
  form_.Image2[1].visible = !mute;
  form_.Image2[0].visible = mute;
  paintLevelBars(form_, state_.settings);
  if (mutedBy_ == kMixerProgram) {
    mixer_.setMute(mute);
    return;
  }
  if (mute) {
    volume.muteRight = volume.rightRaw;
    volume.muteLeft = volume.leftRaw;
    volume.leftRaw = volume.rightRaw = 0;
  } else {
    volume.rightRaw = volume.muteRight;
    volume.leftRaw = volume.muteLeft;
  }
  // Failures of mute are not told; a slider that cannot be moved tells soon enough.
  if (volume.volBlocked != 0) return;
  if (mute) {
    aux_.mute(volume.auxDeviceId);
  } else {
    aux_.setVolume(volume.auxDeviceId, packedVolume(volume.leftRaw, volume.rightRaw));
  }
}

void Volume::releaseMute() {
  if (muted()) Image2_MouseUp(0);
}

void Volume::Image9_MouseUp(size_t index) {
  if (byMixer()) {
    sounds_.beep();
  } else {
    sliders_.link(index == 0);
  }
}

// ---- the sliders

void Volume::stepBoth(int steps) {
  sliders_.step(form_.VolumeL, steps);
  if (!linked()) sliders_.step(form_.VolumeR, steps);
}

void Volume::silence(Side side) {
  if (state_.settings.soundMode == kNoSliders) return;
  sliders_.silence(side);
  setVolume(side);
  sliders_.uncover(side, true);
  const Side other = SliderPair::other(side);
  if (sliders_.attenuation(other) > 0) sliders_.uncover(other, true);
}

}  // namespace orvanta
