// The disc's files: byte for byte as written, and read from what hands and other programs make of them.
#include <gtest/gtest.h>

#include "base/code_page.h"
#include "records/disc_files.h"
#include "records/draft.h"
#include "records/recorder_texts.h"
#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

std::string lines(const std::vector<std::string>& fields) {
  std::string all;
  for (const std::string& field : fields) all += "\"" + field + "\"\r\n";
  return all;
}
std::string blank(int count) { return lines(std::vector<std::string>(static_cast<size_t>(count))); }

struct Records : testing::Test {
  std::string file(const std::string& suffix) { return files.read("/data/datacd/00012345" + suffix).value_or("absent"); }
  bool write(int tracks = 3, int correction = 0) { return !disc.writeTexts(texts, tracks, correction).any(); }
  DiscTexts reread() {
    DiscTexts read;
    disc.readTexts(read);
    return read;
  }
  /// A value of its own in every field that the family keeps.
  static DiscTexts full() {
    DiscTexts texts;
    texts.discTitle = "the title";
    texts.discArtist = "the artist";
    texts.linerNotes = "one\r\ntwo";
    const auto fill = [](auto& table, size_t first, const char* name) {
      for (size_t i = first; i < table.size(); ++i) table[i] = name + std::to_string(i);
    };
    fill(texts.trackTitles, 1, "track ");
    fill(texts.discInfo, 1, "info ");
    texts.discInfo[kTrackCount] = "99";
    fill(texts.extraInfo, 0, "extra ");
    fill(texts.lyricsHigh, 1, "words ");
    return texts;
  }
  FakeFiles files;
  DiscTexts texts;
  DiscFiles disc{files, "/data/datacd/00012345.CD"};
};

TEST_F(Records, EveryFieldHasItsLine) {
  texts = full();
  texts.discTitle = "a \"b\", c";
  texts.discArtist = "Caf\xC3\xA9";
  texts.discInfo[kTimeList] = "47:12,3:41,";
  ASSERT_TRUE(write(3, -2));
  const auto numbered = [](const char* name, int first, int last) {
    std::vector<std::string> all;
    for (int i = first; i <= last; ++i) all.push_back(name + std::to_string(i));
    return lines(all);
  };
  EXPECT_EQ(file(".CD"), lines({"a `b`~ c", "Caf\xE9", "one\r\ntwo"}) + numbered("track ", 1, 45) +
                             lines({"47:12,3:41,", "99", "info 3", "info 4", "info 5"}));
  EXPECT_EQ(file(".CD1"), blank(42) + "-2\r\n");
  EXPECT_EQ(file(".CD3"), numbered("extra ", 0, 75));
  EXPECT_EQ(file(".CD4"), numbered("track ", 1, 100));
  EXPECT_EQ(file(".CD5"), numbered("words ", 1, 50));
  EXPECT_EQ(file(".utf8"), "absent");
  EXPECT_EQ(reread(), texts);
}

TEST_F(Records, CompanionsComeByTheirRules) {
  struct Case {
    const char* what;
    void (*change)(DiscTexts&);
    int tracks;
    const char* files;  ///< suffixes, beside .CD and .CD1
  };
  for (const Case& c : std::initializer_list<Case>{
           {"nothing but a title", [](DiscTexts& t) { t.discTitle = "t"; }, 45, ""},
           {"46 tracks in the drive", [](DiscTexts&) {}, 46, "45"},
           {"46 tracks by the record", [](DiscTexts& t) { t.discInfo[kTrackCount] = "46"; }, 3, "45"},
           {"another medium", [](DiscTexts& t) { t.extraInfo[kMediaType] = "LP"; }, 3, "3"},
           {"no medium", [](DiscTexts& t) { t.extraInfo[kMediaType] = ""; }, 3, "3"},
           {"a cost", [](DiscTexts& t) { t.extraInfo[kCost] = "1"; }, 3, "3"},
           {"the last field alone", [](DiscTexts& t) { t.extraInfo[kAlbumCredits] = "x"; }, 3, "3"},
           {"a year that begins beyond ASCII", [](DiscTexts& t) { t.extraInfo[kYear] = "\xC2\xA3"; }, 3, "3"},
           {"controls before a letter", [](DiscTexts& t) { t.extraInfo[kYear] = "\x01z"; }, 3, "3"},
           {"blanks and controls", [](DiscTexts& t) { t.extraInfo[kYear] = " \t\x01\x7F"; }, 3, ""},
       }) {
    files.files.clear();
    texts = {};
    texts.extraInfo[kMediaType] = "Audio CD";
    c.change(texts);
    ASSERT_TRUE(write(c.tracks)) << c.what;
    std::string found;
    for (const char* suffix : {"3", "4", "5"}) found += file(std::string(".CD") + suffix) == "absent" ? "" : suffix;
    EXPECT_EQ(found, c.files) << c.what;
  }
}

