// Which act a control of the faceplate stands for.
#pragma once

#include <optional>

#include "faceplate/action.h"
#include "platform/forms/control.h"

namespace orvanta {

struct Route {
  Action action;
  int argument = 0;
};

/// nullopt for a control that is no key of this button.
std::optional<Route> routeOf(const forms::Control& control);
std::optional<Route> rightRouteOf(const forms::Control& control);

}  // namespace orvanta
