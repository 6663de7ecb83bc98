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
  std::string programFor(const std::vector<std::string>& types) const override;
  /// $XDG_CONFIG_HOME and $XDG_DATA_HOME, or where they would be.
  static std::string configHome();
  static std::string dataHome();
  /// Where the files of an image are copied to, to be started: in $XDG_CACHE_HOME.
  static std::string discFolder();
  /// The demo disc of this installation.
  std::string demoFolder() const;
  int16_t platformId() const override { return 1; }
  std::vector<std::string> handedOn() const override { return handedOn_; }
  void changeDrive(const std::string& drive, const std::string& disc) override;

 private:
  std::vector<std::string> handedOn_;
};

}  // namespace orvanta
