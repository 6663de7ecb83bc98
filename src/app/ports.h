// What the start, the ends and the changes of the process are given of the world.
#pragma once

namespace orvanta {

class AuxVolume;
class CdDevice;
class Clock;
class Dialogs;
class Files;
class Processes;
class Screen;
class System;

struct LifePorts {
  CdDevice& device;
  AuxVolume& auxVolume;
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  System& system;
};

}  // namespace orvanta