TEST_F(Records, WhatWasClearedIsClearedOnDisk) {
  texts.extraInfo[kMediaType] = "Audio CD";
  texts.extraInfo[kUpcNumber] = "123";
  ASSERT_TRUE(write());
  texts.extraInfo[kUpcNumber] = "";
  ASSERT_TRUE(write());
  EXPECT_EQ(reread().extraInfo[kUpcNumber], "");
  EXPECT_EQ(file(".CD3"), lines({"", "Audio CD"}) + blank(74));
}

TEST_F(Records, ExtendedFieldsStandEscapedAfterASave) {
  texts.extraInfo[kFirstLyrics] = "la, la";
  for (int saves = 0; saves < 2; ++saves) {
    ASSERT_TRUE(write());
    EXPECT_EQ(texts.extraInfo[kFirstLyrics], "la~ la") << "twice is as once";
  }
  EXPECT_EQ(reread().extraInfo[kFirstLyrics], "la, la");
}

const char* const kJapan = "\xE6\x97\xA5\xE6\x9C\xAC, ~\n\ttab\\";
const char* const kLodz =
    "\xC5\x81\xC3\xB3"
    "d\xC5\xBA";

TEST_F(Records, KeepsAnyScriptBesideTheFamily) {
  texts.discTitle = kJapan;
  texts.discArtist = kLodz;
  texts.extraInfo[kFirstLyrics] = "\xD0\x96, \xD0\x96";
  for (int saves = 0; saves < 2; ++saves) ASSERT_TRUE(write());
  EXPECT_EQ(file(".utf8"), std::string("title\t??, ,\\n tab\\\\\t\xE6\x97\xA5\xE6\x9C\xAC, ~\\n\\ttab\\\\\nartist\tL\xC3\xB3"
                                       "dz\t") +
                               kLodz + "\nextra13\t?, ?\t\xD0\x96, \xD0\x96\n");
  DiscTexts read = reread();
  EXPECT_EQ(read.discTitle, kJapan);
  EXPECT_EQ(read.discArtist, kLodz);
  EXPECT_EQ(read.extraInfo[kFirstLyrics], "\xD0\x96, \xD0\x96");
  // Another program of the family changes the artist: that wins over what we kept.
  std::string& main = files.files["/DATA/DATACD/00012345.CD"];
  const std::string ours = toWindows1252(kLodz);
  main.replace(main.find(ours), ours.size(), "Lima");
  read = reread();
  EXPECT_EQ(read.discArtist, "Lima");
  EXPECT_EQ(read.discTitle, kJapan);
  texts.discTitle = texts.discArtist = "plain";
  texts.extraInfo[kFirstLyrics] = "";
  ASSERT_TRUE(write());
  EXPECT_EQ(file(".utf8"), "absent");
}

/// Whatever breaks, each text that is read afterwards is the old one or the new one, never a row of question marks.
TEST_F(Records, ASaveThatBreaksLosesNoScript) {
  for (const bool forGood : {false, true}) {
    for (int at = 1; at < 12; ++at) {
      files = {};
      texts = full();
      texts.discTitle = kJapan;
      texts.trackTitles[50] = kLodz;
      texts.extraInfo[kYear] = "\xD0\x96";
      ASSERT_TRUE(write(99));
      const DiscTexts old = reread();
      // The same number of characters: in the family's files the two look alike.
      texts = old;
      texts.discTitle = "\xD0\x94\xD0\xB0, ~\n\ttab\\";
      texts.trackTitles[50] = "plain";
      texts.extraInfo[kYear] = "?";
      texts.discArtist = kLodz;
      const DiscTexts fresh = texts;
      files.failAt = files.writes() + at;
      files.failForGood = forGood;
      const Unwritten failed = disc.writeTexts(texts, 99, 0);
      files.failAt = 0;
      files.failForGood = false;
      const DiscTexts now = reread();
      if (!failed.any()) {
        EXPECT_EQ(now, fresh) << at;
        continue;
      }
      EXPECT_EQ(failed.reason, "No space left on device");
      if (!forGood) {
        EXPECT_EQ(now, old) << "what had been written is put back, " << at;
      }
      const auto either = [&](const std::string& text, const std::string& before, const std::string& after) {
        EXPECT_TRUE(text == before || text == after) << at << ": " << text;
      };
      either(now.discTitle, old.discTitle, fresh.discTitle);
      either(now.discArtist, old.discArtist, fresh.discArtist);
      either(now.trackTitles[50], old.trackTitles[50], fresh.trackTitles[50]);
      either(now.extraInfo[kYear], old.extraInfo[kYear], fresh.extraInfo[kYear]);
    }
  }
}

