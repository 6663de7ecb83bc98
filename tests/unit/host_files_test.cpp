// Files of the host: safe saves, names in any letter case, folders for this user alone.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/linux/host_files.h"
#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

struct HostFilesTest : testing::Test {
  TempFolder folder;
  HostFiles files;
  std::string at(const std::string& name) const { return folder / name; }
  mode_t mode(const std::string& name) const {
    struct stat info {};
    ::stat(at(name).c_str(), &info);
    return info.st_mode & 0777U;
  }
};

TEST_F(HostFilesTest, FindEveryElementInAnyCase) {
  fs::create_directories(at("Data/DATACD"));
  std::ofstream(at("Data/DATACD/Ab.CD")) << "old";
  EXPECT_EQ(files.read(at("data/datacd/aB.cd")), "old");
  EXPECT_TRUE(files.write(at("DATA/datacd/AB.cd"), "new"));
  EXPECT_TRUE(files.write(at("data/Datacd/two.CD"), "2"));
  EXPECT_TRUE(files.makeFolder(at("data/datacd")));
  EXPECT_EQ(files.list(at("data/datacd")), (std::vector<std::string>{"Ab.CD", "two.CD"}));
  EXPECT_EQ(files.list(folder.path()), std::vector<std::string>{"Data"});
  EXPECT_EQ(files.read(at("data/datacd/ab.cd")), "new");
  EXPECT_FALSE(files.exists(at("data/other/ab.cd")));
  EXPECT_TRUE(files.writeNamed(at("Data/DATACD/ab.cd"), "a person's own name"));
  EXPECT_EQ(files.read(at("Data/DATACD/Ab.CD")), "new") << "another file";
  EXPECT_TRUE(files.writeMarker(at("data/datacd/TWO.cd"), "0"));
  EXPECT_EQ(files.read(at("Data/DATACD/two.CD")), "0");
  EXPECT_FALSE(files.writeMarker(at("data/other/two.cd"), "0"));
  EXPECT_TRUE(files.remove(at("data/datacd/two.cd")));
  EXPECT_FALSE(files.exists(at("Data/DATACD/two.CD")));
}

TEST_F(HostFilesTest, AFolderIsForThisUserAlone) {
  EXPECT_TRUE(files.makeFolder(at("a/b")));
  EXPECT_EQ(mode("a"), 0700U);
  EXPECT_EQ(mode("a/b"), 0700U);
  std::ofstream(at("file")) << "";
  EXPECT_FALSE(files.makeFolder(at("file/c")));
  EXPECT_EQ(files.reason(), "Not a directory");
}

TEST_F(HostFilesTest, ASaveKeepsLinksAndRights) {
  ASSERT_TRUE(files.write(at("real"), "1"));
  EXPECT_EQ(mode("real"), 0644U & ~022U);
  ::chmod(at("real").c_str(), 0600);
  fs::create_symlink("real", at("link"));
  EXPECT_TRUE(files.write(at("link"), "2"));
  EXPECT_TRUE(fs::is_symlink(at("link")));
  EXPECT_EQ(files.read(at("real")), "2");
  EXPECT_EQ(mode("real"), 0600U);
}

/// A disk with no room, by the limit on a file's size; and a folder where none can be made.
TEST_F(HostFilesTest, ASaveThatFailsLeavesTheOldFileAndSaysWhy) {
  ASSERT_TRUE(files.write(at("kept"), "old"));
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{10, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_FALSE(files.write(at("kept"), std::string(100, 'x')));
  EXPECT_EQ(files.reason(), "File too large");
  EXPECT_FALSE(files.write(at("fresh"), std::string(100, 'x')));
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(files.read(at("kept")), "old");
  EXPECT_EQ(files.list(folder.path()), std::vector<std::string>{"kept"}) << "no piece is left behind";
  EXPECT_FALSE(files.write(at("nowhere/x"), "x"));
  EXPECT_EQ(files.reason(), "No such file or directory");
  fs::create_directory(at("folder"));
  EXPECT_FALSE(files.write(at("folder"), "x"));
  EXPECT_EQ(files.read(at("folder")), std::nullopt);
  EXPECT_TRUE(files.write(at("kept"), "new"));
  EXPECT_EQ(files.reason(), "");
}

}  // namespace
}  // namespace orvanta::test
