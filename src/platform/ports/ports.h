// What the core is given of the world, each by reference and alive for the whole process.
// A port whose users are still to come stands beside this list in its own header.
#pragma once

namespace orvanta {

class CdDevice;
class Clock;
class Dialogs;
class DiscTray;
class Files;
class Processes;
class Screen;
class System;
namespace forms {
class Desktop;
}

struct Ports {
  CdDevice& device;
  DiscTray& tray;
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  System& system;
  forms::Desktop& desktop;  ///< gives loaded forms their views
};

}  // namespace orvanta
