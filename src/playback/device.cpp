// Opening the device, and what its packed numbers say.
#include "playback/device.h"

#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"

namespace orvanta {

bool DeviceLayer::openDevice() {
  device_.command("Open");
  const int16_t error = device_.error();
  if (error == device_error::kInUse) {
    dialogs_.message(BoxStyle::Warning, "Orvanta",
                     "The MCI CD Device is in use by another application.  Wait until it is finished, and then\ntry again!");
    end();
  }
  if (error != device_error::kNoDisc && !device_.canPlay()) {
    dialogs_.message(BoxStyle::Critical, "Driver Not Installed!",
                     "(MCI)Audio CD Driver is not installed!\nCheck the Control Panel Settings Under\n"
                     "Drivers for Audio CD Driver installation.\n");
    end();
  }
  return error != device_error::kNoDisc;
}

std::string DeviceLayer::currentTimeText() const {
  const Tmsf position = unpackTmsf(device_.position());
  return clockPicture(position.time.minutes, position.time.seconds);
}

int16_t DeviceLayer::currentDeviceTrack() const { return static_cast<int16_t>(unpackTmsf(device_.position()).track); }

std::string DeviceLayer::trackLengthText(int16_t track) {
  const auto lengthOf = [&](int16_t number) {
    device_.setTrack(number);
    return unpackMsf(device_.trackLength());
  };
  const Msf own = lengthOf(track);
  if (track >= 0 && static_cast<size_t>(track) < disc_.trackFrames.size()) disc_.trackFrames[static_cast<size_t>(track)] = own.frames;
  if (track != disc_.trackCount) {
    // Some drivers answer with the tracks' places instead of their lengths; then even the first
    // track seems as long as the whole disc. A length is the way to the next place.
    const Msf first = lengthOf(1);
    const Msf disc = unpackMsf(device_.length());
    if (first.minutes * 60 + first.seconds >= disc.minutes * 60 + disc.seconds) {
      const Msf next = lengthOf(static_cast<int16_t>(track + 1));
      int minutes = next.minutes - own.minutes;
      int seconds = next.seconds - own.seconds;
      if (seconds < 0) {
        seconds += 60;
        --minutes;
      }
      return minutesSeconds(minutes * 60 + seconds);
    }
  }
  return minutesSeconds(own.minutes * 60 + own.seconds);
}

std::string DeviceLayer::discLengthTextOf() {
  const Msf length = unpackMsf(device_.length());
  disc_.discMinutes = static_cast<int16_t>(length.minutes);
  return longTime(length.minutes * 60 + length.seconds);
}

int32_t DeviceLayer::sumOfTracks() {
  double sum = device_.tracks();
  for (int16_t track = 1; track <= disc_.trackCount; ++track) {
    device_.setTrack(track);
    sum += static_cast<double>(device_.trackLength()) + static_cast<double>(device_.length());
  }
  return sum <= 2147483647.0 ? static_cast<int32_t>(sum) : 2147483647;
}

}  // namespace orvanta
