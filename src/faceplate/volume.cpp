// Slider geometry, in twips measured inside the slider's panel: the thumb's top is 75 at full volume
// and 1070 at silence, ten to a percent, with a snap zone at either end.
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
constexpr int kLoudest = 75;
constexpr int kSilent = 1070;
constexpr int kUpperSnap = 100;   ///< above it the thumb jumps to kLoudest
constexpr int kLowerSnap = 1060;  ///< below it to kSilent
constexpr int kBarTop = 90;
constexpr int kThumbLine = 79;
constexpr int kDeadStrip = 70;  ///< left of the slider: no press counts
constexpr int kThumbGrip = 90;  ///< a press that far below the thumb's top does not move it
constexpr int kBarGrip = 40;
constexpr int kWrapped = 1500;  ///< a drag above the upper bar reports a value beyond this
constexpr int kPrepared = 50;   ///< attenuation that the mixer program is set to at first
constexpr int kStep = 50;       ///< twips to a notch of the wheel: five percent
constexpr Colour kThumbColour = 0xB8B8BA;
constexpr Colour kThumbDragged = 0x7EFEDE;
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
      left_{form.PctL,
            form.VolumeL,
            form.VbartopL,
            form.VbarbtmL,
            form.ThumbL,
            form.TlineL,
            state.volume.leftRaw,
            state.volume.leftAtten,
            state.volume.leftAttenPrev},
      right_{form.PctR,
             form.VolumeR,
             form.VbartopR,
             form.VbarbtmR,
             form.ThumbR,
             form.TlineR,
             state.volume.rightRaw,
             state.volume.rightAtten,
             state.volume.rightAttenPrev} {}

// ---- modes

