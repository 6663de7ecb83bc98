// The faceplate's load order, and what its activation and unload do.
#pragma once

#include <memory>

#include "faceplate/display_colours.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/ports.h"
#include "faceplate/volume.h"
#include "platform/ports/clock.h"
#include "playback/playback.h"

namespace orvanta {

class FaceplateLoad {
 public:
  FaceplateLoad(const FaceplatePorts& ports, Playback& playback, DisplayColours& colours, Layout& layout, Volume& volume,
                InterfaceSounds& sounds, CDForm& form, SharedState& state);

  void load();
  void activate();
  void unload();
  /// Plays the track of the start's words; a number above the disc's tracks is passed over.
  void playTrackOfCommandLine();

 private:
  void setPlayState();
  void startMixer();

  CdDevice& device_;
  Files& files_;
  Playback& playback_;
  DisplayColours& colours_;
  Layout& layout_;
  Volume& volume_;
  InterfaceSounds& sounds_;
  CDForm& form_;
  SharedState& state_;
  std::unique_ptr<Timer> mixerStart_;  ///< once the deck is seen: what it has to say stands before the deck
};

}  // namespace orvanta
