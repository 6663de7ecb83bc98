// The faceplate's layouts beside the design: expanded or normal display, small faceplate. Twips.
#pragma once

#include <cstddef>
#include <span>

namespace orvanta::layouts {

/// Left edges of the right pane and of what lies on it.
struct DisplayRow {
  const char* name;
  int expanded;
  int normal;
  int small;
};
std::span<const DisplayRow> displayLefts();

/// Of the right pane and of the title lines on it; the small faceplate has the wide ones.
constexpr int kPaneWide = 5652;
constexpr int kPaneNarrow = 2532;
constexpr int kTitlesWide = 5400;
constexpr int kTitlesNarrow = 2300;

struct Spot {
  int left;
  int top;
};
/// Where the small faceplate has a control, at 12 and at 15 twips a pixel. On the large one it stands
/// where the design puts it.
struct SmallRow {
  const char* name;
  int index;
  Spot fine;
  Spot coarse;
};
std::span<const SmallRow> smallSpots();

struct Size {
  int width;
  int height;
};
constexpr Size kLargeFine{9534, 3474};
constexpr Size kLargeFineBorder{9552, 3492};
constexpr Size kLargeCoarse{9554, 3494};
constexpr Size kSmall{5852, 2682};

/// "Online" on the pane, by metric variant.
struct OnlineLefts {
  int expanded;
  int normal;
};
constexpr OnlineLefts kOnlineFine{5172, 2052};
constexpr OnlineLefts kOnlineCoarse{5070, 1950};

/// Past the lower edge: where the volume panel goes when it is not wanted.
constexpr int kPanelAway = 99999;

}  // namespace orvanta::layouts
