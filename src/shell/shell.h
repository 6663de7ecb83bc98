// The room of what surrounds the deck on a desktop: help, wallpaper, tray.
#pragma once

#include "shell/help.h"
#include "shell/wallpaper.h"

namespace orvanta {

struct Shell {
  Shell(const ShellPorts& ports, const Drawer& drawer, Form26& wallpaperForm, CDForm& form, SharedState& state)
      : help(ports, state), wallpaper(ports, drawer, wallpaperForm, form, state) {}

  Help help;
  Wallpaper wallpaper;
};

}  // namespace orvanta
