// A second start and the deck that runs: the line between them, the socket, and what the deck makes of it.
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <thread>

#include "platform/linux/host_system.h"
#include "platform/linux/local_socket.h"
#include "state/second_start.h"
#include "tests/support/core_rig.h"
#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

TEST(SecondStart, IsOneLineOfAnyTexts) {
  for (const SecondStart& start : {SecondStart{"", "", ""}, SecondStart{"/a b/\u0434.cue", "/dev/sr1", "TRACK02.CDA"},
                                   SecondStart{"/tab\there\nline\\", "", "a\tb"}}) {
    const std::string line = lineOf(start);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    const auto back = secondStartOf(line);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->disc + "|" + back->drive + "|" + back->words, start.disc + "|" + start.drive + "|" + start.words);
  }
  for (const char* bad : {"", "start", "start\t\t", "start\t\t\t\t", "raise\t\t\t", "settings"}) EXPECT_FALSE(secondStartOf(bad)) << bad;
}

struct SocketTest : testing::Test {
  TempFolder folder;
  std::string path = folder / "socket";
  /// A peer that has sent these bytes.
  UniqueFd peer(const std::string& bytes) const {
    UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    EXPECT_EQ(::connect(fd.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(::send(fd.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
    return fd;
  }
  static bool closedByServer(const UniqueFd& fd) {
    char c = 0;
    return ::recv(fd.get(), &c, 1, MSG_DONTWAIT) == 0 || errno == ECONNRESET;
  }
};

TEST_F(SocketTest, NobodyHoldsItUp) {
  SocketServer server(path);
  const UniqueFd silent = peer("");
  const UniqueFd half = peer("half a li");
  const UniqueFd whole = peer("whole line\nand more");
  auto request = server.next();
  ASSERT_TRUE(request);
  EXPECT_EQ(request->line, "whole line");
  EXPECT_FALSE(server.next());
  ASSERT_EQ(::send(half.get(), "ne\n", 3, 0), 3);
  request = server.next();
  ASSERT_TRUE(request);
  EXPECT_EQ(request->line, "half a line");
  SocketServer::reply(*request, "ok");
  char answer[4] = {};
  EXPECT_EQ(::recv(half.get(), answer, 3, MSG_DONTWAIT), 3);
  EXPECT_STREQ(answer, "ok\n");
  // A word of 65 letters, a line without an end: both are let go of.
  const UniqueFd wordy = peer(std::string(65, 'w'));
  const UniqueFd endless = peer("x " + std::string(9000, 'e'));
  EXPECT_FALSE(server.next());
  EXPECT_TRUE(closedByServer(wordy) && closedByServer(endless));
  EXPECT_FALSE(closedByServer(silent));
  // Of too many that say nothing the first goes.
  std::vector<UniqueFd> crowd;
  for (int i = 0; i < 16; ++i) {
    crowd.push_back(peer(""));
    EXPECT_FALSE(server.next());
  }
  EXPECT_TRUE(closedByServer(silent));
  EXPECT_FALSE(closedByServer(crowd.back()));
}

TEST_F(SocketTest, OneListensForAFolder) {
  {
    SocketServer first(path, folder.path());
    SocketServer second(path, folder.path());
    EXPECT_TRUE(first.listen());
    EXPECT_FALSE(second.listen());
    EXPECT_EQ(second.fd(), -1);
    std::thread answers([&] {
      // The connection may come before its line.
      pollfd wait{first.fd(), POLLIN, 0};
      std::optional<SocketServer::Request> request;
      while (!request && ::poll(&wait, 1, 5000) > 0) request = first.next();
      if (request) SocketServer::reply(*request, "got " + request->line);
    });
    const Asked asked = askWhoListens(path, "hello", 5000);
    answers.join();
    EXPECT_TRUE(asked.delivered);
    EXPECT_EQ(asked.reply, "got hello");
    const Asked busy = askWhoListens(path, "later", 20);
    EXPECT_TRUE(busy.delivered) << "it is there, and will read it";
    EXPECT_FALSE(busy.reply);
    const auto request = first.next();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->line, "later");
  }
  {
    auto first = std::make_unique<SocketServer>(path, folder.path());
    SocketServer next(path, folder.path());
    next.waitInLine();
    EXPECT_FALSE(next.listen());
    first.reset();
    for (int tries = 0; tries < 500 && !next.listen(); ++tries) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(next.listen());
    EXPECT_FALSE(SocketServer(path, folder.path()).listen()) << "whoever comes later";
  }
  EXPECT_FALSE(std::filesystem::exists(path)) << "nothing is left behind";
  EXPECT_FALSE(askWhoListens(path, "hello", 20).delivered);
  // One folder by two spellings.
  std::filesystem::create_symlink(folder.path(), folder / "link");
  EXPECT_EQ(identityOf(folder / "link" + "/"), identityOf(folder.path()));
  EXPECT_EQ(identityOf("/nowhere"), "/nowhere");
}

TEST(SecondStart, ADriveIsHandedOnInPlaceOfTheLast) {
  HostSystem system({"--take-over", "--drive", "/a", "--scale", "2"});
  system.changeDrive("/b", "/x.cue");
  EXPECT_EQ(system.handedOn(), (Tape{"--take-over", "--scale", "2", "--drive", "/b", "--disc", "/x.cue"}));
  system.changeDrive("/c", "");
  EXPECT_EQ(system.handedOn(), (Tape{"--take-over", "--scale", "2", "--drive", "/c"}));
}

}  // namespace
}  // namespace orvanta::test
