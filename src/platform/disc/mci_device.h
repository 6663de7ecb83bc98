// The CD audio device: command words, packed values and error numbers over a disc player.
#pragma once

#include <memory>
#include <optional>

#include "platform/disc/disc_player.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"

namespace orvanta {

class MciDevice : public CdDevice {
 public:
  MciDevice(DiscPlayer& player, Clock& clock);

  void setEvents(CdDeviceEvents* events) override { events_ = events; }
  void command(std::string_view word) override;
  int16_t error() const override { return error_; }
  bool canPlay() const override { return true; }
  void setFrom(uint32_t tmsf) override { from_ = tmsf; }
  void setTo(uint32_t tmsf) override { to_ = tmsf; }
  void setTrack(int16_t track) override { track_ = track; }
  int16_t track() const override { return track_; }
  int16_t tracks() const override;
  bool isData(int16_t track) const override;
  uint32_t length() const override;
  uint32_t trackLength() const override;
  uint32_t position() const override;
  DeviceMode mode() const override;
  void setUpdateInterval(int milliseconds) override { timer_->setInterval(milliseconds); }
  void setDeviceType(std::string_view /*type*/) override {}
  void setTimeFormat(int16_t /*format*/) override {}
  void setWait(int16_t /*wait*/) override {}
  void setNotify(int16_t /*notify*/) override {}
  void setShareable(int16_t /*shareable*/) override {}
  std::string sendString(std::string_view command) override;
  std::string directoryEntry() const override { return player_.firstEntry(); }
  SheetTexts texts() const override { return player_.texts(); }
  bool soundless() const override { return player_.soundless(); }
  std::string missingDrive() const override { return player_.missingDrive(); }

 private:
  int16_t carryOut(std::string_view word);
  int16_t open();
  int16_t play();
  int16_t seek();
  std::optional<int> frameOf(uint32_t tmsf) const;
  void tick();

  DiscPlayer& player_;
  CdDeviceEvents* events_ = nullptr;
  std::unique_ptr<Timer> timer_;
  std::optional<uint32_t> from_;
  std::optional<uint32_t> to_;
  int playTo_ = 0;  ///< end of the play under way
  int16_t track_ = 1;
  int16_t error_ = 0;
  bool open_ = false;
  bool playing_ = false;  ///< until its end was told
  bool milliseconds_ = false;
};

}  // namespace orvanta
