// Stands in for the mixer's window: understands its keys and moves the sound system's master volume.
#pragma once

#include <memory>
#include <string>

#include "platform/ports/mixer_application.h"

namespace orvanta {

/// The master volume: channels 0 to 1.
struct MasterLevel {
  double left = 1;
  double right = 1;
  bool mute = false;
};

class MasterVolume {
 public:
  virtual ~MasterVolume() = default;
  /// false when there is no sound system; `level` then stays.
  virtual bool read(MasterLevel& level) = 0;
  /// false when the sound system did not take it.
  virtual bool write(const MasterLevel& level) = 0;
};

/// Through the sound server's own control program.
std::unique_ptr<MasterVolume> systemMasterVolume();

/// Three controls, stepped through by Tab: balance (0 to 64, left to right), volume (0 to 250, a page is
/// 50) and the mute box.
class MixerStandIn : public MixerApplication {
 public:
  explicit MixerStandIn(MasterVolume& master) : master_(master) {}
  bool startHidden(const std::string& program) override;
  bool activate(const std::string& title) override;
  void sendKeys(const std::string& keys) override;
  bool close(const std::string& title) override;

 private:
  void press(const std::string& key, int times);
  void store();

  enum class Control { Balance, Volume, Mute };
  MasterVolume& master_;
  bool open_ = false;
  Control focus_ = Control::Balance;
  int balance_ = 32;
  int volume_ = 250;
  bool mute_ = false;
};

}  // namespace orvanta
