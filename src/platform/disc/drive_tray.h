// The tray port over a player's drive.
#pragma once

#include "platform/disc/disc_player.h"
#include "platform/ports/disc_tray.h"

namespace orvanta {

class DriveTray : public DiscTray {
 public:
  /// `imageFolder`: "" for a drive that takes real discs.
  DriveTray(DiscPlayer& player, std::string imageFolder) : player_(player), imageFolder_(std::move(imageFolder)) {}
  bool takesImages() const override { return !imageFolder_.empty(); }
  std::string imageFolder() const override { return imageFolder_; }
  void offer(const std::string& path) override { player_.offer(path); }
  TrayOffer takeAnswer() override { return player_.takeAnswer(); }
  void close() override { player_.closeTray(); }

 private:
  DiscPlayer& player_;
  std::string imageFolder_;
};

}  // namespace orvanta
