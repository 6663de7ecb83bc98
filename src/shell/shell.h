// The room of what surrounds the deck on a desktop: help, wallpaper, tray, the About box.
#pragma once

#include "shell/about.h"
#include "shell/help.h"
#include "shell/tray_control.h"
#include "shell/wallpaper.h"
#include "windows/about.h"

namespace orvanta {

struct Shell {
  struct Forms {
    Form26& wallpaper;
    AboutBox& about;
  };
  Shell(const ShellPorts& ports, Strip& strip, const Drawer& drawer, StatusBoard& status, const Forms& forms, CDForm& form,
        SharedState& state, ShellUpward& upward)
      : help(ports, state),
        wallpaper(ports, drawer, forms.wallpaper, form, state),
        tray(ports, {strip, help}, status, state, upward),
        about(ports, forms.about, form, state.settings, upward) {}

  Help help;
  Wallpaper wallpaper;
  TrayControl tray;
  About about;
};

}  // namespace orvanta
