// What is known of other programs, and what becomes of those that are started.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "launch/known_applications.h"
#include "platform/linux/host_processes.h"
#include "tests/support/fakes.h"
#include "tests/support/script_words.h"
#include "tests/support/test_discs.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

TEST(KnownApplications, AreNotStartedTwice) {
  expectAnswers("answers/running.txt", [](const std::string& line) {
    const Tape words = Word{"", line}.list();
    FakeDialogs dialogs;
    FakeProcesses processes;
    processes.names = {words.at(1)};
    KnownApplications known(dialogs, processes);
    const bool runs = known.checkAlreadyRunning(words.at(0));
    EXPECT_EQ(dialogs.tape.size(), runs ? 1U : 0U);
    return runs ? dialogs.tape.front() : "";
  });
  FakeDialogs dialogs;
  FakeProcesses processes;
  processes.names = {"mine"};
  KnownApplications known(dialogs, processes);
  EXPECT_TRUE(known.runsAlready({"/opt/mine"})) << "the user's own mixer";
  EXPECT_FALSE(known.runsAlready({"mine", "mixer"})) << "may be a shell that runs others";
  EXPECT_EQ(dialogs.tape.size(), 1U);
}

TEST(HostProcesses, AreWatchedAndLeaveNoZombie) {
  HostProcesses processes;
  EXPECT_EQ(processes.runAndWait({{"/bin/sh", "-c", "exit 3"}, "", WindowStyle::Normal}), 3);
  EXPECT_EQ(processes.runAndWait({{"sh", "-c", "kill -9 $$"}, "", WindowStyle::Normal}), Processes::kBrokeOff);
  EXPECT_EQ(processes.runAndWait({{"/nowhere/program"}, "", WindowStyle::Normal}), std::nullopt);
  EXPECT_EQ(processes.runAndWait({{"sh", "-c", "exit 0"}, "/a folder that has gone", WindowStyle::Normal}), 0);
  const TempFolder folder;
  std::filesystem::copy("/bin/true", folder / "here_and_gone");
  const auto id = processes.start({{folder / "here_and_gone"}, "", WindowStyle::Normal});
  siginfo_t info{};
  ::waitid(P_PID, static_cast<id_t>(id), &info, WEXITED | WNOWAIT);
  EXPECT_FALSE(processes.nameRuns("here_and_gone")) << "a zombie does not run";
  EXPECT_FALSE(processes.running(id));
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "all were taken note of";
}

TEST(HostProcesses, GetTheEnvironmentOfTheStartAndNoFile) {
  ::setenv("ORVANTA_BEFORE", "1", 1);
  HostProcesses processes;
  ::setenv("ORVANTA_AFTER", "1", 1);
  EXPECT_EQ(processes.runAndWait({{"sh", "-c", "test \"$ORVANTA_BEFORE$ORVANTA_AFTER\" = 1"}, "", WindowStyle::Normal}), 0);
  const int mine = ::dup(STDOUT_FILENO);
  EXPECT_EQ(processes.runAndWait({{"sh", "-c", "test ! -e /proc/$$/fd/" + std::to_string(mine)}, "", WindowStyle::Normal}), 0)
      << "files of the deck are not the child's";
  ::close(mine);
  ::unsetenv("ORVANTA_BEFORE");
  ::unsetenv("ORVANTA_AFTER");
}

TEST(HostProcesses, KnowWhatRunsAndWhatCanBeStarted) {
  HostProcesses processes;
  EXPECT_TRUE(processes.nameRuns("unit_tests"));
  EXPECT_TRUE(processes.nameRuns("UNIT_Tests")) << "in any letter case";
  EXPECT_FALSE(processes.nameRuns("no such program"));
  EXPECT_FALSE(processes.nameRuns(""));
  for (const auto& [program, can] :
       {std::pair{"sh", true}, {"/bin/sh", true}, {"/etc/passwd", false}, {"/tmp", false}, {"no-such-program", false}}) {
    EXPECT_EQ(processes.canStart(program), can) << program;
  }
}

}  // namespace
}  // namespace orvanta::test
