// From a drive to a disc on the display: the probe, the table of contents, the disc's key.
#pragma once

#include "playback/device.h"
#include "playback/display.h"
#include "playback/key_looks.h"
#include "playback/ports.h"

namespace orvanta {

class CdDevice;
class Files;
class PlaybackUpward;
class Screen;

class DiscLoad {
 public:
  DiscLoad(const PlaybackPorts& ports, DeviceLayer& layer, Display& display, KeyLooks& looks, CDForm& form, SharedState& state,
           PlaybackUpward& upward)
      : device_(ports.device),
        layer_(layer),
        files_(ports.files),
        screen_(ports.screen),
        display_(display),
        looks_(looks),
        form_(form),
        state_(state),
        upward_(upward) {}

  /// At the faceplate's load: true with a playable disc, which is loaded then. Without one
  /// noDiscState is kNoDiscAtStart.
  bool probe();

  /// The track table, filled on the first tick so that the faceplate appears first; then the
  /// disc's type, and the automatic lookup.
  void deferredTable();

  /// The disc's texts out of its files, where it has any, once more; then on the display.
  void readTextsAgain();

  /// Does what clearDiscRequest asks for.
  void clearOnRequest();

 private:
  void loadDisc();
  void readTexts();
  void readOwn();
  void clearTexts();
  void totalFromTracks();
  void showDiscType();
  bool entryIsAudio() const;

  CdDevice& device_;
  DeviceLayer& layer_;
  Files& files_;
  Screen& screen_;
  Display& display_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
  PlaybackUpward& upward_;
  bool typeShown_ = false;
};

}  // namespace orvanta
