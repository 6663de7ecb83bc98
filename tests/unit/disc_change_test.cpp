// Discs that come and go, and the ways that a start can be told what to do.
#include <gtest/gtest.h>

#include "app/options.h"
#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

struct ChangeRig : CoreRig {
  ChangeRig() {
    // A new process takes the hand-over file away as one of its first acts.
    processes.onStart = [this] {
      if (newProcessLives) files.files.erase("/DATA/EJCD.TMP");
    };
  }
  bool newProcessLives = true;
  int started() const { return static_cast<int>(std::count(processes.tape.begin(), processes.tape.end(), "/programs/orvanlx")); }
};

TEST(DiscChange, AnotherDiscIsAnotherProcess) {
  ChangeRig rig;
  rig.startWith(discA());
  rig.key('D');
  rig.clock.advance(3000);
  rig.state.settings.timeMode = Rem;
  rig.key('J');
  rig.clock.advance(10000);
  EXPECT_EQ(rig.started(), 0) << "the tray is open";
  rig.player.insert(discB());
  rig.files.tape.clear();
  rig.clock.advance(1200);
  EXPECT_EQ(rig.started(), 1);
  EXPECT_TRUE(rig.gate.ended());
  EXPECT_EQ(rig.files.read("/data/settings.dat"), "1\r\n\r\n0\r\n0\r\n0\r\n") << "the new one starts with what this one had";
  EXPECT_EQ(rig.auxVolume.keeps, 1) << "and at this one's level";
  for (const std::string& act : rig.files.tape) EXPECT_NE(act, "remove /data/audiocd.tmp") << "that is the new one's marker by now";
  rig.clock.advance(10000);
  EXPECT_EQ(rig.started(), 1);
}

TEST(DiscChange, ANewProcessThatDiesCostsNothing) {
  for (const bool startsAtAll : {true, false}) {
    ChangeRig rig;
    rig.newProcessLives = false;
    rig.processes.fail = !startsAtAll;
    rig.startWith(discA());
    rig.key('J');
    rig.player.insert(discB());
    rig.clock.advance(20000);
    EXPECT_FALSE(rig.gate.ended());
    EXPECT_EQ(rig.started(), 1) << "not again and again";
    EXPECT_EQ(rig.form.Panel3D7.top, 600);
    EXPECT_EQ(rig.screen.pointer, Pointer::Normal);
    // Taken out and put in once more, it is tried once more.
    rig.player.insert({}, "");
    rig.clock.advance(1200);
    rig.processes.fail = false;
    rig.newProcessLives = true;
    rig.player.insert(discB());
    rig.clock.advance(1200);
    EXPECT_EQ(rig.started(), 2);
    EXPECT_TRUE(rig.gate.ended());
  }
}

TEST(DiscChange, ADriveThatIsReadyLateIsTakenUp) {
  ChangeRig rig;
  rig.install();
  rig.start();
  rig.clock.advance(500);
  EXPECT_EQ(rig.state.disc.noDiscState, 2);
  rig.player.insert(discA());
  rig.clock.advance(2500);
  EXPECT_EQ(rig.started(), 1);
  EXPECT_TRUE(rig.gate.ended());

  ChangeRig data;
  data.install();
  data.player.insert(tocOf({-150}, 30000), "README.TXT");
  data.start();
  data.clock.advance(10000);
  EXPECT_EQ(data.started(), 0) << "a disc of data stays idle";
  EXPECT_FALSE(data.gate.ended());

  ChangeRig none;
  none.install();
  none.start();
  none.clock.advance(5000);
  EXPECT_EQ(none.state.disc.drawerOpen, kOn);
  EXPECT_EQ(none.form.Label12.caption, "Please insert an Audio CD or Enh-CD into the drive...") << "also once the drawer was drawn open";
  none.player.insert(discB());
  none.clock.advance(1200);
  EXPECT_EQ(none.started(), 1);
}

TEST(DiscChange, ADiscPulledOutOpensTheDrawer) {
  ChangeRig rig;
  rig.startWith(discA());
  rig.key('D');
  rig.clock.advance(5000);
  rig.player.insert({}, "");
  rig.clock.advance(1200);
  EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
  EXPECT_EQ(rig.track() + rig.time(), "000:00");
  EXPECT_EQ(rig.form.Panel3D7.top, 600);
  EXPECT_EQ(rig.state.transport.playingFlag, kOff);
  EXPECT_EQ(rig.form.Label12.caption, "");
}

