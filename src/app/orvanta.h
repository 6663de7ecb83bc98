// The whole core, put together.
#pragma once

#include "app/exit.h"
#include "app/start_up.h"
#include "faceplate/drawer.h"
#include "faceplate/faceplate.h"
#include "platform/ports/ports.h"
#include "playback/upward.h"

namespace orvanta {

class Orvanta : private PlaybackUpward {
 public:
  explicit Orvanta(Ports& ports);

  /// The start-up form's work, then the faceplate. Throws ProcessEnded: call it through the gate.
  void start(const HostOptions& options);

  CDForm form;
  SharedState state;

 private:
  void openDrawer() override { drawer_.opendrawer(); }
  void exitProgram() override { exit_.exitProgram(); }
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
  PlaybackClock clock_;
  Buttons buttons_;
  DisplayColours colours_{form, state};
  Drawer drawer_;
  Exit exit_;
  Faceplate faceplate_;
};

}  // namespace orvanta
