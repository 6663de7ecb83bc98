// Heights, border and what the sound mode leaves out.
#include "strip/strip_layout.h"

#include "windows/volcntl_layouts.h"

namespace orvanta {

using volcntl::Heights;
using volcntl::Metrics;

void StripLayout::apply() {
  if (!border()) takeBorderAway();
  if (state_.settings.soundMode == kNoSliders) takeSlidersAway();
  fold();
}

void StripLayout::takeBorderAway() {
  form_.frame.visible = false;
  form_.width = form_.width - volcntl::kWindowLess;
  form_.SSPanel2.move(0, 0);
  form_.SSPanel2.width = form_.SSPanel2.width + volcntl::kBodyMore;
  form_.Image10.width = form_.SSPanel2.width;
}

/// The mute key opens the mixer, and what unfolds is the display alone.
void StripLayout::takeSlidersAway() {
  form_.SSPanel3.visible = false;
  form_.Label10.caption = "Mix";
  form_.Label1.caption = "Dsp";
  form_.Image5.art = "strip-key:mixer";
  form_.Image5.says = "Mixer";
  form_.Image6.art = "strip-key:display-unfold";
  form_.Image8.art = "strip-key:display-fold";
}

void StripLayout::lay(bool unfolded) {
  const Metrics& metrics = form_.smallFonts ? volcntl::kCoarse : volcntl::kFine;
  const Heights& heights = unfolded ? metrics.unfolded : metrics.folded;
  state_.display.popupLayout = unfolded ? kOn : kOff;
  form_.Image6.visible = !unfolded;
  form_.Image8.visible = unfolded;
  form_.SSPanel1.top = unfolded ? volcntl::kMiniAway : metrics.miniTop;
  form_.SSPanel2.height = heights.body + (border() ? 0 : volcntl::kBodyMore);
  form_.Image10.height = form_.SSPanel2.height;
  form_.frame.height = heights.frame;
  form_.height = heights.window - (border() ? 0 : volcntl::kWindowLess);
}

}  // namespace orvanta
