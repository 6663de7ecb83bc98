// The room of the web: menus, searches, the browser, and programs that are started from there.
#pragma once

#include "web/enhanced_disc.h"
#include "web/main_menu.h"

namespace orvanta {

struct Web {
  Web(const WebPorts& ports, Actions& actions, CDForm& form, SharedState& state, WebUpward& upward)
      : browser(ports, state),
        search(ports, browser, state, upward),
        library(ports, form, state),
        enhanced(ports, actions, form, state),
        menu(ports, {actions, search, library, state, upward}) {}

  Browser browser;
  WebSearch search;
  LibraryProgram library;
  EnhancedDisc enhanced;
  MainMenu menu;
};

}  // namespace orvanta
