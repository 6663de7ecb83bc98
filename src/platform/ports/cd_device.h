// One CD audio device as the player drives it: commands as words, packed positions, numbered
// modes and errors. The words and numbers are those of the MCI "CDAudio" device type.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ports/sheet_texts.h"

namespace orvanta {

enum class DeviceMode : int16_t { NotOpen = 524, Stopped = 525, Playing = 526, Seeking = 528, Paused = 529 };

namespace device_error {
constexpr int16_t kNone = 0;
constexpr int16_t kUnknownCommand = 261;
constexpr int16_t kHardware = 262;       ///< at play completion: the drive failed
constexpr int16_t kNotOpen = 263;        ///< a command to a device that is not open
constexpr int16_t kNoDisc = 266;         ///< Open: no playable disc in the drive
constexpr int16_t kMissingTarget = 273;  ///< Seek without To
constexpr int16_t kOutOfRange = 282;     ///< From or To outside the disc
constexpr int16_t kInUse = 291;          ///< Open: another player holds the drive
}  // namespace device_error

constexpr int16_t kTimeFormatTmsf = 10;

/// Events of the device, delivered on the core's thread.
class CdDeviceEvents {
 public:
  virtual ~CdDeviceEvents() = default;
  /// Every setUpdateInterval() milliseconds.
  virtual void statusUpdate() = 0;
  /// A play ended by itself: 0, or device_error::kHardware.
  virtual void playCompleted(int16_t error) = 0;
};

/// No call waits for the drive: answers come from what is known, and an accepted command shows in
/// mode(), position() and tracks() at once.
class CdDevice {
 public:
  virtual ~CdDevice() = default;
  virtual void setEvents(CdDeviceEvents* events) = 0;

  /// "Open", "Close", "Play", "Pause", "Resume", "Stop", "Seek", "Eject", in any case. The result
  /// is in error(); a failed command changes nothing.
  virtual void command(std::string_view word) = 0;
  virtual int16_t error() const = 0;
  /// False when no driver can play at all.
  virtual bool canPlay() const = 0;

  // For the next command; TMSF, a track number alone is its start. Play takes both, Seek `To`;
  // used once, then forgotten. A failed command, Open and Seek drop a pending From.
  virtual void setFrom(uint32_t tmsf) = 0;
  virtual void setTo(uint32_t tmsf) = 0;

  /// Selects the track of trackLength().
  virtual void setTrack(int16_t track) = 0;
  virtual int16_t track() const = 0;

  virtual int16_t tracks() const = 0;  ///< 0 when not open or without a disc
  virtual bool isData(int16_t track) const = 0;
  virtual uint32_t length() const = 0;       ///< of the disc, MSF, one frame short of the table of contents
  virtual uint32_t trackLength() const = 0;  ///< MSF; the last track's is one frame short; 0 out of range
  virtual uint32_t position() const = 0;     ///< what is heard now, TMSF; 0 when not open
  virtual DeviceMode mode() const = 0;

  /// Milliseconds between status events; 0 for none.
  virtual void setUpdateInterval(int milliseconds) = 0;

  // Kept for the closing sequence of a disc change; the device acts alike for all values.
  virtual void setDeviceType(std::string_view type) = 0;
  virtual void setTimeFormat(int16_t format) = 0;
  virtual void setWait(int16_t wait) = 0;
  virtual void setNotify(int16_t notify) = 0;
  virtual void setShareable(int16_t shareable) = 0;

  /// A command string with a text reply of at most 128 characters; "" for one that fails.
  /// Known: "set cdaudio time format milliseconds", "status cdaudio position" (rounded up), and behind it " track 1"
  /// for the place where the disc starts, whatever plays.
  virtual std::string sendString(std::string_view command) = 0;

  /// Name of the first entry in the drive's root: "Track01.cda" for an audio disc, the first file
  /// of the data session for an enhanced one; "" without a disc or while it is not ready.
  virtual std::string directoryEntry() const = 0;

  /// What the disc in the drive tells about itself; empty without a disc, or where it tells nothing.
  virtual SheetTexts texts() const = 0;

  /// What plays is heard by nobody: there is no sound server or card. It plays on by the clock until there is one again.
  virtual bool soundless() const = 0;
  /// The path of a drive that is not there at all; "" for one that is.
  virtual std::string missingDrive() const = 0;
};

}  // namespace orvanta
