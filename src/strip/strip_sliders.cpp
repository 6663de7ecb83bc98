// Drag, wheel and arrows on the strip's sliders.
#include "strip/strip_sliders.h"

namespace orvanta {

StripSliders::StripSliders(Volume& volume, VolCntl& form, SharedState& state)
    : volume_(volume),
      form_(form),
      state_(state),
      sliders_({form.PctL, form.VolumeL, form.VbartopL, form.VbarbtmL, form.ThumbL, form.TlineL},
               {form.PctR, form.VolumeR, form.VbartopR, form.VbarbtmR, form.ThumbR, form.TlineR}, form.Image9, form.Image7,
               state.volume.volDrag) {}

/// Where the mixer program is driven, that takes the place of the drag.
void StripSliders::moved(SliderPair::Side side) {
  if (side == SliderPair::Left) {
    setVolumeLV();
  } else {
    setVolumeRV();
  }
  if (byMixer()) sliders_.darken();
}

bool StripSliders::mouseDown(const forms::Control& control, const forms::Mouse& mouse) {
  const auto side = sliders_.sideOf(control);
  if (!side) return false;
  if (mouse.button != forms::MouseButton::Left) return true;
  form_.setFocus(*side == SliderPair::Left ? form_.VolumeL : form_.VolumeR);
  if (sliders_.press(*side, control, mouse)) moved(*side);
  return true;
}

bool StripSliders::mouseMove(const forms::Control& control, const forms::Mouse& mouse) {
  const auto side = sliders_.sideOf(control);
  if (!side) return false;
  const bool onBar = &control != &form_.VolumeL && &control != &form_.VolumeR;
  if (!(onBar && byMixer()) && sliders_.drag(*side, control, mouse.y)) moved(*side);
  return true;
}

bool StripSliders::mouseUp(const forms::Control& control) {
  const auto side = sliders_.sideOf(control);
  if (side) sliders_.release(*side);
  return side.has_value();
}

bool StripSliders::step(const forms::Control& control, int steps) {
  const auto side = sliders_.sideOf(control);
  if (!side) return false;
  if (sliders_.step(*side, steps)) moved(*side);
  return true;
}

void StripSliders::letGo() {
  state_.volume.volDrag = kNoDrag;
  sliders_.darken();
}

/// Without sliders the mute key opens the mixer, and shows no state. The mixer program's channels are always linked.
void StripSliders::follow() {
  const bool own = state_.settings.soundMode != kNoSliders;
  form_.Image7.visible = own && volume_.muted();
  form_.Image5.visible = !form_.Image7.visible;
  if (!own) return;
  sliders_.copy(volume_.sliders());
  if (byMixer()) sliders_.link(true);
}

}  // namespace orvanta
