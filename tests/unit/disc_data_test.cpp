// A disc's files: what is found stays on the disc, and nothing that is no plain file is touched.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/disc/disc_store.h"
#include "platform/disc/folder_data.h"
#include "platform/disc/image_data.h"
#include "platform/linux/host_processes.h"
#include "platform/ports/core_gate.h"
#include "tests/support/test_discs.h"
#include "tests/support/transcript.h"
#include "web/enhanced_disc.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

TEST(EnhancedDisc, TakesTheFirstOpenLineOfAutorun) {
  expectAnswers("answers/autorun.txt", [](const std::string& text) { return autorunFile(text); });
  EXPECT_EQ(autorunFile("[autorun]\nopen=" + std::string(1U << 20U, 'x')).size(), 1U << 20U) << "no line end";
}

TEST(FolderData, KeepsToTheDisc) {
  const TempFolder outside;
  writeFile(outside / "secret.exe", "x");
  const TempFolder root;
  fs::create_directories(root / "inner");
  writeFile(root / "Start.EXE", "start");
  writeFile(root / "inner/run.exe", "run");
  writeFile(root / "men\u00FC.exe", "men\u00FC");
  fs::create_symlink("/bin/sh", root / "evil.exe");
  fs::create_symlink(outside.path(), root / "out");
  fs::create_symlink("Start.EXE", root / "good.exe");
  ASSERT_EQ(::mkfifo((root / "autorun.inf").c_str(), 0600), 0);
  std::string top = root.path();
  FolderData data([&] { return top; });
  EXPECT_EQ(data.rootFiles(), (std::vector<std::string>{"Start.EXE", "good.exe", "men\u00FC.exe"}));
  for (const auto& [way, found] : {std::pair{"start.exe", "Start.EXE"},
                                   {"INNER/RUN.EXE", "inner/run.exe"},
                                   {"good.exe", "Start.EXE"},
                                   {"MENU\u0308.exe", "men\u00FC.exe"},
                                   {"menu.exe", ""},
                                   {"evil.exe", ""},
                                   {"out/secret.exe", ""},
                                   {"../../bin/sh", ""},
                                   {"/bin/sh", ""},
                                   {"autorun.inf", ""},
                                   {"inner", ""},
                                   {"gone.exe", ""},
                                   {"", ""}}) {
    EXPECT_EQ(data.find(way), found) << way;
    EXPECT_EQ(data.bring(way), *found == '\0' ? "" : fs::canonical(root / found).string()) << way;
  }
  EXPECT_EQ(data.read("Start.EXE", 3), "sta");
  EXPECT_EQ(data.read("autorun.inf", 9), "");
  EXPECT_EQ(data.wayOf(root / "inner/../Start.EXE"), "Start.EXE");
  EXPECT_EQ(data.wayOf(outside / "secret.exe"), "");
  top.clear();
  EXPECT_EQ(data.find("start.exe"), "") << "not mounted";
  EXPECT_TRUE(data.rootFiles().empty());
}

TEST(FolderData, IsWhereTheDesktopHasMountedTheDrive) {
  const std::string mounts = "proc /proc proc rw 0 0\n/dev/sr0 /media/My\\040Disc iso9660 ro 0 0\n/dev/sr1 /other iso9660 ro 0 0\n";
  EXPECT_EQ(mountPointIn(mounts, [](const std::string& source) { return source == "/dev/sr0"; }), "/media/My Disc");
  EXPECT_EQ(mountPointIn(mounts, [](const std::string& source) { return source == "proc"; }), "");
  EXPECT_EQ(mountPointOf("/nowhere"), "");
  const TempFolder folder;
  for (const auto& [bytes, read] : {std::pair{size_t{150000}, size_t{150000}}, {size_t{5} << 20, size_t{4} << 20}}) {
    writeFile(folder / "list", std::string(bytes, 'm'));
    EXPECT_EQ(mountList(folder / "list").size(), read) << "a machine of many mounts";
  }
  EXPECT_NE(mountList("/proc/self/mounts"), "");
}

