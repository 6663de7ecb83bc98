// The settings family: every field in its place, written as read, and what broken files do.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "state/settings_files.h"
#include "tests/support/fakes.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

constexpr SettingsFile kAll[] = {SettingsFile::Orvwin,  SettingsFile::Orvwin1, SettingsFile::Orvwin3,
                                 SettingsFile::Orvwin4, SettingsFile::Orvwin7, SettingsFile::SettingsDat};

/// Every setting that differs from none, by name; what only passes through is seen in the bytes.
std::string told(const Settings& s) {
  std::string all;
  const auto say = [&all](const std::string& name, const auto& value, const auto& none) {
    if (value == none) return;
    std::ostringstream text;
    text << (all.empty() ? "" : " ") << name << '=' << value;
    all += text.str();
  };
  const auto font = [](const FontGroup& f) {
    std::ostringstream text;
    text << f.fontName << ',' << f.fontSize << ',' << f.fontBold << ',' << f.fontItalic << ',' << f.fontUnderline << ',' << f.fontColor;
    return text.str();
  };
#define SAY(field) say(#field, s.field, Settings().field)
  SAY(appDir), SAY(cdProbePath), SAY(mixerPath), SAY(wallpaperMode), SAY(wallpaperColor), SAY(wallpaperFile), SAY(wallpaperOption);
  SAY(editorFromFaceplate), SAY(soundMode);
  for (size_t i = 0; i < 4; ++i) say("font" + std::to_string(i), font(s.fonts[i]), font({}));
  for (size_t i = 0; i < s.appOptions.size(); ++i) say("option" + std::to_string(i), s.appOptions[i], 0);
  SAY(searchEngine);
  for (size_t i = 0; i < s.customColor.size(); ++i) say("colour" + std::to_string(i), s.customColor[i], Colour{0});
  SAY(lyricsSite), SAY(soundsOff), SAY(minToTray), SAY(browserPath), SAY(faceplateBorder), SAY(faceplateBitmap), SAY(faceplateBitmapOn);
  SAY(noLcdFont), SAY(showLights), SAY(lcdCustom), SAY(lcdFore), SAY(lcdBack), SAY(recordCommand), SAY(timeMode), SAY(expandedDisplay);
  SAY(smallFaceplate), SAY(repeatOn);
#undef SAY
  return all;
}

TEST(SettingsFiles, HoldEveryFieldInItsPlace) {
  expectAnswers("answers/settings.txt", [](const std::string& line) {
    const auto colon = line.find(':');
    const auto file =
        std::find_if(std::begin(kAll), std::end(kAll), [&](SettingsFile each) { return fileName(each) == line.substr(0, colon); });
    const std::string bytes = line.substr(colon + 1);
    Settings s;
    EXPECT_TRUE(readFields(*file, FieldReader(bytes), s)) << line;
    const FieldWriter back = writtenFields(*file, s);
    EXPECT_EQ(back.bytes(), bytes);
    EXPECT_EQ(back.companion(), "") << line << " holds it all by itself";
    return told(s);
  });
}

TEST(SettingsFiles, OfAFreshInstallation) {
  const Settings s = defaultSettings("/data", "/drive");
  EXPECT_EQ(told(s),
            "appDir=/data cdProbePath=/drive soundMode=3 font0=,0,0,0,0,5294335 font1=,0,0,0,0,65280 option4=7 searchEngine=Yahoo "
            "colour0=11051676 colour1=3354155 colour2=4011827 colour3=2828068 colour4=6346776 showLights=1")
      << "CD Data opens beside the deck";
  FakeFiles files;
  files.files["/DATA/ORVWIN7.INI"] = "\"mine\"\r\n";
  EXPECT_TRUE(writeMissingSettings(files, s));
  EXPECT_EQ(files.tape,
            (Tape{"write /data/ORVWIN1.INI", "write /data/ORVWIN3.INI", "write /data/ORVWIN4.INI", "write /data/settings.dat"}));
}

/// Texts that the file cannot hold lie whole beside it, as long as the file holds what was written for them.
TEST(SettingsFiles, KeepTextsOfAnyScript) {
  const std::string folder = "/home/\u044e\u0437\u0435\u0440/\u0434\u0430\u043d\u043d\u044b\u0435";
  FakeFiles files;
  Settings s = defaultSettings(folder, "/\u00fc \u0142/\\tray");
  s.recordCommand = "\"my \u0440\u0438\u043f\" --x\t\n";
  writeSettings(SettingsFile::Orvwin, files, "/system", s);
  writeSettings(SettingsFile::Orvwin7, files, "/data", s);
  EXPECT_EQ(files.files["/SYSTEM/ORVWIN.INI"].substr(0, 35),
            "\"/home/????"
            "/??????\"\r\n\"/\xFC l/\\tray\"\r\n");
  EXPECT_EQ(files.files["/SYSTEM/ORVWIN.INI.UTF8"],
            "1\t/home/????"
            "/??????\t" +
                folder + "\n2\t/\u00fc l/\\\\tray\t/\u00fc \u0142/\\\\tray\n");
  Settings back;
  readSettings(SettingsFile::Orvwin, files, "/system", back);
  readSettings(SettingsFile::Orvwin7, files, "/data", back);
  EXPECT_EQ(told(back), "appDir=" + folder + " cdProbePath=/\u00fc \u0142/\\tray recordCommand=" + s.recordCommand);
  Settings alike;
  alike.fonts[0].fontName = "\"a\"";
  alike.fonts[1].fontName = "'a'";
  const FieldWriter both = writtenFields(SettingsFile::Orvwin3, alike);
  readFields(SettingsFile::Orvwin3, FieldReader(both.bytes(), both.companion()), back);
  EXPECT_EQ(back.fonts[0].fontName + back.fonts[1].fontName, "\"a\"'a'") << "a text that looks like another's stand-in stays";

  // Another program of the family wrote the file meanwhile: its text stands.
  std::string& main = files.files["/SYSTEM/ORVWIN.INI"];
  main.replace(main.find("????"), 4, "user");
  readSettings(SettingsFile::Orvwin, files, "/system", back);
  EXPECT_EQ(back.appDir, "/home/user/??????");
  // With plain texts the companion goes.
  s.appDir = s.cdProbePath = "/plain";
  writeSettings(SettingsFile::Orvwin, files, "/system", s);
  EXPECT_FALSE(files.exists("/system/ORVWIN.INI.utf8"));
}

