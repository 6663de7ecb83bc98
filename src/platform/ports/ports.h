// What the core is given of the world, each by reference and alive for the whole process.
// A port whose users are still to come stands beside this list in its own header.
#pragma once

namespace orvanta {

class AuxVolume;
class CdDevice;
class Clock;
class Dialogs;
class DiscData;
class DiscTray;
class FactSource;
class Files;
class MixerApplication;
class Menus;
class Net;
class Printer;
class Processes;
class Screen;
class Sounds;
class System;
class Tray;
namespace forms {
class Desktop;
}

struct Ports {
  CdDevice& device;
  DiscTray& tray;
  DiscData& discData;
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  System& system;
  AuxVolume& auxVolume;
  MixerApplication& mixer;
  Sounds& sounds;
  Printer& printer;
  Net& net;
  Menus& menus;
  Tray& systemTray;
  FactSource& facts;
  forms::Desktop& desktop;  ///< gives loaded forms their views
};

}  // namespace orvanta
