// Slider geometry, in twips measured inside the slider's panel: the thumb's top is 75 at full volume
// and 1070 at silence, ten to a percent, with a snap zone at either end.
#include "faceplate/slider_pair.h"

#include <cmath>
#include <cstdlib>
#include <string>

#include "base/text.h"
#include "state/shared_state.h"

namespace orvanta {

namespace {

constexpr int kLoudest = 75;
constexpr int kSilent = 1070;
constexpr int kUpperSnap = 100;   ///< above it the thumb jumps to kLoudest
constexpr int kLowerSnap = 1060;  ///< below it to kSilent
constexpr int kBarTop = 90;
constexpr int kThumbLine = 79;
constexpr int kDeadStrip = 70;  ///< left of the slider: no press counts
constexpr int kThumbGrip = 90;  ///< a press that far below the thumb's top does not move it
constexpr int kBarGrip = 40;
constexpr int kAreaGrip = 60;  ///< from the thumb's top to the middle that a place is measured by
constexpr int kBarOffset = 84;
constexpr int kWrapped = 1500;  ///< a drag above the upper bar reports a value beyond this
constexpr int kAbove = 12;
constexpr int kStep = 50;  ///< twips to a notch of the wheel: five percent
constexpr Colour kThumbColour = 0xB8B8BA;
constexpr Colour kThumbDragged = 0x7EFEDE;

}  // namespace

std::optional<SliderPair::Side> SliderPair::sideOf(const forms::Control& control) const {
  for (const Side side : kBoth) {
    const SliderControls& slider = sliders_[side];
    if (&control == &slider.area || &control == &slider.upper || &control == &slider.lower) return side;
  }
  return std::nullopt;
}

bool SliderPair::press(Side side, const forms::Control& part, const forms::Mouse& mouse) {
  const SliderControls& slider = sliders_[side];
  const bool onArea = &part == &slider.area;
  if (onArea && mouse.x < kDeadStrip) {
    drag_ = kNoDrag;
    return false;
  }
  drag_ = onArea ? kArea : &part == &slider.upper ? kUpperBar : kLowerBar;
  paint(side, kThumbDragged);
  const int thumb = slider.thumb.top;
  const bool onThumb = onArea ? mouse.y >= thumb && mouse.y < thumb + kThumbGrip : std::abs(mouse.y - thumb) <= kBarGrip;
  return !onThumb && moveTo(side, mouse.y);
}

bool SliderPair::drag(Side side, const forms::Control& part, int y) {
  return moveTo(side, &part == &sliders_[side].upper && y > kWrapped ? kAbove : y);
}

/// From either end the first step leaves the snap zone by its own edge.
bool SliderPair::step(Side side, int steps) {
  drag_ = kArea;
  const bool moved = moveTo(side, sliders_[side].thumb.top + kAreaGrip - steps * kStep);
  drag_ = kNoDrag;
  return moved;
}

void SliderPair::release(Side side) {
  drag_ = kNoDrag;
  paint(side, kThumbColour);
}

void SliderPair::darken() {
  for (const Side side : kBoth) sliders_[side].thumb.backColor = kThumbColour;
}

void SliderPair::paint(Side side, Colour colour) {
  sliders_[side].thumb.backColor = colour;
  if (linked()) sliders_[other(side)].thumb.backColor = colour;
}

void SliderPair::put(Side side, int place) {
  const SliderControls& slider = sliders_[side];
  slider.thumb.top = place;
  slider.lines[0].top = place;
  slider.lines[1].top = place;
  slider.lines[1].height = kThumbLine;
  slider.upper.height = place - kBarTop;
}

/// `y` is measured in the part that the drag started on.
bool SliderPair::moveTo(Side side, int y) {
  if (muted_.visible) drag_ = kNoDrag;
  int place = 0;
  switch (drag_) {
    case kUpperBar: place = sliders_[side].upper.top + y - kBarOffset; break;
    case kLowerBar: place = sliders_[side].lower.top + y - kBarOffset; break;
    case kArea: place = y - kAreaGrip; break;
    default: return false;
  }
  stand(side, place < kUpperSnap ? kLoudest : place > kLowerSnap ? kSilent : place);
  return true;
}

void SliderPair::stand(Side side, int place) {
  for (const Side moved : kBoth) {
    if (moved != side && !linked()) continue;
    uncover(moved, place != kLoudest);
    put(moved, place);
    sliders_[moved].pct.caption = std::to_string(static_cast<int>(107.5 - 0.1 * place));
    sliders_[moved].area.refresh();
  }
}

void SliderPair::moveWith(Side side, const SliderPair& other) { stand(side, other.sliders_[side].thumb.top); }

void SliderPair::copy(const SliderPair& other) {
  for (const Side side : kBoth) {
    const SliderControls& from = other.sliders_[side];
    put(side, from.thumb.top);
    uncover(side, from.upper.visible);
    sliders_[side].pct.caption = from.pct.caption.get();
    sliders_[side].lower.backColor = from.lower.backColor.get();
  }
  link(other.linked());
}

void SliderPair::show(Side side, int attenuation) {
  put(side, kLoudest + 10 * attenuation);
  sliders_[side].pct.caption = std::to_string(100 - attenuation);
  uncover(side, attenuation >= 1);
}

void SliderPair::silence(Side side) {
  for (const Side moved : kBoth) {
    if (moved != side && !linked()) continue;
    put(moved, kSilent);
    sliders_[moved].pct.caption = "0";
  }
}

int SliderPair::attenuation(Side side) const {
  return static_cast<int>(std::nearbyint(100 - leadingNumber(sliders_[side].pct.caption.get())));
}

void SliderPair::link(bool together) {
  link_[0].visible = !together;
  link_[1].visible = together;
}

}  // namespace orvanta
