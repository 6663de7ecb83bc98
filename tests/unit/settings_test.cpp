// The settings family: every field in its place, written as read, and what broken files do.
#include <gtest/gtest.h>

#include "state/settings_files.h"
#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

constexpr SettingsFile kAll[] = {SettingsFile::Orvwin,  SettingsFile::Orvwin1, SettingsFile::Orvwin3,
                                 SettingsFile::Orvwin4, SettingsFile::Orvwin7, SettingsFile::SettingsDat};

/// A file with a different value in each of its lines.
std::string numbered(int lines, int gap = 0, int gap2 = 0) {
  std::string bytes;
  for (int i = 1; i <= lines; ++i) bytes += i == gap ? "\r\n" : i == gap2 ? "\"\"\r\n" : std::to_string(100 + i) + "\r\n";
  return bytes;
}

TEST(SettingsFiles, PutEveryLineInItsPlace) {
  Settings s;
  EXPECT_TRUE(readFields(SettingsFile::Orvwin, numbered(14), s));
  EXPECT_EQ(s.appDir + s.cdProbePath, "101102");
  EXPECT_TRUE(readFields(SettingsFile::Orvwin1, numbered(10), s));
  EXPECT_EQ(s.mixerPath, "101");
  EXPECT_EQ(s.wallpaperColor, 104U);
  EXPECT_EQ(s.soundMode, 110);
  EXPECT_TRUE(readFields(SettingsFile::Orvwin3, numbered(37), s));
  EXPECT_EQ(s.fonts[0].fontName + s.fonts[1].fontName + s.fonts[2].fontName + s.fonts[3].fontName, "101107119");
  EXPECT_EQ(s.appOptions, (std::array<int16_t, 6>{0, 113, 114, 115, 116, 117}));
  EXPECT_EQ(s.searchEngine, "118");
  EXPECT_EQ(s.fonts[3].fontColor, 124U);
  EXPECT_EQ(s.customColor[0], 125U);
  EXPECT_EQ(s.customColor[12], 137U);
  EXPECT_TRUE(readFields(SettingsFile::Orvwin4, numbered(20, 0, 15), s));
  EXPECT_EQ(s.lyricsSite + s.browserPath + s.faceplateBitmap, "103108112");
  EXPECT_EQ(s.faceplateBorder, 111);
  EXPECT_EQ(s.showLights, 116);
  EXPECT_EQ(s.lcdBack, 119U);
  EXPECT_TRUE(readFields(SettingsFile::SettingsDat, numbered(5, 2), s));
  EXPECT_EQ(s.timeMode, 101);
  EXPECT_EQ(s.repeatOn, 105);
}

TEST(SettingsFiles, ComeBackAsTheyWereWritten) {
  Settings s = defaultSettings("/home/caf\xC3\xA9", "/dev/sr0");
  s.recordCommand = "rip, \"all\"";
  s.recordCommand = "rip, all";
  s.customColor[12] = 0xFFFFFF;
  s.repeatOn = 1;
  for (const auto file : kAll) {
    Settings back;
    const std::string bytes = writtenFields(file, s);
    EXPECT_TRUE(readFields(file, bytes, back)) << fileName(file);
    EXPECT_EQ(writtenFields(file, back), bytes) << fileName(file);
  }
  EXPECT_EQ(writtenFields(SettingsFile::SettingsDat, s), "0\r\n\r\n0\r\n0\r\n1\r\n") << "line 2 stays empty";
}

TEST(SettingsFiles, ShortOrBrokenFilesKeepWhatIsHeld) {
  for (const auto file : kAll) {
    Settings s = defaultSettings("/data", "/drive");
    EXPECT_FALSE(readFields(file, "", s));
    EXPECT_EQ(s.appDir, "/data");
    readFields(file, std::string(300, '\xFF') + "\"\r\n,,,\"", s);
    readFields(file, std::string("\0\0\0", 3), s);
  }
  Settings s;
  readFields(SettingsFile::SettingsDat, "99999999999\r\n\r\n-70000\r\nx\r\n1e9\r\n", s);
  EXPECT_EQ(s.timeMode + s.expandedDisplay + s.smallFaceplate, 0) << "what no 16-bit number holds counts as 0";
}

TEST(SettingsFiles, Orvwin4RepairsItselfOnce) {
  FakeFiles files;
  Settings s;
  readSettings(SettingsFile::Orvwin4, files, "/data", s);
  std::string twenty = "0\r\n";
  for (int i = 0; i < 19; ++i) twenty += "\"\"\r\n";
  EXPECT_EQ(files.read("/data/orvwin4.ini"), twenty);
  EXPECT_EQ(s.lcdColor[kLcdLit], 0x00FF00U);
  FakeFiles readOnly;
  readOnly.full = true;
  readSettings(SettingsFile::Orvwin4, readOnly, "/data", s);
  EXPECT_EQ(readOnly.tape.size(), 1U) << "tried once, then let be";
}

TEST(SettingsFiles, TheDisplayCanNeverBeUnreadable) {
  Settings s;
  s.lcdCustom = 1;
  s.lcdFore = s.lcdBack = 0x123456;
  fillLcdColours(s);
  EXPECT_EQ(s.lcdFore, 0U);
  EXPECT_EQ(s.lcdBack, 0x29CF95U);
  EXPECT_EQ(s.lcdColor[kLcdDim], 0x29CF95U);
  EXPECT_EQ(s.fonts[1].fontColor, 0U);
}

}  // namespace
}  // namespace orvanta::test
