// The room of what surrounds the deck on a desktop: help, wallpaper, tray.
#pragma once

#include "shell/help.h"
#include "shell/tray_control.h"
#include "shell/wallpaper.h"

namespace orvanta {

struct Shell {
  Shell(const ShellPorts& ports, Strip& strip, const Drawer& drawer, StatusBoard& status, Form26& wallpaperForm, CDForm& form,
        SharedState& state, ShellUpward& upward)
      : help(ports, state), wallpaper(ports, drawer, wallpaperForm, form, state), tray(ports, {strip, help}, status, state, upward) {}

  Help help;
  Wallpaper wallpaper;
  TrayControl tray;
};

}  // namespace orvanta
