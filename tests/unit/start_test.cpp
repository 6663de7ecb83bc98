// Start and end of the whole core over fakes.
#include <gtest/gtest.h>

#include "app/command_line.h"
#include "app/options.h"
#include "tests/support/core_rig.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

using Kind = CommandLine::Kind;

TEST(CommandLineWords, AreSortedByTheirEnding) {
  expectAnswers("answers/command_line.txt", [](const std::string& line) {
    const CommandLine found = classify(line);
    const std::map<Kind, const char*> kinds = {
        {Kind::Plain, "plain"}, {Kind::Word, "word"}, {Kind::TrackFile, "track"}, {Kind::Program, "program"}};
    return std::string(kinds.at(found.kind)) + " " + found.word + " " + std::to_string(found.trackNumber);
  });
}

TEST(Options, StandBeforeTheWords) {
  const Options options = readOptions({"--data", "here", "--audio=file:x.wav", "--scale", "1.5", "--disc", "/a/b.cue", "--search-engine",
                                       "Ultimate Band List", "TRACK05.CDA", "--data"},
                                      "/cur");
  EXPECT_EQ(options.error, "");
  EXPECT_EQ(options.host.dataDir, "/cur/here");
  EXPECT_EQ(options.audio, "file:/cur/x.wav");
  EXPECT_EQ(options.host.words, "TRACK05.CDA --data");
  EXPECT_EQ(options.disc, "/a/b.cue");
  EXPECT_EQ(options.host.engine, "Ultimate Band List");
  EXPECT_EQ(options.handedOn(), (Tape{"--take-over", "--data", "/cur/here", "--audio", "file:/cur/x.wav", "--scale", "1.500000"}));
  const auto words = [](const char* word) { return readOptions({word}, "/cur").host.words; };
  EXPECT_EQ(words("bin/tool.exe") + " " + words("tool.exe") + " " + words("/opt/tool.exe") + " " + words("sub/track02.cda"),
            "/cur/bin/tool.exe /cur/tool.exe /opt/tool.exe sub/track02.cda")
      << "a program's folder is where this start was made";
  for (const char* bad : {"--what", "--scale=0", "--audio=loud", "--data"}) EXPECT_NE(readOptions({bad}, "/").error, "") << bad;
}

TEST(Start, NumbersOfTheDisc) {
  CoreRig a;
  a.startWith(discA());
  const DiscState& disc = a.state.disc;
  EXPECT_EQ(disc.discSum, 19443766);
  EXPECT_EQ(disc.discKey, "19443766");
  EXPECT_EQ(disc.cdFilePath, "/data/datacd/19443766.CD");
  EXPECT_EQ(disc.trackLengths[1] + " " + disc.trackLengths[2] + " " + disc.trackLengths[3], "4:06 4:58 4:25");
  EXPECT_EQ(std::vector<int32_t>(disc.trackFrames.begin(), disc.trackFrames.begin() + 4), (std::vector<int32_t>{150, 27, 25, 22}));
  EXPECT_EQ(disc.discMinutes, 13);
  CoreRig b;
  b.startWith(discB());
  EXPECT_EQ(b.state.disc.discKey, "19459115");
  EXPECT_EQ(b.time(), "10:59");
  CoreRig round;
  round.startWith(tocOf({150, 13650, 31650}, 49576));
  EXPECT_EQ(round.state.disc.discSum, 60459);
  EXPECT_EQ(round.state.disc.discKey, "00060459") << "lengths without frames make a short sum";
  CoreRig single;
  single.startWith(tocOf({150}, 150 + 50 * 75));
  EXPECT_EQ(single.time(), "00:49") << "a short disc has a length all the same";
  EXPECT_EQ(single.state.disc.discKey.size(), 8U);
  CoreRig full;
  std::vector<int> starts;
  for (int i = 0; i < 99; ++i) starts.push_back(150 + i * 3600);
  full.startWith(tocOf(starts, 150 + 99 * 3600));
  EXPECT_EQ(full.track(), "99");
  EXPECT_EQ(full.state.disc.lampCount, 20);
  EXPECT_EQ(full.time(), "1:19:11");
  EXPECT_EQ(full.form.Label22[20].foreColor, full.state.settings.lcdColor[kLcdLit]);
}

TEST(Start, TheFirstOneSetsItselfUp) {
  CoreRig rig;
  rig.files.files["/PROGRAMS/LXINIT"] = "";
  rig.processes.onStart = [&] { rig.install(); };
  rig.player.insert(discA());
  rig.start();
  rig.clock.advance(100);
  EXPECT_EQ(rig.processes.tape, Tape{"/programs/lxinit /usual"});
  EXPECT_EQ(rig.dialogs.tape, Tape{});
  EXPECT_EQ(rig.track(), "3") << "the deck goes on with what was set up";
}

