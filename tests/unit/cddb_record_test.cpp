// Records of real servers, read by both roads.
#include "cddb/disc_record.h"

#include <gtest/gtest.h>

#include "base/code_page.h"
#include "tests/support/cddb_data.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

DiscRecord read(std::string_view bytes, const Road& road) {
  DiscRecord record;
  readRecord(bytes, road, record);
  return record;
}

std::string bothRoads(const std::string& bytes) {
  return "== CDDBP\n" + told(read(bytes, kCddbpRoad)) + "== HTTP\n" + told(read(bytes, kHttpRoad));
}

/// Titles that a record's keys tell of, which end its reading at the latest.
size_t titleLines(const std::string& bytes) {
  size_t count = 0;
  for (auto at = bytes.find("\nTTITLE"); at != std::string::npos; at = bytes.find("\nTTITLE", at + 1)) ++count;
  return count;
}

TEST(CddbRecord, ReadsTenRecordsAsKept) {
  const auto kept = cddbNames("golden");
  ASSERT_EQ(kept.size(), 10U);
  for (const std::string& golden : kept) {
    const std::string name = golden.substr(golden.rfind('/') + 1);
    const std::string folder = name[0] == '0' ? "records/" : "made/";
    EXPECT_EQ(bothRoads(cddbData(folder + name.substr(0, name.size() - 4) + ".xmcd")), cddbData(golden)) << name;
  }
}

TEST(CddbRecord, TakesEveryRecordByBothRoads) {
  size_t records = 0;
  for (const char* folder : {"records", "made"}) {
    for (const std::string& name : cddbNames(folder)) {
      ++records;
      const std::string bytes = cddbData(name);
      const DiscRecord http = read(bytes, kHttpRoad);
      EXPECT_TRUE(isUtf8(told(http))) << name;
      EXPECT_TRUE(isUtf8(told(read(bytes, kCddbpRoad)))) << name;
      EXPECT_EQ(told(http).find('\0'), std::string::npos) << name;
      // Over HTTP nothing but the record's end stops the reader: each title arrives, continued ones as one.
      const bool whole = bytes.find("DTITLE=") != std::string::npos && bytes.find("\nTTITLE0=") < bytes.find("\nPLAYORDER");
      if (whole && name.find("huge") == std::string::npos) {
        EXPECT_GE(titleLines(bytes), http.count) << name;
        EXPECT_FALSE(http.titles[1].empty() && http.count > 1 && name.find("empty") == std::string::npos) << name;
        EXPECT_FALSE(http.title.empty()) << name;
      }
      // As servers send it, with CR LF, a first line and a dot, it is the same record.
      std::string sent = "210 misc 940c700b CD database entry follows\r\n";
      for (const char c : bytes) sent += c == '\n' && sent.back() != '\r' ? std::string("\r\n") : std::string(1, c);
      EXPECT_EQ(told(read(sent + "\r\n.\r\n", kHttpRoad)), told(http)) << name;
    }
  }
  EXPECT_EQ(records, 94U);
}

TEST(CddbRecord, ReadsWhatServersAndHandsMakeOfIt) { expectAnswers("answers/records.txt", bothRoads); }

TEST(CddbRecord, HoldsAHundredTracks) {
  std::string bytes = "DTITLE=A\n";
  for (int track = 0; track < 120; ++track)
    bytes += "TTITLE" + std::to_string(track) + "=t" + std::to_string(track) + "\nTTITLE" + std::to_string(track) + "=+\n";
  const DiscRecord record = read(bytes, kCddbpRoad);
  EXPECT_EQ(record.count, 100U);
  EXPECT_EQ(record.titles[1], "t0+");
  EXPECT_EQ(record.titles[10] + record.titles[11], "t9+t10+");
  EXPECT_EQ(record.titles[100], "t99+");
}

TEST(CddbRecord, AddsTheTextsOfASecondRetrieval) {
  DiscRecord record;
  readRecord("DTITLE=A\nTTITLE0=a\nTTITLE1=b\nEXTD=notes\nEXTT0=x", kCddbpRoad, record);
  readRecord("DTITLE=B\nTTITLE0=c\nEXTT0=y", kCddbpRoad, record);
  EXPECT_EQ(told(record), "[B]\n1 [c] (xy)\n");
}

TEST(CddbRecord, NamesAndDatesADisc) {
  for (const auto& [text, artist, title] : {std::tuple{" Some Artist / Some Title", "Some Artist", "Some Title"},
                                            {"AC/DC / Live / 1991", "AC", "DC / Live / 1991"},
                                            {" Only One ", "Only One", "Only One"},
                                            {"/ Title", "", "Title"},
                                            {"", "", ""}}) {
    EXPECT_EQ(namingOf(text).artist, artist);
    EXPECT_EQ(namingOf(text).title, title);
  }
  EXPECT_EQ(yearIn("Recorded 1850, released 1996", 2026), "1996");
  EXPECT_EQ(yearIn("recorded 2027 to 2026", 2026), "2026");
  EXPECT_EQ(yearIn("1900", 2026), "");
  EXPECT_EQ(yearIn("199", 2026), "");
}

}  // namespace
}  // namespace orvanta::test
