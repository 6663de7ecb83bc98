// Which act a control stands for.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "faceplate/action.h"
#include "platform/forms/control.h"

namespace orvanta {

struct Route {
  Action action;
  int argument = 0;
};

struct RouteRow {
  static constexpr int kEach = -2;  ///< any of the array; its place counts from 1 in the argument

  std::string_view name;
  int index;
  Action action;
};

/// nullopt for a control of no row.
std::optional<Route> routeIn(std::span<const RouteRow> rows, const forms::Control& control);

// The faceplate's, of either button.
std::optional<Route> routeOf(const forms::Control& control);
std::optional<Route> rightRouteOf(const forms::Control& control);

}  // namespace orvanta
