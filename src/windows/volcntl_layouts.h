// The strip's layouts beside the design: folded or unfolded, with its border or without. Twips.
#pragma once

namespace orvanta::volcntl {

/// SSPanel2 with Image10, the frame, the window.
struct Heights {
  int body;
  int frame;
  int window;
};

/// Of one metric variant.
struct Metrics {
  Heights folded;
  Heights unfolded;
  int miniTop;  ///< of SSPanel1 in the strip
};
constexpr Metrics kFine{{480, 516, 526}, {3962, 3998, 4010}, 1152};
constexpr Metrics kCoarse{{540, 580, 600}, {3860, 3900, 3920}, 1132};

/// Without its border the window is this much smaller, in both directions, and the body this much larger.
constexpr int kWindowLess = 50;
constexpr int kBodyMore = 10;

/// Past the lower edge: where SSPanel1 goes while the large display shows.
constexpr int kMiniAway = 99999;

}  // namespace orvanta::volcntl
