// Records as they are submitted: byte for byte, shortened by steps, and read back by our own parser.
#include "cddb/record_writer.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "cddb/disc_record.h"
#include "cddb/plain_ascii.h"
#include "tests/support/cddb_data.h"

namespace orvanta::test {
namespace {

const TocFrames kDiscA{{150, 18627, 41002}, 812};

Submission submissionOfA() { return {"1f032a03", "Some Artist", "Some Title", "", "", "", {"One", "Two", "Three"}, {}}; }

std::string written(const Submission& disc) { return writeRecord(disc, kDiscA).value_or("none"); }

/// The lines that begin so, without their line ends, joined by "|".
std::string linesOf(const std::string& record, const std::string& start) {
  std::string found;
  for (const std::string& line : splitLines(record)) {
    if (line.rfind(start, 0) == 0) found += (found.empty() ? "" : "|") + line.substr(start.size());
  }
  return found;
}

TEST(CddbWriter, WritesADiscByteForByte) {
  const std::string record = written(submissionOfA());
  EXPECT_EQ(record,
            "# xmcd database file\r\n#\r\n# Track frame offsets:\r\n#150\r\n#18627\r\n#41002\r\n#\r\n# Disc length: 812 seconds\r\n"
            "# Submitted via: Orvanta 10.0\r\n#\r\nDISCID=1f032a03\r\nDTITLE=Some Artist / Some Title\r\nTTITLE0=One\r\nTTITLE1=Two\r\n"
            "TTITLE2=Three\r\nEXTD=\r\nEXTT0=\r\nEXTT1=\r\nEXTT2=\r\nPLAYORDER=\r\n");
  EXPECT_EQ(record.size(), 270U);
  for (const char* id : {"", "1f032a0", "1f032a033", "ta 10.0.", "00000000", "1f032a0.", "1f03\r\n03"}) {
    Submission disc = submissionOfA();
    disc.discId = id;
    EXPECT_EQ(written(disc), "none") << id;
  }
}

TEST(CddbWriter, CutsAndWrapsLongTexts) {
  const auto x = [](size_t count) { return std::string(count, 'x'); };
  const struct {
    const char* what;
    void (*change)(Submission&);
    const char* key;
    std::string lines;
  } cases[] = {
      {"a title of 70 with its key", [](Submission& d) { d.artist = std::string(50, 'a'), d.title = std::string(10, 't'); },
       "DTITLE=", std::string(50, 'a') + " / " + std::string(10, 't')},
      {"and one more",
       [](Submission& d) { d.artist = "A very long artist name that fills", d.title = "And a long title that goes past it"; },
       "DTITLE=", "A very long artist name that fills / And a long title that goes| past it"},
      {"a track's title", [](Submission& d) { d.titles[0] = std::string(69, 'x') + " y"; }, "TTITLE0=", x(69)},
      {"notes without a blank", [](Submission& d) { d.notes = std::string(150, 'x'); }, "EXTD=", x(70) + "|\\n" + x(70) + "|\\n" + x(10)},
      {"notes of 69, and of 70", [](Submission& d) { d.notes = std::string(69, 'x'); }, "EXTD=", x(69)},
      {"a blank behind the 70th", [](Submission& d) { d.notes = std::string(70, 'x') + " yy"; }, "EXTD=", x(70) + "|\\nyy"},
      {"a blank in the midst", [](Submission& d) { d.notes = std::string(60, 'x') + " " + std::string(20, 'y'); },
       "EXTD=", x(60) + "|\\n" + std::string(20, 'y')},
      {"short lines; the last has no break", [](Submission& d) { d.notes = "one\r\ntwo\nthree"; }, "EXTD=", "one|\\ntwo"},
      {"one line too long: all is wrapped, the rest too", [](Submission& d) { d.notes = "one\r\n" + std::string(70, 'x') + "\r\nlast"; },
       "EXTD=", "one|\\n" + x(70) + "|\\n  last"},
      {"a label", [](Submission& d) { d.label = std::string(80, 'l'), d.composer = "Bach"; }, "EXTD=", std::string(71, 'l') + "|\\nBach"},
      {"a label too short", [](Submission& d) { d.label = "EMI"; }, "EXTD=", ""},
      {"a composer alone leaves the bare line", [](Submission& d) { d.composer = "Bach"; }, "EXTD=", "Bach|"},
      {"a text of 68, and of 69",
       [](Submission& d) {
         d.texts = {std::string(68, 'x'), std::string(69, 'x')};
       },
       "EXTT", "0=" + x(68) + "\\n|1=" + x(69) + "\\n|2="},
      {"a text that is wrapped", [](Submission& d) { d.texts = {std::string(75, 'x')}; }, "EXTT0=", x(70) + "\\n|" + x(5) + "\\n"},
      {"nothing breaks a line", [](Submission& d) { d.titles[0] = "a\r\n.\r\nb", d.texts = {"x\r\n.\r\ny\001"}; }, "TTITLE0=", "a  .  b"},
      {"letters beyond ASCII",
       [](Submission& d) {
         d.titles[0] =
             "Stra\xC3\x9F"
             "e \xE2\x80\x93 \xC3\x89\xE5\x9D\x82\x7F";
       },
       "TTITLE0=", "Strasse - E??"},
  };
  for (const auto& each : cases) {
    Submission disc = submissionOfA();
    each.change(disc);
    EXPECT_EQ(linesOf(written(disc), each.key), each.lines) << each.what;
  }
}

TEST(CddbWriter, ShortensByStepsAtEightThousandCharacters) {
  const auto of = [](size_t tracks, const std::string& text) {
    Submission disc{"1f032a03", "A", "T", "", "", "", std::vector<std::string>(tracks, "t"), std::vector<std::string>(tracks, text)};
    return writeRecord(disc, {std::vector<int64_t>(tracks, 150), 1}).value_or("none");
  };
  // From a text of which each step just fits to one of which it does not.
  const std::string words = [] {
    std::string text;
    while (text.size() < 600) text += "wordword ";
    return text;
  }();
  EXPECT_NE(of(10, words).find("EXTT0=" + words.substr(0, 62) + "\\n\r\n"), std::string::npos) << "wrapped at blanks";
  const std::string slices = of(12, words);
  EXPECT_EQ(linesOf(slices, "EXTT0=").substr(0, 72), words.substr(0, 70) + "\\n");
  EXPECT_EQ(linesOf(of(20, words), "EXTT0="), words.substr(0, 70) + "\\n");
  EXPECT_EQ(linesOf(of(100, words), "EXTT0="), "");
  for (const size_t tracks : {10, 12, 20, 100}) EXPECT_LE(of(tracks, words).size(), 8000U + 12) << tracks;
  size_t longest = 0;
  for (size_t length = 300; length < 700; ++length) longest = std::max(longest, of(12, words.substr(0, length % words.size())).size());
  EXPECT_LE(longest, 8000U + 12);
  EXPECT_GT(longest, 7900U) << "no step comes too early";
}

TEST(CddbWriter, WritesWhatOurOwnParserReads) {
  for (const std::string& name : cddbNames("records")) {
    DiscRecord record;
    readRecord(cddbData(name), kHttpRoad, record);
    if (!record.tellsAnything()) continue;
    const Naming naming = namingOf(record.title);
    Submission disc{"1f032a03", naming.artist, naming.title, "", "", "", {}, {}};
    for (size_t track = 1; track <= record.count; ++track) disc.titles.push_back(record.titles[track]);
    DiscRecord back;
    const std::string bytes = written(disc);
    readRecord(bytes, kHttpRoad, back);
    ASSERT_EQ(back.count, record.count) << name;
    for (size_t track = 1; track <= record.count; ++track) {
      EXPECT_EQ(back.titles[track], trim(plainAscii(trim(record.titles[track])).substr(0, 70))) << name;
    }
    for (const char c : bytes) EXPECT_TRUE(c == '\r' || c == '\n' || (c >= ' ' && c <= '~')) << name;
  }
}

}  // namespace
}  // namespace orvanta::test
