// Folders of the host, by the desktop's own rules.
#pragma once

#include "platform/ports/system.h"

namespace orvanta {

class HostSystem : public System {
 public:
  explicit HostSystem(std::vector<std::string> handedOn) : handedOn_(std::move(handedOn)) {}
  std::string systemDir() const override;
  std::string windowsDir() const override;
  std::string defaultDataDir() const override;
  std::string mixerProgram() const override;
  /// The demo disc of this installation; without it a folder of the data folder, to put images in.
  std::string usualDrive(const std::string& dataDir) const;
  int16_t platformId() const override { return 1; }
  std::vector<std::string> handedOn() const override { return handedOn_; }

 private:
  std::vector<std::string> handedOn_;
};

}  // namespace orvanta