TEST(DiscChange, ATrayThatDoesNotOpenBringsTheDiscBack) {
  ChangeRig rig;
  rig.player.stuck = true;
  rig.startWith(discA());
  rig.key('J');
  EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
  rig.clock.advance(1200);
  EXPECT_EQ(rig.started(), 1) << "the disc is still there: a fresh start recovers";
}

TEST(Tray, AnImagePutOnTheDeckIsPlayedNext) {
  for (const char* keys : {"", "D", "DF", "DG", "DJ"}) {
    ChangeRig rig;
    rig.player.images["/b.cue"] = discB();
    rig.startWith(discA());
    for (const char key : std::string(keys)) {
      rig.key(key);
      rig.clock.advance(2000);
    }
    const std::string wanted = std::string(keys) == "D" ? "/programs/orvanlx --play" : "/programs/orvanlx";
    rig.gate.enter([&] { rig.form.fileDropped("/b.cue"); });
    rig.clock.advance(3000);
    EXPECT_EQ(rig.player.ejected, 1) << keys;
    EXPECT_EQ(rig.player.closed, 1) << keys;
    EXPECT_EQ(rig.processes.tape, Tape{wanted}) << keys;
    EXPECT_EQ(rig.player.disc, discB());
  }
  // The process that the deck has started for it.
  CoreRig next;
  next.install();
  next.player.insert(discB());
  next.gate.enter([&] {
    next.orvanta.startUp({"", "", "", readOptions({"--take-over", "--play"}, "/").host.play});
    next.orvanta.showFaceplate();
  });
  next.clock.advance(3100);
  EXPECT_EQ(next.device.mode(), DeviceMode::Playing);
  EXPECT_EQ(next.track() + " " + next.time(), "1 0:03");
}

TEST(Sound, ThatNobodyHearsIsTold) {
  CoreRig rig;
  rig.player.quiet = true;
  rig.startWith(discA());
  rig.state.disc.trackTitles[1] = "One";
  rig.key('D');
  rig.clock.advance(5000);
  EXPECT_EQ(rig.form.Label13.caption, "No sound output");
  EXPECT_EQ(rig.time(), "0:05") << "it plays all the same";
  rig.player.quiet = false;
  rig.clock.advance(1000);
  EXPECT_EQ(rig.form.Label13.caption, "One") << "in mid track";
  rig.player.quiet = true;
  rig.clock.advance(1000);
  EXPECT_EQ(rig.form.Label13.caption, "No sound output");
  rig.player.quiet = false;
  rig.key('G');
  rig.clock.advance(2000);
  EXPECT_EQ(rig.form.Label13.caption, "One") << "a stopped deck misses no sound";
}

TEST(Tray, ANoticeIsTold) {
  ChangeRig rig;
  rig.startWith(discA());
  rig.key('D');
  rig.clock.advance(2100);
  rig.player.answer = {TrayOffer::Answer::Notice, "The file was cut short."};
  rig.clock.advance(3000);
  EXPECT_EQ(rig.dialogs.tape, Tape{"Orvanta: The file was cut short."});
  EXPECT_EQ(rig.time(), "0:05") << "and it plays on";
}

TEST(Tray, ARefusedImageChangesNothingAndSaysSoOnce) {
  ChangeRig rig;
  rig.startWith(discA());
  rig.key('D');
  rig.clock.advance(2100);
  rig.gate.enter([&] { rig.form.fileDropped("/bad.cue"); });
  rig.clock.advance(3000);
  EXPECT_EQ(rig.dialogs.tape, Tape{"Orvanta: /bad.cue is no disc."});
  EXPECT_EQ(rig.player.ejected, 0);
  EXPECT_EQ(rig.time(), "0:05");
}

TEST(Tray, AClickOnTheOpenTrayAsksForAnImage) {
  ChangeRig rig;
  rig.player.images["/b.cue"] = discB();
  rig.startWith(discA());
  rig.press(rig.form.Panel3D2);
  EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
  rig.clock.advance(400);
  rig.press(rig.form.Panel3D7);
  EXPECT_EQ(rig.dialogs.tape, Tape{"open Put a Disc in"});
  rig.clock.advance(3000);
  EXPECT_EQ(rig.started(), 0) << "nothing was chosen";
  rig.dialogs.answers = {"/b.cue"};
  rig.press(rig.form.Panel3D7);
  rig.clock.advance(3000);
  EXPECT_EQ(rig.started(), 1);
}