void Volume::activate() {
  int16_t& mode = state_.settings.soundMode;
  if (mode > kNoSliders && mode < kOwnVolume) mode = kOwnVolume;
  if (mode == kOwnVolume && state_.volume.volBlocked == -1) cdvol();
  layout_.placeVolumePanel();
  if (mode == kOwnVolume && state_.volume.volDrag == kArea) state_.volume.volDrag = kNoDrag;
  // Once: at the start, or when the setup has turned to the mixer.
  if (mode == kMixerProgram && std::exchange(fresh_, false)) {
    mixer_.prepare();
    for (Channel* channel : {&left_, &right_}) {
      channel->atten = channel->attenPrev = kPrepared;
      put(*channel, kLoudest + 10 * kPrepared);
      channel->pct.caption = std::to_string(100 - kPrepared);
      channel->upper.visible = true;
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
  for (Channel* channel : {&left_, &right_}) {
    channel->attenPrev = channel->atten;
    put(*channel, kLoudest + 10 * channel->atten);
    channel->pct.caption = std::to_string(100 - channel->atten);
    channel->upper.visible = channel->atten >= 1;
  }
  if (volume.rightRaw < 0) volume.rightRaw += 65536;
  volume.volBlocked = 0;
  form_.Image2[1].visible = true;
  form_.Image2[0].visible = false;
  const bool together = std::abs(volume.leftAtten - volume.rightAtten) < 2;
  form_.Image9[1].visible = together;
  form_.Image9[0].visible = !together;
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
void Volume::setVolume(Channel& channel) {
  channel.atten = static_cast<int16_t>(nearest(100 - leadingNumber(channel.pct.caption.get())));
  if (state_.settings.soundMode == kMixerProgram) {
    mixer_.setFVol(channel.atten);
    return;
  }
  if (muted()) {
    unmuted();
    write();
  }
  if (state_.volume.volBlocked == -1) return;
  const int delta = channel.atten - channel.attenPrev;
  channel.attenPrev = channel.atten;
  const int step = nearest(std::abs(delta) * double{kFull} / 100);
  channel.raw = delta < 0 ? std::min(channel.raw + step, kFull) : std::max(channel.raw - step, 0);
  if (channel.atten > 99) channel.raw = 0;
  if (linked()) {
    // The other one follows, so that its next difference starts from here.
    other(channel).raw = channel.raw;
    other(channel).atten = other(channel).attenPrev = channel.atten;
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
  const bool byMixer = state_.settings.soundMode == kMixerProgram;
  form_.Image2[1].visible = !mute;
  form_.Image2[0].visible = mute;
  paintLevelBars(form_, state_.settings);
  if (byMixer) {
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
  if (volume.volBlocked == 0) aux_.setVolume(volume.auxDeviceId, packedVolume(volume.leftRaw, volume.rightRaw));
}

void Volume::releaseMute() {
  if (muted()) Image2_MouseUp(0);
}

void Volume::Image9_MouseUp(size_t index) {
  if (state_.settings.soundMode == kMixerProgram) return;
  form_.Image9[index].visible = false;
  form_.Image9[1 - index].visible = true;
}

// ---- the sliders

Volume::Channel* Volume::channelOf(const forms::Control& control) {
  for (Channel* channel : {&left_, &right_}) {
    if (&control == &channel->area || &control == &channel->upper || &control == &channel->lower) return channel;
  }
  return nullptr;
}

void Volume::paintThumb(Channel& channel, Colour colour) {
  channel.thumb.backColor = colour;
  if (linked()) other(channel).thumb.backColor = colour;
}

bool Volume::mouseDown(const forms::Control& control, const forms::Mouse& mouse) {
  Channel* channel = channelOf(control);
  if (channel == nullptr) return false;
  if (mouse.button == forms::MouseButton::Left) press(*channel, control, mouse);
  return true;
}

void Volume::press(Channel& channel, const forms::Control& part, const forms::Mouse& mouse) {
  int16_t& drag = state_.volume.volDrag;
  const bool onArea = &part == &channel.area;
  if (onArea && mouse.x < kDeadStrip) {
    drag = kNoDrag;
    return;
  }
  drag = onArea ? kArea : &part == &channel.upper ? kUpperBar : kLowerBar;
  paintThumb(channel, kThumbDragged);
  const int thumb = channel.thumb.top;
  const bool onThumb = onArea ? mouse.y >= thumb && mouse.y < thumb + kThumbGrip : std::abs(mouse.y - thumb) <= kBarGrip;
  if (!onThumb) moveTo(channel, mouse.y);
}

bool Volume::mouseMove(const forms::Control& control, const forms::Mouse& mouse) {
  Channel* channel = channelOf(control);
  if (channel == nullptr) return false;
  const bool onBar = &control != &channel->area;
  if (onBar && state_.settings.soundMode == kMixerProgram) return true;
  moveTo(*channel, &control == &channel->upper && mouse.y > kWrapped ? 12 : mouse.y);
  return true;
}

bool Volume::mouseUp(const forms::Control& control) {
  Channel* channel = channelOf(control);
  if (channel == nullptr) return false;
  state_.volume.volDrag = kNoDrag;
  paintThumb(*channel, kThumbColour);
  return true;
}

void Volume::put(Channel& channel, int place) {
  channel.thumb.top = place;
  channel.lines[0].top = place;
  channel.lines[1].top = place;
  channel.lines[1].height = kThumbLine;
  channel.upper.height = place - kBarTop;
}

/// `y` is measured in the part that the drag started on.
void Volume::moveTo(Channel& channel, int y) {
  if (muted()) state_.volume.volDrag = kNoDrag;
  int place = 0;
  switch (state_.volume.volDrag) {
    case kUpperBar: place = channel.upper.top + y - 84; break;
    case kLowerBar: place = channel.lower.top + y - 84; break;
    case kArea: place = y - 60; break;
    default: return;
  }
  const bool loudest = place < kUpperSnap;
  if (loudest) place = kLoudest;
  if (place > kLowerSnap) place = kSilent;
  for (Channel* moved : {&channel, &other(channel)}) {
    if (moved != &channel && !linked()) continue;
    moved->upper.visible = !loudest;
    put(*moved, place);
    moved->pct.caption = std::to_string(static_cast<int>(107.5 - 0.1 * place));
    moved->area.refresh();
  }
  setVolume(channel);
  // Driving the mixer takes the place of the drag.
  if (state_.settings.soundMode == kMixerProgram) left_.thumb.backColor = right_.thumb.backColor = kThumbColour;
}

bool Volume::step(const forms::Control& control, int steps) {
  Channel* channel = channelOf(control);
  if (channel == nullptr) return false;
  // A slider that has left may still have the focus.
  if (state_.settings.soundMode == kNoSliders) return true;
  state_.volume.volDrag = kArea;
  // From either end the first step leaves the snap zone by its own edge.
  moveTo(*channel, channel->thumb.top + 60 - steps * kStep);
  state_.volume.volDrag = kNoDrag;
  return true;
}

void Volume::stepBoth(int steps) {
  step(left_.area, steps);
  if (!linked()) step(right_.area, steps);
}

void Volume::silence(Channel& channel) {
  if (state_.settings.soundMode == kNoSliders) return;
  for (Channel* moved : {&channel, &other(channel)}) {
    if (moved != &channel && !linked()) continue;
    put(*moved, kSilent);
    moved->pct.caption = "0";
  }
  setVolume(channel);
  channel.upper.visible = true;
  if (other(channel).pct.caption.get() != "100") other(channel).upper.visible = true;
}

}  // namespace orvanta
