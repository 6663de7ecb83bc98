// The whole core, put together.
#pragma once

#include "app/exit.h"
#include "app/restart.h"
#include "app/start_up.h"
#include "faceplate/drawer.h"
#include "faceplate/faceplate.h"
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
  void runMixer() override {}
  void record() override {}
  void closeDiscWindows() override {}
  void automaticLookup() override {}
  /// The library is not aboard yet: a disc has no texts.
  bool readCdRecord(const std::string& /*cdFilePath*/) override { return false; }

  Ports& ports_;
  StartUp startUp_{ports_, state};
  TimeDisplay display_{form, state};
  DeviceLayer layer_;
  DiscLoad discLoad_;
  Engine engine_;
  Buttons buttons_;
  PlaybackClock clock_;
  DisplayColours colours_{form, state};
  Drawer drawer_;
  Exit exit_;
  Restart restart_;
  Faceplate faceplate_;
};

}  // namespace orvanta
