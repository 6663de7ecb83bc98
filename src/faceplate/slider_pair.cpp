// Slider geometry, in twips measured inside the slider's panel: the thumb's top is 75 at full volume
// and 1070 at silence, ten to a percent, with a snap zone at either end.
#include "faceplate/slider_pair.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>

#include "base/text.h"
#include "platform/forms/form.h"

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

bool SliderPair::mouseDown(const forms::Control& part, const forms::Mouse& mouse) {
  const auto side = sideOf(part);
  if (!side || mouse.button != forms::MouseButton::Left) return side.has_value();
  // From here on the arrows are its.
  forms::Panel& area = sliders_[*side].area;
  area.form().setFocus(area);
  if (takeHold(*side, part, mouse) && moveTo(*side, mouse.y)) tell(*side);
  return true;
}

/// False where the press moves nothing.
bool SliderPair::takeHold(Side side, const forms::Control& part, const forms::Mouse& mouse) {
  const SliderControls& slider = sliders_[side];
  const bool onArea = &part == &slider.area;
  VolumeDrag& drag = state_.volume.volDrag;
  if (onArea && mouse.x < kDeadStrip) {
    drag = kNoDrag;
    return false;
  }
  drag = onArea ? kArea : &part == &slider.upper ? kUpperBar : kLowerBar;
  paint(side, kThumbDragged);
  const int thumb = slider.thumb.top;
  return onArea ? mouse.y < thumb || mouse.y >= thumb + kThumbGrip : std::abs(mouse.y - thumb) > kBarGrip;
}

bool SliderPair::mouseMove(const forms::Control& part, const forms::Mouse& mouse) {
  const auto side = sideOf(part);
  if (!side) return false;
  const SliderControls& slider = sliders_[*side];
  const int y = &part == &slider.upper && mouse.y > kWrapped ? kAbove : mouse.y;
  if ((&part == &slider.area || !byMixer()) && moveTo(*side, y)) tell(*side);
  return true;
}

bool SliderPair::mouseUp(const forms::Control& part) {
  const auto side = sideOf(part);
  if (!side) return false;
  state_.volume.volDrag = kNoDrag;
  paint(*side, kThumbColour);
  return true;
}

/// From either end the first step leaves the snap zone by its own edge. A slider that has left may still have the focus.
bool SliderPair::step(const forms::Control& part, int steps) {
  const auto side = sideOf(part);
  if (!side || state_.settings.soundMode == kNoSliders) return side.has_value();
  // A thumb that is held meanwhile stays in the hand.
  auto& drag = state_.volume.volDrag;
  const auto held = std::exchange(drag, kArea);
  const bool moved = moveTo(*side, sliders_[*side].thumb.top + kAreaGrip - steps * kStep);
  if (drag == kArea) drag = held;
  if (moved) tell(*side);
  return true;
}

bool SliderPair::keyDown(const forms::KeyPress& key) {
  const forms::Control* focus = sliders_[Left].area.form().activeControl();
  if (focus == nullptr) return false;
  const bool press = key.code == forms::key::kSpace || key.code == forms::key::kEnter;
  if (press) return sideOf(*focus).has_value();
  const bool up = key.code == forms::key::kUp || key.code == forms::key::kRight;
  const bool down = key.code == forms::key::kDown || key.code == forms::key::kLeft;
  return (up || down) && step(*focus, up ? 1 : -1);
}

/// Driving the mixer program takes the place of the drag.
void SliderPair::tell(Side side) {
  moved_(side);
  if (byMixer()) darken();
}

void SliderPair::letGo() {
  state_.volume.volDrag = kNoDrag;
  darken();
}

/// The thumbs as nobody holds them.
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
  if (muted_.visible) state_.volume.volDrag = kNoDrag;
  int place = 0;
  switch (state_.volume.volDrag) {
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

void SliderPair::moveWith(Side side, const SliderPair& other) {
  link(other.linked());
  stand(side, other.sliders_[side].thumb.top);
  tell(side);
}

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