TEST(Options, EjectAtEndAndQuitAfterDrawer) {
  CoreRig end;
  end.settings.appOptions[1] = 1;
  end.startWith(tocOf({150, 2400}, 4650));
  end.key('D');
  end.clock.advance(65000);
  EXPECT_EQ(end.player.ejected, 1);
  EXPECT_EQ(end.state.disc.drawerOpen, kOn);

  for (const bool small : {false, true}) {
    CoreRig quit;
    quit.settings.appOptions[2] = 1;
    quit.settings.smallFaceplate = small ? kOn : kOff;
    quit.startWith(discA());
    quit.device.tape.clear();
    quit.key('J');
    EXPECT_TRUE(quit.gate.ended());
    EXPECT_EQ(std::count(quit.device.tape.begin(), quit.device.tape.end(), "Eject"), 1) << small;
    EXPECT_FALSE(quit.files.exists("/data/audiocd.tmp"));
  }
}

TEST(CommandWords, TellTheStartWhatToDo) {
  struct Case {
    const char* words;
    const char* track;
    DeviceMode mode;
    bool minimised;
  };
  for (const auto& [words, track, mode, minimised] :
       {Case{"", "3", DeviceMode::Stopped, false}, Case{"AUDIOCD", "3", DeviceMode::Stopped, false},
        Case{"D:\\TRACK02.CDA", "2", DeviceMode::Playing, false}, Case{"/media/Track03.cda", "3", DeviceMode::Playing, false},
        Case{"D:\\TRACK09.CDA", "3", DeviceMode::Stopped, false}, Case{"orvlite", "1", DeviceMode::Playing, true},
        Case{"/no/such.exe", "3", DeviceMode::Stopped, false}}) {
    CoreRig rig;
    rig.install();
    rig.player.insert(discB());
    rig.start(words);
    rig.clock.advance(2300);
    EXPECT_EQ(rig.track(), track) << words;
    EXPECT_EQ(rig.device.mode(), mode) << words;
    EXPECT_EQ(rig.form.minimised.get(), minimised) << words;
    if (mode == DeviceMode::Playing) {
      EXPECT_EQ(unpackTmsf(rig.device.position()).track, std::stoi(track)) << words;
    }
  }
  CoreRig program;
  program.install();
  program.files.files["/OPT/TOOL.EXE"] = "";
  program.start("/opt/tool.exe");
  EXPECT_EQ(program.processes.tape, Tape{"/opt/tool.exe"});
  EXPECT_TRUE(program.gate.ended());
}

TEST(Setup, IsWaitedForAndTakenOver) {
  CoreRig rig;
  rig.startWith(discA());
  rig.processes.onStart = [&] {
    Settings changed = rig.settings;
    changed.lcdCustom = 1;
    changed.lcdFore = 0x112233;
    changed.lcdBack = 0xEEEEEE;
    writeSettings(SettingsFile::Orvwin4, rig.files, "/data", changed);
    rig.clock.advance(5000);  // it is open for a while: no second one
  };
  rig.state.process.setupWanted = kOn;
  rig.clock.advance(1200);
  EXPECT_EQ(rig.processes.tape, Tape{"/programs/orvsetup ACTIVELX"});
  EXPECT_EQ(rig.form.Label10.foreColor, 0x112233U);
  EXPECT_EQ(rig.form.Panel3D1.backColor, 0xEEEEEEU);
  EXPECT_FALSE(rig.form.minimised);
  EXPECT_EQ(rig.dialogs.tape, Tape{});

  // A data folder of the command line is the one that it works on; one that does not run is told.
  CoreRig given;
  given.install();
  given.gate.enter([&] {
    given.orvanta.startUp({"/data", "", ""});
    given.orvanta.showFaceplate();
  });
  given.processes.fail = true;
  given.state.process.setupWanted = kOn;
  given.clock.advance(1200);
  EXPECT_EQ(given.processes.tape, Tape{"/programs/orvsetup ACTIVELX --data /data"});
  EXPECT_EQ(given.dialogs.tape, Tape{"Orvanta: The setup program /programs/orvsetup could not be run."});
}

}  // namespace
}  // namespace orvanta::test
