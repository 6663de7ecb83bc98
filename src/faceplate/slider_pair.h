// Two volume sliders and their link: places, percents and the drag. Nothing here knows what a place sets.
#pragma once

#include <array>
#include <optional>

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

  /// `link`: 0 shows apart, 1 linked. While `muted` shows, no hand moves a slider. `drag` is a VolumeDrag, of all
  /// windows that have sliders.
  SliderPair(const SliderControls& left, const SliderControls& right, forms::ControlArray<forms::Image, 2>& link,
             const forms::Control& muted, VolumeDrag& drag)
      : sliders_{left, right}, link_(link), muted_(muted), drag_(drag) {}

  /// nullopt for a control that is part of neither.
  std::optional<Side> sideOf(const forms::Control& control) const;

  // Each is true when the place was set anew.
  /// A press on the thumb itself, or left of the slider, moves nothing.
  bool press(Side side, const forms::Control& part, const forms::Mouse& mouse);
  bool drag(Side side, const forms::Control& part, int y);
  /// Up (above 0) or down.
  bool step(Side side, int steps);

  void release(Side side);
  /// The thumbs as nobody holds them.
  void darken();

  /// To where the thumb of another window's slider stands, with the other one where they are linked.
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
  bool moveTo(Side side, int y);
  void stand(Side side, int place);
  void put(Side side, int place);
  void paint(Side side, Colour colour);

  std::array<SliderControls, 2> sliders_;
  forms::ControlArray<forms::Image, 2>& link_;
  const forms::Control& muted_;
  VolumeDrag& drag_;
};

}  // namespace orvanta
