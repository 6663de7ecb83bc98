// The sound board's one line, "CD Audio": the level of our own stream, kept in a file so that it outlives
// the process.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/aux_volume.h"
#include "platform/ports/clock.h"
#include "platform/ports/files.h"
#include "platform/sound/level.h"

namespace orvanta {

/// The level of a level.dat: left in the low word, right in the high word; nullopt for one that tells none.
std::optional<uint32_t> levelOf(std::string_view bytes);

/// The level that was kept last; full without one.
uint32_t keptLevel(const Files& files, const std::string& path);

void setLevel(Level& level, uint32_t volume);

class StreamVolume : public AuxVolume {
 public:
  /// Takes the level of the file `path`, and keeps it there a second after its last change; "" keeps it for
  /// this process alone.
  /// `changed` is called after each change of the level.
  StreamVolume(Level& level, Files& files, Clock& clock, std::string path, std::function<void()> changed);

  int devices() const override { return 1; }
  AuxCaps caps(int device) const override;
  AuxReading volume(int device) const override;
  int setVolume(int device, uint32_t volume) override;
  int mute(int device) override;
  void keep() override;

 private:
  Level& level_;
  Files& files_;
  std::string path_;
  std::function<void()> changed_;
  uint32_t volume_;   ///< as heard
  uint32_t lasting_;  ///< the same, or what a mute will be lifted to
  uint32_t kept_;     ///< as in the file
  std::unique_ptr<Timer> timer_;
};

}  // namespace orvanta
