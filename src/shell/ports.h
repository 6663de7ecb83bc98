// What the shell is given of the world.
#pragma once

namespace orvanta {

class Dialogs;
class FactSource;
class Files;
class Processes;
class Screen;
class System;
class Tray;
namespace forms {
class Desktop;
}

struct ShellPorts {
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  System& system;
  Tray& tray;
  FactSource& facts;
  forms::Desktop& desktop;
};

}  // namespace orvanta
