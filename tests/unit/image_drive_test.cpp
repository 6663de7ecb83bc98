// Disc images, good and bad: sheets, layouts, files that are not what they should be.
#include "platform/linux/image_drive.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

std::string errorOf(const std::string& sheet) {
  std::string error;
  EXPECT_EQ(DiscImage::open(sheet, error), nullptr) << sheet;
  return error;
}

/// Every frame of the disc, in reads of odd sizes, is the one that it should be.
void expectCounterDisc(const std::string& sheet, int first, int count) {
  std::string error;
  const auto disc = DiscImage::open(sheet, error);
  ASSERT_NE(disc, nullptr) << error;
  std::vector<int16_t> samples(size_t{31} * kShortsPerFrame);
  for (int frame = first, size = 1; frame < first + count; frame += size, size = size % 31 + 1) {
    const int piece = std::min(size, first + count - frame);
    ASSERT_TRUE(disc->read(frame, piece, samples.data()));
    for (int i = 0; i < piece; ++i) ASSERT_TRUE(isFrame(frame + i, &samples[static_cast<size_t>(i) * kShortsPerFrame])) << frame + i;
  }
  EXPECT_FALSE(disc->read(disc->toc().leadOut, 1, samples.data()));
  EXPECT_FALSE(disc->read(kFirstFrame - 1, 1, samples.data()));
}

TEST(DiscImage, ReadsEveryFrameOfEveryKind) {
  for (const int tracks : {1, 24, 99}) {
    const TempFolder folder;
    expectCounterDisc(makeDisc(folder, std::vector<int>(static_cast<size_t>(tracks), 33)), 150, tracks * 33);
  }
  for (const bool flac : {false, true}) {
    const TempFolder folder;
    expectCounterDisc(makeSoundDisc(folder, {100, 51, 7}, flac), 150, 158);
  }
  const TempFolder hidden;
  expectCounterDisc(makeDisc(hidden, {80, 80}, 75), 150, 235);
  std::string error;
  EXPECT_EQ(DiscImage::open(hidden / "disc.cue", error)->toc().startOf(1), 225);
}

TEST(DiscImage, LaysSeveralFilesGapsAndSwappedBytesEndToEnd) {
  const TempFolder folder;
  std::string swapped = frameBytes(250, 50);
  for (size_t i = 0; i + 1 < swapped.size(); i += 2) std::swap(swapped[i], swapped[i + 1]);
  writeFile(folder / "One Part.BIN", frameBytes(150, 100));
  writeFile(folder / "two.raw", swapped + "odd");
  // Any letter case, CR LF, a byte order mark, Windows-1252 text, names without quotes, PREGAP.
  writeFile(folder / "disc.cue",
            "\xEF\xBB\xBFrem made by hand\r\ntitle \"Caf\xE9\"\r\nfile one part.bin binary\r\n track 01 audio\r\n  flags dcp\r\n  index 01 "
            "00:00:00\r\n"
            " track 02 audio\r\n  index 00 00:00:60\r\n  index 01 00:01:00\r\nFILE \"TWO.RAW\" MOTOROLA\r\n TRACK 03 AUDIO\r\n"
            "  INDEX 01 00:00:00\r\n TRACK 04 AUDIO\r\n  PREGAP 00:00:30\r\n  INDEX 01 00:00:40\r\n  POSTGAP 00:00:05\r\n");
  std::string error;
  const auto disc = DiscImage::open(folder / "disc.cue", error);
  ASSERT_NE(disc, nullptr) << error;
  EXPECT_EQ(disc->toc(), (Toc{{{1, 150, false}, {2, 225, false}, {3, 250, false}, {4, 320, false}}, 335}));
  std::vector<int16_t> samples(size_t{185} * kShortsPerFrame);
  ASSERT_TRUE(disc->read(150, 185, samples.data()));
  const auto at = [&](int frame) { return &samples[static_cast<size_t>(frame - 150) * kShortsPerFrame]; };
  EXPECT_TRUE(isFrame(249, at(249)));
  EXPECT_TRUE(isFrame(289, at(289)));
  EXPECT_EQ(*at(290), 0);
  EXPECT_TRUE(isFrame(290, at(320))) << "behind 30 frames of silence";
  EXPECT_EQ(*at(334), 0);
  EXPECT_EQ(parseCue("TITLE \"Caf\xE9\"").title, "Caf\xC3\xA9");
}

TEST(DiscImage, TellsTheTextsOfItsSheet) {
  const TempFolder folder;
  const std::string sheet = makeDisc(folder, {80, 80});
  std::string error;
  EXPECT_TRUE(DiscImage::open(sheet, error)->texts().empty());
  const std::string tracks =
      "FILE disc.bin BINARY\nTRACK 01 AUDIO\nTITLE \"He said \"Ol\xE9\"\"\n REM GENRE Later\nINDEX 01 00:00:00\n"
      "TRACK 02 AUDIO\nperformer \tUnquoted  Words \nINDEX 01 00:01:05\n";
  writeFile(sheet,
            "REM TITLE no\nCATALOG 0123456789012\nTITLE \"An \tAlbum\"\nPERFORMER \"\"\nrem genre \"Jazz Funk\"\nDATE 1971\n" + tracks);
  const SheetTexts wanted{"An  Album", "", "Jazz Funk", "1971", "0123456789012", {{"He said \"Ol\xC3\xA9\"", ""}, {"", "Unquoted  Words"}}};
  EXPECT_EQ(DiscImage::open(sheet, error)->texts(), wanted);
  writeFile(sheet,
            "TITLE \"\xD0\xA5\xD0\xBE\xD1\x80\nREM DATE 1980\nREM DATE 1990\nFILE disc.bin BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n");
  EXPECT_EQ(DiscImage::open(sheet, error)->texts(), (SheetTexts{"\xD0\xA5\xD0\xBE\xD1\x80", "", "", "1980", "", {}}));
}