/// Each write of a save in turn fails: the save says so, and the old texts are still there.
TEST(SettingsFiles, ASaveThatBreaksLosesNothing) {
  for (int broken = 1; broken <= 2; ++broken) {
    FakeFiles files;
    Settings s = defaultSettings("/\u0441\u0442\u0430\u0440", "/drive");
    writeSettings(SettingsFile::Orvwin, files, "/system", s);
    const auto before = files.files;
    s.appDir = "/\u043d\u043e\u0432\u044b\u0439";
    files.failAt = files.writes() + broken;
    EXPECT_FALSE(writeSettings(SettingsFile::Orvwin, files, "/system", s)) << broken;
    EXPECT_EQ(files.files, before) << broken;
    EXPECT_TRUE(writeSettings(SettingsFile::Orvwin, files, "/system", s));
    Settings back;
    readSettings(SettingsFile::Orvwin, files, "/system", back);
    EXPECT_EQ(back.appDir, s.appDir);
    EXPECT_EQ(files.files["/SYSTEM/ORVWIN.INI.UTF8"].find("\u0441\u0442"), std::string::npos) << "the old line has gone";
  }
  // Cut short between the two files: the old main file still finds its text.
  FakeFiles files;
  Settings s = defaultSettings("/\u0430\u0431", "/drive");
  writeSettings(SettingsFile::Orvwin, files, "/system", s);
  const std::string main = files.files["/SYSTEM/ORVWIN.INI"];
  s.appDir = "/\u0430\u0431\u0432";
  files.failAt = files.writes() + 3;  // the last clean-up
  EXPECT_TRUE(writeSettings(SettingsFile::Orvwin, files, "/system", s));
  files.files["/SYSTEM/ORVWIN.INI"] = main;
  Settings back;
  readSettings(SettingsFile::Orvwin, files, "/system", back);
  EXPECT_EQ(back.appDir, "/\u0430\u0431");
}

TEST(SettingsFiles, WhatCannotBeReadIsNotWrittenOver) {
  FakeFiles files;
  files.files["/DATA/ORVWIN4.INI"] = files.files["/DATA/ORVWIN7.INI"] = "\"x\"\r\n";
  files.unreadable = {"/DATA/ORVWIN4.INI", "/DATA/ORVWIN7.INI"};
  Settings s;
  s.recordCommand = "rip";
  for (const auto file : {SettingsFile::Orvwin4, SettingsFile::Orvwin7}) EXPECT_FALSE(readSettings(file, files, "/data", s));
  EXPECT_EQ(files.tape, Tape{});
  EXPECT_EQ(s.recordCommand, "rip");
  files.files.erase("/DATA/ORVWIN7.INI");
  readSettings(SettingsFile::Orvwin7, files, "/data", s);
  EXPECT_EQ(s.recordCommand, "") << "no file, no recorder";
}

TEST(SettingsFiles, ShortOrBrokenFilesKeepWhatIsHeld) {
  for (const auto file : kAll) {
    Settings s = defaultSettings("/data", "/drive");
    EXPECT_FALSE(readFields(file, FieldReader(""), s));
    EXPECT_EQ(s.appDir, "/data");
    readFields(file, FieldReader(std::string(300, '\xFF') + "\"\r\n,,,\""), s);
    readFields(file, FieldReader(std::string("\0\0\0", 3)), s);
  }
  Settings s;
  readFields(SettingsFile::SettingsDat, FieldReader("99999999999\r\n\r\n-70000\r\nx\r\n1e9\r\n"), s);
  EXPECT_EQ(s.timeMode + s.expandedDisplay + s.smallFaceplate, 0) << "what no 16-bit number holds counts as 0";
}

/// Other bytes than the family's in ORVWIN3.INI: what is no colour is the deck's own, what is one stands.
TEST(SettingsFiles, WhatIsNoColourLeavesTheDecksOwn) {
  std::string bytes;
  for (int line = 1; line <= 24; ++line) bytes += "\x81#?\r\n";
  for (const char* colour : {"x", "12#", "99999999999", "16777216", "-", "", "-2147483643", "255"}) bytes += std::string(colour) + "\r\n";
  const Settings own = defaultSettings("", "");
  Settings s;
  readFields(SettingsFile::Orvwin3, FieldReader(bytes), s);
  EXPECT_EQ(s.fonts[kDiscFont].fontColor, own.fonts[kDiscFont].fontColor);
  EXPECT_EQ(s.fonts[kTrackFont].fontColor, own.fonts[kTrackFont].fontColor);
  std::array<Colour, 13> expected = own.customColor;
  expected[5] = 0, expected[6] = 0x80000005, expected[7] = 255;
  EXPECT_EQ(s.customColor, expected);
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
