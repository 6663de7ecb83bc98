// What playback is given of the world.
#pragma once

namespace orvanta {

class CdDevice;
class Clock;
class Dialogs;
class DiscTray;
class Files;
class Screen;

struct PlaybackPorts {
  CdDevice& device;
  DiscTray& tray;
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Screen& screen;
};

}  // namespace orvanta