TEST(DiscImage, NamesTheFirstEntryOfTheRoot) {
  const TempFolder folder;
  std::string error;
  EXPECT_EQ(DiscImage::open(makeEnhancedDisc(folder, {100, 100}, "START.EXE"), error)->firstEntry(), "START.EXE");
  EXPECT_EQ(DiscImage::open(makeDisc(folder, {100}), error)->firstEntry(), "Track01.cda");
}

TEST(DiscImage, RefusesBadSheetsAndSaysWhy) {
  const TempFolder folder;
  writeFile(folder / "disc.bin", frameBytes(150, 10));
  const std::string head = "FILE \"disc.bin\" BINARY\n";
  std::string hundred = head;
  for (int i = 1; i <= 100; ++i) hundred += "TRACK " + std::to_string(i) + " AUDIO\nINDEX 01 00:00:00\n";
  const std::pair<std::string, const char*> cases[] = {
      {"", "no tracks"},
      {std::string("\x7F\x45LF\0\xFF\xFE garbage\n\n", 18), "no tracks"},
      {head, "no tracks"},
      {"TRACK 01 AUDIO\nINDEX 01 00:00:00\n", "before the first file"},
      {hundred, "1 to 99"},
      {head + "TRACK 02 AUDIO\nINDEX 01 00:00:00\n", "in order"},
      {head + "TRACK 01 AUDIO\nINDEX 01 00:00:10\n", "beyond the end"},
      {head + "TRACK 01 AUDIO\nINDEX 01 999:00:00\n", "beyond"},
      {head + "TRACK 01 AUDIO\nINDEX 01 00:00:05\nINDEX 02 00:00:04\n", "backwards"},
      {head + "TRACK 01 AUDIO\nINDEX 01 00:00:05\nTRACK 02 AUDIO\nINDEX 01 00:00:02\n", "before"},
      {head + "TRACK 01 AUDIO\nINDEX 01 00:00:99\n", "cannot be read"},
      {head + "TRACK 01 AUDIO\nINDEX 00 00:00:00\n", "INDEX 01"},
      {head + "TRACK 01 JUMBLE\nINDEX 01 00:00:00\n", "unknown type"},
      {"FILE \"disc.bin\" MP3\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", "cannot be played"},
      {"FILE \"disc.bin\" WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", "not a sound file"},
  };
  for (const auto& [sheet, why] : cases) {
    writeFile(folder / "bad.cue", sheet);
    EXPECT_NE(errorOf(folder / "bad.cue").find(why), std::string::npos) << sheet << errorOf(folder / "bad.cue");
  }
  EXPECT_NE(errorOf(folder / "absent.cue"), "");
  EXPECT_NE(errorOf(folder.path()), "");
}

TEST(DiscImage, RefusesFilesThatAreNotItsOwn) {
  const TempFolder outside;
  writeFile(outside / "far.bin", frameBytes(150, 10));
  const TempFolder folder;
  std::filesystem::create_directory(folder / "folder.bin");
  ASSERT_EQ(mkfifo((folder / "pipe.bin").c_str(), 0600), 0);
  std::filesystem::create_symlink(outside / "far.bin", folder / "link.bin");
  writeFile(folder / "empty.bin", "");
  writeFile(folder / "sliver.bin", std::string(2351, 'x'));
  const std::string up = "../" + std::filesystem::path(outside.path()).filename().string() + "/far.bin";
  for (const std::string& name :
       {std::string("missing.bin"), std::string("folder.bin"), std::string("pipe.bin"), std::string("link.bin"), std::string("empty.bin"),
        std::string("sliver.bin"), up, outside / "far.bin", std::string("C:\\far.bin"), std::string()}) {
    for (const char* type : {"BINARY", "WAVE"}) {
      writeFile(folder / "bad.cue", "FILE \"" + name + "\" " + type + "\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n");
      EXPECT_NE(errorOf(folder / "bad.cue"), "") << name;
    }
  }
}

TEST(ImageDrive, KeepsTheFoldersDiscWhenAnotherIsRefused) {
  const TempFolder folder;
  makeDisc(folder, {100, 100});
  const TempFolder bad;
  writeFile(bad / "bad.cue", "nothing");
  ImageDrive drive(folder.path(), bad / "bad.cue");
  EXPECT_NE(drive.refusal().find("no tracks"), std::string::npos);
  EXPECT_EQ(drive.poll(), DriveStatus::Disc);
  EXPECT_EQ(drive.toc().count(), 2);
  drive.openTray();
  EXPECT_EQ(drive.poll(), DriveStatus::TrayOpen);
  EXPECT_EQ(drive.firstEntry(), "");
  drive.closeTray();
  EXPECT_EQ(drive.poll(), DriveStatus::Disc);
  ImageDrive none(folder / "nowhere");
  EXPECT_TRUE(none.lock());
  EXPECT_EQ(none.poll(), DriveStatus::NoDisc);
}

}  // namespace
}  // namespace orvanta::test