TEST_F(Records, NeverWritesOverWhatItCannotRead) {
  texts.discTitle = "Old";
  ASSERT_TRUE(write());
  files.unreadable = {"/DATA/DATACD/00012345.CD"};
  const DiscTexts held = reread();
  EXPECT_EQ(held.discTitle, "");
  texts.discTitle = "New";
  const Unwritten failed = disc.writeTexts(texts, 3, 1);
  EXPECT_EQ(failed.path, "/data/datacd/00012345.CD");
  EXPECT_EQ(file(".CD1"), blank(42) + "0\r\n") << "put back";
  files.unreadable.clear();
  EXPECT_EQ(reread().discTitle, "Old");
}

TEST_F(Records, ReadsWhatHandsMakeOfThem) {
  files.files["/DATA/DATACD/00012345.CD"] = "Title\ttyped\nArtist, with a comma\r\n";
  texts.trackTitles[7] = "kept";
  texts.extraInfo[5] = "gone";
  disc.readTexts(texts);
  EXPECT_EQ(texts.discTitle, "Title typed") << "rows of lists are parted by TABs";
  EXPECT_EQ(texts.discArtist, "Artist");
  EXPECT_EQ(texts.linerNotes, "with a comma");
  EXPECT_EQ(texts.trackTitles[7], "kept") << "behind the end of a short file fields keep what they hold";
  EXPECT_EQ(texts.extraInfo[5], "");
  EXPECT_EQ(texts.extraInfo[kMediaType], "") << "the usual medium comes with a file only";
  files.files["/DATA/DATACD/00012345.CD3"] = "5\r\n\r\n";
  disc.readTexts(texts);
  EXPECT_EQ(texts.extraInfo[kCost] + texts.extraInfo[kMediaType], "5Audio CD");
  files.files["/DATA/DATACD/00012345.CD4"] = "\"one\"\r\n";
  EXPECT_EQ(reread().trackTitles[1], "one") << "whatever the disc's track count, these titles win";
}

TEST_F(Records, TimeCorrectionAndProgram) {
  EXPECT_EQ(disc.timeCorrection(), 0);
  for (const auto& [text, value] : {std::pair{"-2", -2}, {"999", 5}, {"-9", -3}, {"x", 0}, {"1.6", 2}, {"", 0}}) {
    files.files["/DATA/DATACD/00012345.CD1"] = blank(42) + text + "\r\n";
    EXPECT_EQ(disc.timeCorrection(), value) << text;
  }
  EXPECT_FALSE(disc.program());
  EXPECT_FALSE(disc.programExists());
  EXPECT_FALSE(disc.writeProgram({3, 3}).any());
  std::string numbers = "3\r\n3\r\n";
  for (int i = 2; i < 100; ++i) numbers += "0\r\n";
  EXPECT_EQ(file(".CD2"), numbers);
  EXPECT_TRUE(disc.programExists());
  files.files["/DATA/DATACD/00012345.CD2"] = "2,x\r\n-4\r\n99999999999999999999\r\n\"7\"\r\n2.6\r\n";
  EXPECT_EQ(disc.program(), (std::vector<int>{2, 0, 0, 0, 7, 3}));
  files.keeps = true;
  EXPECT_EQ(disc.deleteProgram().path, "/data/datacd/00012345.CD2");
  files.keeps = false;
  EXPECT_FALSE(disc.deleteProgram().any());
  EXPECT_FALSE(disc.program());
}

TEST_F(Records, ARecorderReadsWhatTheDeckTellsOfTheDisc) {
  texts = full();
  const FieldWriter written = writtenFields(recorderTexts(texts, 3));
  const RecorderTexts read = readRecorderTexts(FieldReader(written.bytes(), written.companion()));
  EXPECT_EQ(read.trackTitles, texts.trackTitles);
  EXPECT_EQ(std::vector({read.artist, read.title, read.genre, read.year}),
            std::vector({texts.discArtist, texts.discTitle, texts.discInfo[kGenre], texts.extraInfo[kYear]}));
  EXPECT_EQ(read.trackCount, 3);
  texts.linerNotes = std::string(40, 'n');
  EXPECT_EQ(recorderTexts(texts, 3).notes, std::string(30, 'n'));
  texts.linerNotes = " ";
  EXPECT_EQ(recorderTexts(texts, 3).notes, texts.discInfo[kLabel]);
  EXPECT_EQ(readRecorderTexts(FieldReader("\"a\"\r\n\"t\"\r\n100\r\n")).trackCount, 0);
}

TEST_F(Records, ADraftIsReadAsItWasKept) {
  const Draft draft{{"Text2", kJapan}, {"List1(0)", ""}, {"Text3", "one\r\ntwo\\n"}};
  EXPECT_EQ(parseDraft(draftBytes(draft)), draft);
  EXPECT_EQ(draftBytes(draft).substr(0, 6), "Text2\t");
  EXPECT_TRUE(parseDraft("no tab\n\xFF\xFE\t").empty());
}

}  // namespace
}  // namespace orvanta::test
