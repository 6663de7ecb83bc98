// Where a window opens that is used together with the deck. All in twips.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/forms/form.h"

namespace orvanta {

enum class Side { Above, Below, Left, Right };

inline constexpr int kTitleBar = 480;  ///< twips that the window manager adds above a window, as a rule

inline int64_t overlap(const forms::Place& a, const forms::Place& b) {
  const int64_t across = std::min(a.left + a.width, b.left + b.width) - std::max(a.left, b.left);
  const int64_t down = std::min(a.top + a.height, b.top + b.height) - std::max(a.top, b.top);
  return across > 0 && down > 0 ? across * down : 0;
}

/// Wholly on the screen, as far as it is not larger; a window that is keeps its left upper corner there.
inline forms::Place ontoScreen(forms::Place window, const forms::Place& screen) {
  window.left = std::max(screen.left, std::min(window.left, screen.left + screen.width - window.width));
  window.top = std::max(screen.top, std::min(window.top, screen.top + screen.height - window.height));
  return window;
}

/// The first of the sides where the window covers nothing of the deck; where there is none, the one where it covers least,
/// and of its keys rather than more.
inline forms::Place besideDeck(forms::Place window, const forms::Place& deck, const forms::Place& screen, std::array<Side, 4> sides,
                               const forms::Place& keys = {}) {
  forms::Place best = window;
  std::pair<int64_t, int64_t> least{-1, 0};
  for (const Side side : sides) {
    window.left = deck.left + (deck.width - window.width) / 2;
    window.top = deck.top + (deck.height - window.height) / 2;
    if (side == Side::Above) window.top = deck.top - window.height - kTitleBar;
    if (side == Side::Below) window.top = deck.top + deck.height;
    if (side == Side::Left) window.left = deck.left - window.width;
    if (side == Side::Right) window.left = deck.left + deck.width;
    const forms::Place placed = ontoScreen(window, screen);
    const std::pair covered{overlap(placed, deck), overlap(placed, keys)};
    if (least.first < 0 || covered < least) {
      best = placed;
      least = covered;
    }
  }
  return best;
}

/// In the middle of the window that it belongs to.
inline forms::Place amidst(forms::Place window, const forms::Place& owner, const forms::Place& screen) {
  window.left = owner.left + (owner.width - window.width) / 2;
  window.top = owner.top + (owner.height - window.height) / 2;
  return ontoScreen(window, screen);
}

inline forms::Place placeOf(const forms::Form& form) { return {form.left, form.top, form.width, form.height}; }

}  // namespace orvanta
