// The kernel's CD-ROM calls on one drive, as an interface so that tests can answer them.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace orvanta {

struct CdromEntry {
  int block = 0;  ///< of index 1; block 0 is frame 150
  bool data = false;
};

/// As the kernel numbers them.
enum class CdromStatus { Gone, NoDisc, TrayOpen, NotReady, Disc };

class CdromCalls {
 public:
  static constexpr int kLeadOut = 0xAA;

  virtual ~CdromCalls() = default;
  /// The device's path when there is no such device; as the last try to open it told.
  virtual std::string missing() const { return {}; }
  /// Opens the drive anew: the kernel keeps tables of contents for each handle.
  virtual bool reopen() = 0;
  /// One try for the lock that players hold on a drive; kept until the end.
  virtual bool lock() = 0;
  virtual CdromStatus driveStatus() = 0;
  /// Last track number, of tracks numbered from 1; nullopt when it cannot be read, as for the entries.
  virtual std::optional<int> lastTrack() = 0;
  virtual std::optional<CdromEntry> entry(int track) = 0;
  virtual bool readAudio(int block, int count, int16_t* samples) = 0;
  /// The 2048 bytes of a data block.
  virtual bool readBlock(int block, unsigned char* bytes) = 0;
  virtual void setSpeed(int speed) = 0;
  virtual void eject() = 0;
  virtual void closeTray() = 0;
};

/// By linux/cdrom.h on a device file.
std::unique_ptr<CdromCalls> kernelCdrom(const std::string& device);

}  // namespace orvanta
