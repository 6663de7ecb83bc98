// The disc's files: byte for byte as written, and read from what hands and other programs make of them.
#include "library/cd_records.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

struct Records : testing::Test {
  Records() { fresh(); }
  void fresh() {
    disc = {};
    disc.cdFilePath = "/data/datacd/00012345.CD";
  }
  std::string file(const std::string& suffix) { return files.read(disc.cdFilePath + suffix).value_or("absent"); }
  static std::string blank(int lines) {
    std::string all;
    for (int i = 0; i < lines; ++i) all += "\"\"\r\n";
    return all;
  }
  FakeFiles files;
  DiscState disc;
  Settings settings;
  CdRecords records{files, disc, settings};
};

TEST_F(Records, WritesTheMainFileFieldByField) {
  disc.discTitle = "Sample, \"Title\"";
  disc.discArtist = "Caf\xC3\xA9";
  disc.linerNotes = "one\r\ntwo, three";
  disc.trackTitles[1] = "First";
  disc.trackTitles[45] = "Last";
  disc.discInfo = {"", "47:12,3:41,", "12", "", "Some Label", "General"};
  disc.extraInfo[1] = "Audio CD";
  EXPECT_TRUE(records.writeCdRecord());
  EXPECT_EQ(file(""), "\"Sample~ `Title`\"\r\n\"Caf\xE9\"\r\n\"one\r\ntwo~ three\"\r\n\"First\"\r\n" + blank(43) +
                          "\"Last\"\r\n\"47:12,3:41,\"\r\n\"12\"\r\n\"\"\r\n\"Some Label\"\r\n\"General\"\r\n");
  for (const char* suffix : {"3", "4", "5"}) EXPECT_EQ(file(suffix), "absent") << suffix;
  const DiscState before = disc;
  fresh();
  records.readCdRecord();
  EXPECT_EQ(disc.discTitle, before.discTitle);
  EXPECT_EQ(disc.linerNotes, before.linerNotes);
  EXPECT_EQ(disc.trackTitles, before.trackTitles);
  EXPECT_EQ(disc.discInfo, before.discInfo);
}

TEST_F(Records, WritesCompanionsByTheirRules) {
  disc.extraInfo[1] = "LP";
  disc.extraInfo[13] = "la, la";
  disc.trackCount = 46;
  disc.trackTitles[46] = "Forty-sixth";
  disc.lyricsHigh[1] = "words";
  records.writeCdRecord();
  EXPECT_EQ(file("4"), blank(45) + "\"Forty-sixth\"\r\n" + blank(54));
  EXPECT_EQ(file("5"), "\"words\"\r\n" + blank(49));
  EXPECT_EQ(file("3"), "\"\"\r\n\"LP\"\r\n" + blank(11) + "\"la~ la\"\r\n" + blank(62));
  EXPECT_EQ(disc.extraInfo[13], "la~ la") << "held escaped until the next read";
  records.writeCdRecord();
  EXPECT_EQ(file("3").substr(54, 10), "\"la~ la\"\r\n") << "twice is as once";
  fresh();
  disc.trackTitles[1] = "old";
  records.readCdRecord();
  EXPECT_EQ(disc.extraInfo[13], "la, la");
  EXPECT_EQ(disc.trackTitles[46], "Forty-sixth");
  EXPECT_EQ(disc.trackTitles[1], "") << "the titles of .CD4 win";
  fresh();
  disc.extraInfo[1] = "Audio CD";
  disc.extraInfo[5] = "\t\x01";
  files.files.clear();
  records.writeCdRecord();
  EXPECT_EQ(file("3"), "absent") << "control characters alone are blank";
}

TEST_F(Records, KeepsAnyScriptBesideTheFamily) {
  disc.discTitle = "\xE6\x97\xA5\xE6\x9C\xAC, ~\n\ttab\\";
  disc.discArtist =
      "\xC5\x81\xC3\xB3"
      "d\xC5\xBA";
  disc.extraInfo[13] = "\xD0\x96, \xD0\x96";
  disc.extraInfo[1] = "Audio CD";
  for (int saves = 0; saves < 2; ++saves) records.writeCdRecord();
  EXPECT_NE(file("").find("\"L\xF3"
                          "dz\""),
            std::string::npos);
  const std::string title = disc.discTitle;
  const std::string artist = disc.discArtist;
  fresh();
  records.readCdRecord();
  EXPECT_EQ(disc.discTitle, title);
  EXPECT_EQ(disc.discArtist, artist);
  EXPECT_EQ(disc.extraInfo[13], "\xD0\x96, \xD0\x96");
  // Another program of the family changes the artist: that wins over what we kept.
  std::string& main = files.files["/DATA/DATACD/00012345.CD"];
  main.replace(main.find("L\xF3"
                         "dz"),
               4, "Lima");
  fresh();
  records.readCdRecord();
  EXPECT_EQ(disc.discArtist, "Lima");
  EXPECT_EQ(disc.discTitle, title);
  disc.discTitle = disc.discArtist = "plain";
  disc.extraInfo[13] = "";
  records.writeCdRecord();
  EXPECT_FALSE(files.exists("/data/datacd/00012345.utf8"));
}

TEST_F(Records, ReadsWhatHandsMakeOfThem) {
  files.files["/DATA/DATACD/00012345.CD"] = "Title typed\nArtist, with a comma\r\n";
  disc.trackTitles[7] = "kept";
  records.readCdRecord();
  EXPECT_EQ(disc.discTitle, "Title typed");
  EXPECT_EQ(disc.discArtist, "Artist");
  EXPECT_EQ(disc.linerNotes, "with a comma");
  EXPECT_EQ(disc.trackTitles[7], "kept") << "behind the end of a short file fields keep what they hold";
  files.files["/DATA/DATACD/00012345.CD3"] = "5\r\n\r\n";
  records.readCdRecord();
  EXPECT_EQ(disc.extraInfo[0] + disc.extraInfo[1], "5Audio CD");
}

TEST_F(Records, TimeCorrectionAndProgram) {
  EXPECT_EQ(records.readTimeCorrection(), 0);
  disc.timeCorrection = -2;
  EXPECT_TRUE(records.writeTimeCorrection());
  EXPECT_EQ(file("1"), blank(42) + "-2\r\n");
  EXPECT_EQ(records.readTimeCorrection(), -2);
  files.files["/DATA/DATACD/00012345.CD1"] = blank(42) + "999\r\n";
  EXPECT_EQ(records.readTimeCorrection(), 5);
  EXPECT_FALSE(records.readProgram());
  EXPECT_TRUE(records.writeProgram({3, 3}));
  std::string lines = "3\r\n3\r\n";
  for (int i = 2; i < 100; ++i) lines += "0\r\n";
  EXPECT_EQ(file("2"), lines);
  files.files["/DATA/DATACD/00012345.CD2"] = "2,x\r\n-4\r\n99999999999999999999\r\n\"7\"";
  EXPECT_EQ(records.readProgram(), (std::vector<int>{2, 0, 0, 0, 7}));
  EXPECT_TRUE(records.deleteProgram());
  EXPECT_FALSE(records.readProgram());
}

TEST_F(Records, AFullDiskLosesNothing) {
  disc.discTitle = "Old";
  disc.extraInfo[1] = "LP";
  records.writeCdRecord();
  const std::string before = file("");
  files.full = true;
  disc.discTitle = "New";
  EXPECT_FALSE(records.writeCdRecord());
  EXPECT_EQ(file(""), before);
}

}  // namespace
}  // namespace orvanta::test
