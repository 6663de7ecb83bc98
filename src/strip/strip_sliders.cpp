// What the strip's sliders hear of the faceplate's, and hand on to them.
#include "strip/strip_sliders.h"

namespace orvanta {

StripSliders::StripSliders(Volume& volume, VolCntl& form, SharedState& state)
    : volume_(volume),
      form_(form),
      state_(state),
      sliders_({form.PctL, form.VolumeL, form.VbartopL, form.VbarbtmL, form.ThumbL, form.TlineL},
               {form.PctR, form.VolumeR, form.VbartopR, form.VbarbtmR, form.ThumbR, form.TlineR}, form.Image9, form.Image7, state,
               [this](SliderPair::Side side) { side == SliderPair::Left ? setVolumeLV() : setVolumeRV(); }) {}

/// Without sliders the mute key opens the mixer, and shows no state. The mixer program's channels are always linked.
void StripSliders::follow() {
  const bool own = state_.settings.soundMode != kNoSliders;
  form_.Image7.visible = own && volume_.muted();
  form_.Image5.visible = !form_.Image7.visible;
  if (!own) return;
  sliders_.copy(volume_.sliders());
  if (state_.settings.soundMode == kMixerProgram) sliders_.link(true);
}

}  // namespace orvanta
