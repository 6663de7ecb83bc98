// The controls' table. Faces, words on the display and panels are keys alike.
#include "faceplate/routes.h"

namespace orvanta {

namespace {

constexpr int kEach = RouteRow::kEach;
constexpr int kOne = forms::kNoIndex;

constexpr RouteRow kLeft[] = {
    {"icntla", 0, Action::Previous},
    {"icntla", 1, Action::Next},
    {"icntla", 2, Action::Play},
    {"icntla", 3, Action::Pause},
    {"icntla", 4, Action::Stop},
    {"icntla", 5, Action::Record},
    {"scntla", 0, Action::ScanBack},
    {"scntla", 1, Action::TimeMode},
    {"scntla", 2, Action::AbLoop},
    {"scntla", 3, Action::ScanForward},
    {"Image17", kEach, Action::Track},
    {"Image16", 0, Action::Above20},
    {"Image16", 1, Action::Shuffle},
    {"Image16", 2, Action::Repeat},
    {"Image16", 3, Action::Record},
    {"Image16", 4, Action::TrackList},
    {"Image4", 0, Action::Pgm},
    {"Image4", 1, Action::One},
    {"Image4", 2, Action::Cont},
    {"Image4", 3, Action::Intro},
    {"Image10", 0, Action::Library},
    {"Image10", 1, Action::CdData},
    {"Image10", 2, Action::Playlist},
    {"Image10", 3, Action::Internet},
    {"Label6", kOne, Action::NextMode},
    {"Label9", kOne, Action::TimeMode},
    {"Label30", kOne, Action::Recall},
    {"Label14", kOne, Action::EnhancedDisc},
    {"Image12", kOne, Action::EnhancedDisc},
    {"CDStatusBar", kOne, Action::Seek},
    {"Panel3D2", kOne, Action::Eject},
    // The prompt stands for the tray, which the small and the expanded faceplate do not show.
    {"Panel3D7", kOne, Action::PutIn},
    {"Panel3D9", kOne, Action::PutIn},
    {"Panel3D10", kOne, Action::PutIn},
    {"Label12", kOne, Action::PutIn},
    {"Label13", kOne, Action::PutIn},
    {"Image2", kEach, Action::Mute},
    {"Image9", kEach, Action::Link},
    {"PctL", kOne, Action::SilenceLeft},
    {"PctR", kOne, Action::SilenceRight},
    {"Image19", kEach, Action::Mixer},
    {"Command3D16", kOne, Action::Mixer},
    {"Image20", kEach, Action::DisplaySize},
    {"Image7", kOne, Action::MinimiseToStrip},
    {"Image11", kOne, Action::Small},
    {"Image13", kOne, Action::Large},
    {"Image5", kOne, Action::Exit},
    {"Image6", kOne, Action::Exit},
};

constexpr RouteRow kRight[] = {
    {"Image7", kOne, Action::MinimiseToTray}, {"SSPanel1", kOne, Action::SlidersAway}, {"Command3D16", kOne, Action::SlidersBack},
    {"Image16", 4, Action::CloseTrackList},   {"Image10", 2, Action::Recall},
};

}  // namespace

std::optional<Route> routeIn(std::span<const RouteRow> rows, const forms::Control& control) {
  for (const RouteRow& row : rows) {
    if (row.name == control.name() && (row.index == kEach || row.index == control.index())) return Route{row.action, control.index() + 1};
  }
  return std::nullopt;
}

std::optional<Route> routeOf(const forms::Control& control) { return routeIn(kLeft, control); }
std::optional<Route> rightRouteOf(const forms::Control& control) { return routeIn(kRight, control); }

}  // namespace orvanta
