// Disc images, good and bad: sheets, layouts, files that are not what they should be.
#include "platform/disc/image_drive.h"

#include <gtest/gtest.h>
#include <sndfile.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "tests/support/test_discs.h"
#include "tests/support/transcript.h"

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
  for (int again = 0; again < 2; ++again) {
    ASSERT_TRUE(disc->read(first + 1, 1, samples.data()));
    EXPECT_TRUE(isFrame(first + 1, samples.data())) << "the same place once more";
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
  const auto refusal = [&](const std::string& sheet) {
    writeFile(folder / "bad.cue", sheet);
    std::string error = errorOf(folder / "bad.cue");
    for (auto at = error.find(folder.path()); at != std::string::npos; at = error.find(folder.path()))
      error.erase(at, folder.path().size());
    EXPECT_LT(error.size(), 200) << "a box must stay readable";
    return error;
  };
  expectAnswers("answers/sheets.txt", refusal);
  const std::string head = "FILE \"disc.bin\" BINARY\n";
  std::string hundred = head;
  for (int i = 1; i <= 100; ++i) hundred += "TRACK " + std::to_string(i) + " AUDIO\nINDEX 01 00:00:00\n";
  std::string many;
  for (int i = 0; i < 20000; ++i) many += head;
  const std::pair<std::string, const char*> large[] = {{hundred, "1 to 99"},
                                                       {std::string("fLaC") + std::string(9000, 'x'), "choose a CUE sheet"},
                                                       {std::string((1 << 20) + 1, 'x'), "choose a CUE sheet"},
                                                       {"FILE \"" + std::string(880000, 'x') + "\" BINARY\n", "line 1 is longer"},
                                                       {many, "more files than a disc has tracks"}};
  for (const auto& [sheet, why] : large) EXPECT_NE(refusal(sheet).find(why), std::string::npos) << why;
  EXPECT_NE(errorOf(folder / "absent.cue"), "");
  EXPECT_NE(errorOf(folder.path()).find("choose a CUE sheet in it"), std::string::npos);
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

TEST(DiscImage, SoundFilesThatAreNoneAreToldApart) {
  const TempFolder folder;
  const auto write = [&](const char* name, int channels, int rate, int pairs) {
    SF_INFO info{};
    info.channels = channels;
    info.samplerate = rate;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open((folder / name).c_str(), SFM_WRITE, &info);
    const std::vector<int16_t> samples(static_cast<size_t>(pairs * channels));
    sf_writef_short(file, samples.data(), pairs);
    sf_close(file);
  };
  write("mono.wav", 1, kSampleRate, 1000);
  write("slow.wav", 2, 22050, 1000);
  write("mute.wav", 2, kSampleRate, 0);
  const TempFolder whole;
  makeSoundDisc(whole, {100}, true);
  std::string error;
  const std::string flac = readSmallFile(whole / "disc.flac", 1 << 20, error);
  writeFile(folder / "half.flac", flac.substr(0, flac.size() / 2));
  for (const auto& [name, why] : {std::pair{"mono.wav", "not stereo"}, std::pair{"slow.wav", "44,100"},
                                  std::pair{"mute.wav", "holds no sound"}, std::pair{"half.flac", "is cut short"}}) {
    writeFile(folder / "bad.cue", std::string("FILE ") + name + " WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n");
    EXPECT_NE(errorOf(folder / "bad.cue").find(why), std::string::npos) << name << errorOf(folder / "bad.cue");
  }
}

TEST(DiscImage, FindsItsFilesHoweverTheirNamesAreWritten) {
  const TempFolder folder;
  const std::u16string name = u"Caf\u00E9 \u0439 \u304C \uD55C \u1EAD.bin";
  const std::u16string sheet = u"TITLE \"\U0001F3B5\"\nFILE \"" + name + u"\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n";
  // On the disk the accents stand behind their letters, as some systems keep them.
  writeFile(folder / "CAFe\xCC\x81 \xD0\xB8\xCC\x86 \xE3\x81\x8B\xE3\x82\x99 \xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB a\xCC\xA3\xCC\x82.bin",
            frameBytes(150, 10));
  for (const std::string& bytes :
       {"\xFF\xFE" + utf16(sheet, false), "\xFE\xFF" + utf16(sheet, true), utf16(sheet, false), utf16(sheet, true)}) {
    writeFile(folder / "disc.cue", bytes + "\x0A");
    std::string error;
    const auto disc = DiscImage::open(folder / "disc.cue", error);
    ASSERT_NE(disc, nullptr) << error;
    EXPECT_EQ(disc->texts().title, "\xF0\x9F\x8E\xB5");
  }
  writeFile(folder / "disc.cue",
            "\xFF\xFE" + utf16(u"TITLE \"a\xD800z\"\nFILE Cafe.bin BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", false));
  EXPECT_NE(errorOf(folder / "disc.cue").find("\"Cafe.bin\" is missing"), std::string::npos) << "another name is another file";
}

TEST(DiscImage, ARootThatPointsNowhereIsPassedOver) {
  constexpr uint32_t kHuge = 0x7FFFFFFF;
  const TempFolder folder;
  const std::string sheet = makeEnhancedDisc(folder, {100}, "START.EXE");
  std::string error;
  const std::string whole = readSmallFile(folder / "disc.bin", 1 << 20, error);
  for (const auto& [block, bytes] : {std::pair{kHuge, 2048U}, std::pair{118U, kHuge}, std::pair{kHuge, kHuge},
                                     std::pair{0xFFFFFFFFU, 0xFFFFFFFFU}, std::pair{kHuge - 149, 2048U}}) {
    std::string image = whole;
    const size_t record = size_t{116} * kBytesPerFrame + 16 + 156;
    for (size_t i = 0; i < 4; ++i) {
      image[record + 2 + i] = static_cast<char>(block >> (8 * i));
      image[record + 10 + i] = static_cast<char>(bytes >> (8 * i));
    }
    writeFile(folder / "disc.bin", image);
    EXPECT_EQ(DiscImage::open(sheet, error)->firstEntry(), block == 118 ? "START.EXE" : "Track01.cda") << block << " " << bytes;
  }
}

TEST(ImageDrive, KeepsTheFoldersDiscWhenAnotherIsRefused) {
  const TempFolder folder;
  makeDisc(folder, {100, 100});
  const TempFolder bad;
  writeFile(bad / "bad.cue", "nothing");
  ImageDrive drive(folder.path(), bad / "bad.cue");
  EXPECT_NE(drive.takeNotice().find("choose a CUE sheet"), std::string::npos);
  EXPECT_EQ(drive.takeNotice(), "") << "told once";
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
  EXPECT_EQ(none.missing(), folder / "nowhere");
  EXPECT_EQ(drive.missing(), "");
}

/// As good as a full disk: while it lives no byte goes into any file.
class FullDisk {
 public:
  FullDisk() {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit none{0, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &none);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

TEST(ImageDrive, RemembersItsImageOrRefusesIt) {
  const TempFolder folder;
  const TempFolder images;
  const std::string one = makeDisc(images, {100});
  std::filesystem::create_directory(images / "two");
  writeFile(images / "two/two.cue", "FILE two.bin BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 AUDIO\nINDEX 01 00:00:05\n");
  writeFile(images / "two/two.bin", frameBytes(150, 10));
  const std::string memory = folder / "tray.dat";
  const auto tracks = [&] {
    ImageDrive next(folder.path(), "", memory);
    next.poll();
    return next.toc().count();
  };
  ImageDrive drive(folder.path(), one, memory);
  std::string error;
  EXPECT_EQ(readSmallFile(memory, 1000, error), folder.path() + "\n" + one + "\n");
  EXPECT_EQ(tracks(), 1);
  auto full = std::make_unique<FullDisk>();
  EXPECT_EQ(drive.accept(images / "two/two.cue"),
            "The disc image " + images / "two/two.cue" + " cannot be put in: " + memory + " cannot be written.");
  drive.openTray();
  drive.closeTray();
  EXPECT_EQ(drive.toc().count(), 1);
  EXPECT_EQ(tracks(), 1) << "the old memory is whole";
  full.reset();
  EXPECT_EQ(drive.accept(images / "two/two.cue"), "");
  drive.closeTray();
  EXPECT_EQ(drive.toc().count(), 2);
  EXPECT_EQ(tracks(), 2);
  std::filesystem::remove(images / "two/two.cue");
  ImageDrive next(folder.path(), "", memory);
  EXPECT_NE(next.takeNotice().find("two.cue cannot be played"), std::string::npos);
  ImageDrive elsewhere(images.path(), "", memory);
  EXPECT_EQ(elsewhere.takeNotice(), "") << "another drive's memory";
}

TEST(ImageDrive, TellsOnceWhatBecomesOfTheFilesOfItsDisc) {
  using Act = void (*)(const std::string&);
  const std::pair<Act, const char*> cases[] = {
      {[](const std::string& bin) { std::filesystem::remove(bin); }, "was removed or renamed"},
      {[](const std::string& bin) { std::filesystem::rename(bin, bin + ".old"); }, "was removed or renamed"},
      {[](const std::string& bin) { std::filesystem::resize_file(bin, 30 * kBytesPerFrame); }, "was cut short"},
      {[](const std::string& bin) { std::filesystem::resize_file(bin, 300 * kBytesPerFrame); }, "was changed"},
      {[](const std::string& bin) {
         writeFile(bin + ".other", "x");
         std::filesystem::rename(bin + ".other", bin);
       },
       "was replaced"}};
  for (const auto& [act, what] : cases) {
    const TempFolder folder;
    makeDisc(folder, {100});
    ImageDrive drive(folder.path());
    EXPECT_EQ(drive.poll(), DriveStatus::Disc);
    EXPECT_EQ(drive.takeNotice(), "");
    act(folder / "disc.bin");
    EXPECT_EQ(drive.poll(), DriveStatus::Disc) << "what plays plays on";
    const std::string notice = drive.takeNotice();
    EXPECT_EQ(notice.find("The file \"disc.bin\" " + std::string(what)), 0U) << notice;
    drive.poll();
    EXPECT_EQ(drive.takeNotice(), "");
    std::vector<int16_t> samples(kShortsPerFrame);
    for (const int frame : {150, 179, 249}) {
      ASSERT_TRUE(drive.read(frame, 1, samples.data()));
      const bool there = frame < 180 || std::string(what) != "was cut short";
      EXPECT_EQ(isFrame(frame, samples.data()), there) << what << frame;
      if (!there) {
        EXPECT_EQ(samples, std::vector<int16_t>(kShortsPerFrame));
      }
    }
  }
}

}  // namespace
}  // namespace orvanta::test