TEST(ImageData, IsReadFromTheDataTrackAndCopiedOut) {
  const TempFolder folder;
  std::string sheet = makeEnhancedDisc(folder, {100}, "START.EXE", "#!/bin/sh\n");
  ImageData data([&] { return sheet; }, folder / "store", [] {});
  EXPECT_EQ(data.rootFiles(), std::vector<std::string>{"START.EXE"});
  EXPECT_EQ(data.find("start.exe"), "START.EXE");
  EXPECT_EQ(data.find("../START.EXE"), "");
  EXPECT_EQ(data.read("START.EXE", 5), "#!/bi");
  EXPECT_FALSE(fs::exists(folder / "store")) << "a look copies nothing";
  const std::string path = data.bring("START.EXE");
  ASSERT_EQ(path, fs::canonical(folder / ("store/" + std::to_string(::getpid()) + "/START.EXE")).string());
  std::ifstream file(path);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "#!/bin/sh\n");
  EXPECT_NE(fs::status(path).permissions() & fs::perms::owner_exec, fs::perms::none);
  EXPECT_EQ(data.wayOf(path), "START.EXE");
  sheet.clear();
  EXPECT_EQ(data.find("START.EXE"), "") << "the tray is open";
  EXPECT_EQ(data.folder(), "");
}

TEST(ImageData, LeavesNoPartOfACopyBehind) {
  const TempFolder folder;
  std::string sheet = makeEnhancedDisc(folder, {100}, "START.EXE", std::string(size_t{2} << 20, 'x'));
  const auto left = [&] { return fs::exists(folder / ("store/" + std::to_string(::getpid()))); };
  bool copying = false;
  ImageData ended([&] { return sheet; }, folder / "store",
                  [&] {
                    copying = left();
                    throw ProcessEnded{};
                  });
  EXPECT_THROW(ended.folder(), ProcessEnded);
  EXPECT_TRUE(copying && !left());
  ImageData open([&] { return sheet; }, folder / "store", [&] { sheet.clear(); });
  EXPECT_EQ(open.folder(), "");
  EXPECT_FALSE(left());
}

TEST(ImageData, LeavesOutWhatCannotBeRead) {
  const TempFolder folder;
  const std::string sheet = makeEnhancedDisc(folder, {100}, utf16(u"men\u00FC \U0001F3B5.exe", true), "x");
  ImageData data([&] { return sheet; }, folder / "store", [] {});
  const std::string name = "men\u00FC \U0001F3B5.exe";
  EXPECT_EQ(data.find("MENU\u0308 \U0001F3B5.EXE"), name);
  EXPECT_EQ(fs::path(data.bring(name)).filename(), name);
  EXPECT_EQ(data.bring("B"), "");
  EXPECT_EQ(data.takeUnread(), (std::vector<std::string>{"B", "C/"}));
  EXPECT_EQ(data.find("C/"), "") << "a folder is no program";
  EXPECT_FALSE(fs::exists(data.folder() + "/B"));
  EXPECT_TRUE(data.takeUnread().empty()) << "told once";
  ImageData cut([&] { return sheet; }, folder / "other", [] {});
  EXPECT_EQ(cut.find(name), name);
  fs::resize_file(folder / "disc.bin", 0);
  EXPECT_EQ(cut.folder(), "") << "nothing of it can be read";
  EXPECT_TRUE(fs::is_empty(folder / "other"));
  EXPECT_TRUE(cut.takeUnread().empty());
}

TEST(DiscStore, StaysWhileAProgramUsesIt) {
  const TempFolder folder;
  const std::string old = folder / "999999999";
  const std::string own = folder / std::to_string(::getpid());
  const std::string living = folder / std::to_string(::getppid());
  fs::create_directories(living);
  HostProcesses processes;
  for (const char* how : {"exe", "cwd", "fd"}) {
    fs::create_directories(old);
    fs::copy("/bin/sleep", old + "/sleep");
    std::ifstream open(std::string(how) == "fd" ? old + "/sleep" : "");
    const pid_t program =
        processes.start({{std::string(how) == "exe" ? old + "/sleep" : "sleep", "60"}, std::string(how) == "cwd" ? old : ""});
    DiscStore store(folder.path());
    EXPECT_TRUE(store.renew());
    EXPECT_EQ(store.folder(), own);
    EXPECT_TRUE(fs::exists(old)) << how;
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    open.close();
    EXPECT_TRUE(store.renew());
    EXPECT_FALSE(fs::exists(old)) << how;
    EXPECT_TRUE(fs::exists(living)) << "a deck that runs may need it";
  }
  const std::ifstream open(own);
  DiscStore store(folder.path());
  EXPECT_TRUE(store.renew());
  EXPECT_EQ(store.folder(), own + "-2") << "a program of the disc before still runs";
}

}  // namespace
}  // namespace orvanta::test
