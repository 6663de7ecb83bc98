// The whole core over fakes, on the virtual clock.
#pragma once

#include "app/orvanta.h"
#include "platform/disc/drive_tray.h"
#include "state/settings_files.h"
#include "tests/support/fake_net.h"
#include "tests/support/fakes.h"
#include "tests/support/sim_device.h"

namespace orvanta::test {

/// Two discs whose numbers were worked out by hand.
inline Toc discA() { return tocOf({150, 18627, 41002}, 60900); }  // 4:06.27, 4:58.25, 4:25.22
inline Toc discB() { return tocOf({150, 13650, 31650}, 49650); }  // 3:00, 4:00, 3:59

struct CoreRig {
  CoreGate gate;
  VirtualClock clock{gate};
  SimPlayer player{clock};
  SimDevice device{player, clock};
  FakeDialogs dialogs;
  FakeFiles files;
  FakeProcesses processes;
  FakeScreen screen;
  FakeSystem system;
  FakeDesktop desktop;
  FakeAuxVolume auxVolume;
  FakeMixer mixer;
  FakeSounds sounds;
  FakePrinter printer;
  FakeNet net{clock};
  FakeMenus menus;
  FakeTray systemTray;
  FakeFacts facts;
  FakeDiscData discData;
  DriveTray tray{player, "/drive"};
  Ports ports{device,    tray,  discData, clock,   dialogs, files, processes,  screen, system,
              auxVolume, mixer, sounds,   printer, net,     menus, systemTray, facts,  desktop};
  Orvanta orvanta{ports};
  CDForm& form = orvanta.form;
  SharedState& state = orvanta.state;
  Settings settings = defaultSettings("/data", "/drive");
  std::string words;                  ///< of the command line
  std::string engine;                 ///< chosen in the menu of the deck before
  std::string entry = "Track01.cda";  ///< first name on the disc
  int playsFrom = 0;                  ///< another process has left the disc playing from this frame; 0: none

  /// What the setup program leaves behind.
  void chooseInSetup(const std::string& searchEngine, const std::string& lyricsSite) {
    settings.searchEngine = searchEngine;
    settings.lyricsSite = lyricsSite;
    writeSettings(SettingsFile::Orvwin3, files, "/data", settings);
    writeSettings(SettingsFile::Orvwin4, files, "/data", settings);
  }

  /// Settings files on the disk, as a set-up leaves them.
  void install() {
    writeMissingSettings(files, settings);
    writeSettings(SettingsFile::Orvwin, files, "/system", settings);
    files.tape.clear();
  }

  void start(const std::string& commandWords = "") {
    gate.enter([&] {
      orvanta.startUp({"", "", commandWords, engine});
      orvanta.showFaceplate();
    });
  }

  /// Installed, with a disc, started, the first tick done.
  void startWith(const Toc& toc) {
    install();
    if (toc.count() > 0) player.insert(toc, entry);
    if (playsFrom > 0) player.play(playsFrom, toc.leadOut);
    start(words);
    clock.advance(100);
  }

  void press(forms::Control& control) {
    gate.enter([&] { form.press(control); });
  }
  void key(int code) {
    gate.enter([&] {
      form.keyDown({code});
      form.keyUp({code});
    });
  }
  const std::string& time() const { return form.Label10.caption; }
  const std::string& track() const { return form.Label8.caption; }
};

}  // namespace orvanta::test
