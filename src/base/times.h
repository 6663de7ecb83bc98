// Times of a disc: frames (75 a second), the device's two packed formats, and m:ss texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

constexpr int kFramesPerSecond = 75;
constexpr int kFramesPerMinute = 60 * kFramesPerSecond;

/// Minutes, seconds, frames; as a length or as a place on the disc.
struct Msf {
  int minutes = 0;
  int seconds = 0;
  int frames = 0;
  bool operator==(const Msf&) const = default;
};

Msf msfOfFrames(int frames);
int framesOf(const Msf& msf);

/// The packed MSF value of a device: minutes in byte 0, seconds in 1, frames in 2, byte 3 is 0.
uint32_t packMsf(const Msf& msf);
Msf unpackMsf(uint32_t packed);

/// The packed TMSF value of a device: track in byte 0, then minutes, seconds, frames within it.
struct Tmsf {
  int track = 0;
  Msf time;
  bool operator==(const Tmsf&) const = default;
};
uint32_t packTmsf(const Tmsf& tmsf);
Tmsf unpackTmsf(uint32_t packed);

/// A seek target: a place within a track in whole seconds.
uint32_t packSeekTarget(int track, int seconds);

/// Seconds of a text "m:ss": 60 times what stands before the colon plus what stands behind it.
/// Any number of minutes; 0 for a text without numbers.
int secondsOf(std::string_view text);

/// "m:ss", minutes unpadded: 187 gives "3:07".
std::string minutesSeconds(int seconds);

/// "mm:ss", from an hour on "h:mm:ss".
std::string longTime(int seconds);

/// The time picture "hh:mm" put on an "m:s" text: 3 and 7 give "03:07". From 24 on the first
/// number is no valid hour, and the text stays "25:3"; secondsOf() reads both.
std::string clockPicture(int minutes, int seconds);

}  // namespace orvanta
