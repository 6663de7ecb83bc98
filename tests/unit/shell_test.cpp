// Help on hosts of all kinds.
#include <gtest/gtest.h>

#include <filesystem>

#include "shell/help.h"
#include "tests/support/fakes.h"
#include "tests/support/places.h"
#include "tests/support/script_words.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

TEST(Help, OpensWhatATopicHasOrSaysWhyNot) {
  expectAnswers("answers/help.txt", [](const std::string& line) {
    FakeDialogs dialogs;
    FakeFiles files;
    FakeProcesses processes;
    FakeScreen screen;
    FakeSystem system;
    FakeTray tray;
    FakeDesktop desktop;
    FakeFacts facts;
    SharedState state;
    state.settings.appDir = "/data";
    const auto words = wordsOf(line);
    for (const Word& word : words) {
      if (word.verb == "text") files.files[upper(word.value)] = "x";
      if (word.verb == "runs") processes.names = {"orvhelp"};
      if (word.verb == "viewer") system.viewer = word.value;
      if (word.verb == "bare") processes.bare = true;
      if (word.verb == "refuses") processes.fail = true;
      for (const std::string& program : word.verb == "missing" ? word.list() : Tape{}) processes.missing.insert(program);
    }
    Help help({dialogs, files, processes, screen, system, tray, facts, desktop}, state);
    help.show(std::stoi(words[0].verb));
    return "started: " + runs(processes.tape, ", ") + "\nbox: " + runs(dialogs.tape, ", ");
  });
}

TEST(Help, HasATextForEachTopicThatNamesOne) {
  for (const char* name : {"ORVANLX", "orvhelp/PLAYWAVE", "orvhelp/RECOPTS", "orvhelp/CDPUSE", "orvhelp/CDLIBF", "orvhelp/CDJKOPTS",
                           "orvhelp/CDJKIMGS", "orvhelp/CDBGRND", "orvhelp/COMPWINA"}) {
    EXPECT_GT(std::filesystem::file_size(sourceFolder() + "/assets/help/" + name + ".TXT"), 300U) << name;
  }
}

}  // namespace
}  // namespace orvanta::test
