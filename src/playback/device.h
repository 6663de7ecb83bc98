// The CD device in the player's terms: opening it, and lengths and times as texts.
#pragma once

#include <string>

#include "state/shared_state.h"

namespace orvanta {

class CdDevice;
class Dialogs;

class DeviceLayer {
 public:
  DeviceLayer(CdDevice& device, Dialogs& dialogs, DiscState& disc) : device_(device), dialogs_(dialogs), disc_(disc) {}

  /// Sends "Open". False when there is no disc. Ends the process when another player holds the
  /// drive, or when no driver can play.
  bool openDevice();

  /// Position within the track, "mm:ss"; from 24 minutes on "m:s" unpadded.
  std::string currentTimeText() const;
  int16_t currentDeviceTrack() const;

  /// "m:ss"; also fills trackFrames(t).
  std::string trackLengthText(int16_t track);

  /// "mm:ss", from an hour on "h:mm:ss"; also fills discMinutes.
  std::string discLengthTextOf();

  /// The number that the disc's key is made of: the track count, every packed track length, and
  /// the packed disc length once for each track. Keys of existing files hang on it.
  int32_t sumOfTracks();

 private:
  CdDevice& device_;
  Dialogs& dialogs_;
  DiscState& disc_;
};

}  // namespace orvanta