/// ORVWIN.INI is missing, or there and useless, and the helpers do this or that.
TEST(Start, WithoutFoldersAsksOrSetsUp) {
  const std::string box = "Orvanta LX Setup Wizard: ";
  const std::string good = box + "Orvanta LX setup file successfully initialized; please restart Orvanta LX.";
  const auto bad = [&](const char* folder) { return box + "The folder " + folder + " could not be set up for Orvanta LX."; };
  const std::string ask = "Orvanta LX? Location of Orvanta LX Data File(s) Not Found, Please Enter Full Path:";
  using Answers = std::deque<std::optional<std::string>>;
  struct Case {
    const char* what;
    bool useless, helpers;
    int exitCode;
    Answers answers;
    Tape started, boxes;
  };
  for (const auto& [what, useless, helpers, exitCode, answers, started, boxes] : {
           Case{"told to start again", true, true, 0, {}, {"/programs/lxinit /usual"}, {good}},
           Case{"a helper that fails is no success", true, true, 1, {}, {"/programs/lxinit /usual"}, {bad("/usual"), ask}},
           Case{"nor at a first start",
                false,
                true,
                1,
                {"/x"},
                {"/programs/lxinit /usual", "/programs/lxinit /usual", "/programs/orvinit /x"},
                {bad("/usual"), ask, bad("/x"), ask}},
           Case{"cancelled", false, false, 0, {}, {}, {ask}},
           Case{"no path", false, false, 0, {"C"}, {}, {ask}},
           Case{"asked twice", false, false, 0, {"/x", "/y"}, {}, {ask, ask}},
       }) {
    CoreRig rig;
    if (useless) rig.files.files["/SYSTEM/ORVWIN.INI"] = "\"\"\r\n";
    if (helpers) rig.files.files["/PROGRAMS/LXINIT"] = rig.files.files["/PROGRAMS/ORVINIT"] = "";
    rig.processes.exitCode = exitCode;
    rig.dialogs.answers = answers;
    rig.start();
    EXPECT_EQ(rig.processes.tape, started) << what;
    EXPECT_EQ(rig.dialogs.tape, boxes) << what;
    EXPECT_TRUE(rig.gate.ended()) << what;
  }
}

TEST(Start, WithAShortFileOfFoldersGoesOn) {
  CoreRig rig;
  rig.install();
  rig.files.files["/SYSTEM/ORVWIN.INI"] = "\"/data\"\r\n\"/drive\"\r\n";
  rig.start();
  EXPECT_FALSE(rig.gate.ended());
  EXPECT_EQ(rig.state.settings.appDir + rig.state.settings.cdProbePath, "/data/drive");
  EXPECT_EQ(rig.processes.tape, Tape{});
}

TEST(Start, WithoutItsDataFolderRunsTheSetup) {
  for (const bool starts : {true, false}) {
    CoreRig rig;
    rig.settings.appDir = "/data";
    writeSettings(SettingsFile::Orvwin, rig.files, "/system", rig.settings);
    rig.processes.fail = !starts;
    rig.start();
    EXPECT_EQ(rig.processes.tape, Tape{"/programs/orvsetup INITSETUPLX"});
    EXPECT_EQ(rig.dialogs.tape.size(), starts ? 0U : 1U) << "never without a word";
    EXPECT_TRUE(rig.gate.ended());
  }
}

/// Whichever write of a deck's life fails: the start, a drag, an eject and the exit go on, and nothing old is lost.
TEST(Start, AnyWriteMayFail) {
  int writes = 0;
  for (int broken = 0; broken <= writes; ++broken) {
    CoreRig rig;
    rig.install();
    const auto installed = rig.files.files;
    rig.player.insert(discA());
    if (broken > 0) rig.files.failAt = rig.files.writes() + broken;
    const int before = rig.files.writes();
    rig.start();
    rig.clock.advance(100);
    rig.key('R');
    rig.clock.advance(1000);
    rig.gate.enter([&] { rig.form.dragged(3000, 2000); });
    rig.key('T');
    rig.key('J');
    rig.clock.advance(3000);
    rig.key(forms::key::kEscape);
    EXPECT_TRUE(rig.gate.ended()) << broken;
    EXPECT_EQ(rig.dialogs.tape, Tape{}) << broken;
    for (const auto& [path, bytes] : installed) {
      if (path == "/DATA/SETTINGS.DAT") continue;
      EXPECT_EQ(rig.files.files[path], bytes) << path << " after write " << broken;
    }
    EXPECT_EQ(rig.files.files["/DATA/SETTINGS.DAT"].size(), installed.at("/DATA/SETTINGS.DAT").size()) << broken;
    if (broken == 0) writes = rig.files.writes() - before;
  }
  EXPECT_GE(writes, 5);
}

}  // namespace
}  // namespace orvanta::test
