// Two volume sliders and their link: places, percents, and the hand that moves them. Nothing here knows what a place sets.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <utility>

#include "platform/forms/control.h"
#include "platform/forms/input.h"
#include "state/shared_state.h"

namespace orvanta {

struct SliderControls {
  forms::Label& pct;
  forms::Panel& area;
  forms::Panel& upper;  ///< covers the channel above the thumb
  forms::Panel& lower;
  forms::Shape& thumb;
  forms::ControlArray<forms::Line, 2>& lines;
};

class SliderPair {
 public:
  enum Side : size_t { Left, Right };
  static constexpr std::array<Side, 2> kBoth = {Left, Right};

  /// `link`: 0 shows apart, 1 linked. While `muted` shows, no hand moves a slider. `moved` hears of each place that a hand
  /// gives a slider, here or in another window; the one that is linked to it has gone along.
  SliderPair(const SliderControls& left, const SliderControls& right, forms::ControlArray<forms::Image, 2>& link,
             const forms::Control& muted, SharedState& state, std::function<void(Side)> moved)
      : sliders_{left, right}, link_(link), muted_(muted), state_(state), moved_(std::move(moved)) {}

  // The hand. Each is false for a control that is part of no slider.
  /// A press on the thumb itself, or left of the slider, moves nothing.
  bool mouseDown(const forms::Control& part, const forms::Mouse& mouse);
  bool mouseMove(const forms::Control& part, const forms::Mouse& mouse);
  bool mouseUp(const forms::Control& part);
  /// Up (above 0) or down.
  bool step(const forms::Control& part, int steps);
  /// Arrows move the slider that has the focus. It is no key: Space and ENTER leave it where it stands.
  bool keyDown(const forms::KeyPress& key);
  /// A drag that the window's end cuts off is over.
  void letGo();

  /// To where the thumb of another window's slider stands, with the link as it is there.
  void moveWith(Side side, const SliderPair& other);
  /// Both as those of another window; who is held by a hand stays painted so.
  void copy(const SliderPair& other);
  /// Shows an attenuation of 0 to 100, on this side alone.
  void show(Side side, int attenuation);
  /// To the bottom, with the other one where they are linked.
  void silence(Side side);
  void uncover(Side side, bool covered) { sliders_[side].upper.visible = covered; }

  /// As the percent tells it.
  int attenuation(Side side) const;

  bool linked() const { return link_[1].visible; }
  void link(bool together);

  static Side other(Side side) { return side == Left ? Right : Left; }

 private:
  std::optional<Side> sideOf(const forms::Control& control) const;
  bool takeHold(Side side, const forms::Control& part, const forms::Mouse& mouse);
  bool moveTo(Side side, int y);
  void tell(Side side);
  bool byMixer() const { return state_.settings.soundMode == kMixerProgram; }
  void darken();
  void stand(Side side, int place);
  void put(Side side, int place);
  void paint(Side side, Colour colour);

  std::array<SliderControls, 2> sliders_;
  forms::ControlArray<forms::Image, 2>& link_;
  const forms::Control& muted_;
  SharedState& state_;
  std::function<void(Side)> moved_;
};

}  // namespace orvanta
