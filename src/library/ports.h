// What the library's windows are given of the world.
#pragma once

namespace orvanta {

class CdDevice;
class Dialogs;
class Files;
class Printer;
class Processes;
class Screen;
class System;
namespace forms {
class Desktop;
}

struct LibraryPorts {
  CdDevice& device;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  System& system;
  Printer& printer;
  forms::Desktop& desktop;
};

}  // namespace orvanta
