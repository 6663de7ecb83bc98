// A real drive as a disc source.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/disc/disc_source.h"
#include "platform/linux/cdrom_calls.h"

namespace orvanta {

/// A drive path that names a device; any other is a folder with disc images.
bool isDevice(const std::string& drivePath);

class CdromDrive : public DiscSource {
 public:
  explicit CdromDrive(std::unique_ptr<CdromCalls> calls) : calls_(std::move(calls)) {}

  bool lock() override { return calls_->lock(); }
  DriveStatus poll() override;
  const Toc& toc() const override { return toc_; }
  std::string firstEntry() const override { return entry_; }
  std::string missing() const override { return calls_->missing(); }
  bool read(int frame, int count, int16_t* samples) override;
  void openTray() override;
  void closeTray() override;
  std::string accept(const std::string& imagePath) override;

 private:
  bool readTable();
  std::string entryOfDisc();

  std::unique_ptr<CdromCalls> calls_;
  std::optional<CdromStatus> status_;  ///< as poll() saw it last; unknown while the tray was moved
  bool known_ = false;                 ///< the table of the disc that is in was read
  Toc toc_;
  std::string entry_;
};

}  // namespace orvanta
