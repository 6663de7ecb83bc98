// What the faceplate is given of the world.
#pragma once

namespace orvanta {

class AuxVolume;
class CdDevice;
class Clock;
class Dialogs;
class DiscTray;
class Files;
class MixerApplication;
class Processes;
class Screen;
class Sounds;

struct FaceplatePorts {
  CdDevice& device;
  DiscTray& tray;
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Screen& screen;
  AuxVolume& auxVolume;
  MixerApplication& mixer;
  Sounds& sounds;
};

}  // namespace orvanta
