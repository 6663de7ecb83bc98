// The whole core, put together.
#pragma once

#include "app/exit.h"
#include "app/record.h"
#include "app/restart.h"
#include "app/start_up.h"
#include "faceplate/drawer.h"
#include "faceplate/faceplate.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/mixer_driver.h"
#include "faceplate/volume.h"
#include "library/cd_records.h"
#include "platform/ports/ports.h"
#include "playback/upward.h"

namespace orvanta {

class Orvanta : private PlaybackUpward {
 public:
  explicit Orvanta(Ports& ports);

  // Both throw ProcessEnded: call them through the gate.
  /// The start-up form's work. From here on a process that hands over to this one lets go.
  void startUp(const HostOptions& options);
  void showFaceplate();

  CDForm form;
  SharedState state;

 private:
  void openDrawer() override { drawer_.opendrawer(); }
  void exitProgram() override { exit_.exitProgram(); }
  void closeDrawer() override { drawer_.closedrawer(); }
  void showNoDisc() override { colours_.disabledLook(); }
  void restartForDisc() override { restart_.forDisc(); }
  void runSetup() override;
  void record() override { record_.run(); }
  void runMixer() override { sounds_.runMixer(); }
  void muteKey() override;
  void volumeKey(bool up) override;
  bool readCdRecord(const std::string& cdFilePath) override;
  int16_t readTimeCorrection() override { return records_.readTimeCorrection(); }
  std::optional<std::vector<int>> readProgram() override { return records_.readProgram(); }

  // Windows and programs that are still to come aboard; their keys do nothing yet.
  void showHelp(int /*topic*/) override {}
  void showMenu() override {}
  void showCdData() override {}
  void showPlaylist() override {}
  void showTrackList() override {}
  void launchEnhancedDisc() override {}
  void closeDiscWindows() override {}
  void automaticLookup() override {}

  Ports& ports_;
  StartUp startUp_{ports_, state};
  TimeDisplay display_{form, state};
  DeviceLayer layer_;
  DiscLoad discLoad_;
  Engine engine_;
  Modes modes_;
  Buttons buttons_;
  PlaybackClock clock_;
  Position position_;
  Layout layout_;
  InterfaceSounds sounds_;
  MixerDriver mixer_;
  Volume volume_;
  DisplayColours colours_;
  CdRecords records_;
  Drawer drawer_;
  Exit exit_;
  Restart restart_;
  RecorderLaunch record_;
  Faceplate faceplate_;
};

}  // namespace orvanta
