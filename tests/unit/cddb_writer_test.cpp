// Records as they are submitted: byte for byte, shortened by steps, and read back by our own parser.
#include "cddb/record_writer.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

#include "base/text.h"
#include "cddb/disc_record.h"
#include "cddb/plain_ascii.h"
#include "tests/support/cddb_data.h"
#include "tests/support/script_words.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

const TocFrames kDiscA{{150, 18627, 41002}, 812};

Submission submissionOfA() { return {"1f032a03", "Some Artist", "Some Title", "", "", "", {"One", "Two", "Three"}, {}}; }

std::string written(const Submission& disc) { return writeRecord(disc, kDiscA).value_or("none"); }

/// The lines that begin so, without their line ends, joined by "|".
std::string linesThat(const std::string& record, const std::string& start) {
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
  expectAnswers("answers/submissions.txt", [](const std::string& line) {
    Submission disc = submissionOfA();
    const std::map<std::string, std::string*> texts = {
        {"artist", &disc.artist}, {"title", &disc.title}, {"notes", &disc.notes}, {"label", &disc.label}, {"composer", &disc.composer}};
    std::string key;
    for (const Word& word : wordsOf(line)) {
      if (const auto text = texts.find(word.verb); text != texts.end()) *text->second = word.value;
      if (word.verb == "track") disc.titles[0] = word.value;
      if (word.verb == "words") disc.texts.push_back(word.value);
      if (word.verb == "shows") key = word.value;
    }
    return linesThat(written(disc), key);
  });
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
  EXPECT_EQ(linesThat(slices, "EXTT0=").substr(0, 72), words.substr(0, 70) + "\\n");
  EXPECT_EQ(linesThat(of(20, words), "EXTT0="), words.substr(0, 70) + "\\n");
  EXPECT_EQ(linesThat(of(100, words), "EXTT0="), "");
  for (const size_t tracks : {10, 12, 20, 100}) EXPECT_LE(of(tracks, words).size(), 8000U + 12) << tracks;
  size_t longest = 0;
  for (size_t length = 300; length < 700; ++length) longest = std::max(longest, of(12, words.substr(0, length % words.size())).size());
  EXPECT_LE(longest, 8000U + 12);
  EXPECT_GT(longest, 7900U) << "no step comes too early";
}

/// What a record tells; its tracks so many times over, and the text of each.
Submission submissionOf(const DiscRecord& record, size_t tracks = 1, size_t texts = 1) {
  const Naming naming = namingOf(record.title);
  Submission disc{"1f032a03", naming.artist, naming.title, record.notes, "", "", {}, {}};
  for (size_t i = 0; i < record.count * tracks; ++i) {
    const size_t track = i % record.count + 1;
    disc.titles.push_back(record.titles[track]);
    disc.texts.emplace_back();
    for (size_t each = 0; each < texts; ++each) disc.texts.back() += record.extended[track];
  }
  return disc;
}

TEST(CddbWriter, WritesRealDiscsAsKept) {
  // "069x9x40" is the disc of that record with its tracks nine times over and forty times their texts: too long to go along whole.
  const auto kept = cddbNames("written");
  EXPECT_EQ(kept.size(), 12U);
  for (const std::string& path : kept) {
    const std::string name = path.substr(path.rfind('/') + 1, path.rfind('.') - path.rfind('/') - 1);
    size_t tracks = 1;
    size_t texts = 1;
    std::sscanf(name.c_str(), "%*3cx%zux%zu", &tracks, &texts);
    DiscRecord record;
    readRecord(cddbData("records/" + name.substr(0, 3) + ".xmcd"), kHttpRoad, record);
    const Submission disc = submissionOf(record, tracks, texts);
    TocFrames toc{{}, 240 * static_cast<int64_t>(disc.titles.size())};
    for (size_t track = 0; track < disc.titles.size(); ++track) toc.offsets.push_back(150 + 18000 * static_cast<int64_t>(track));
    EXPECT_EQ(writeRecord(disc, toc), cddbData(path)) << name;
  }
}

TEST(CddbWriter, WritesWhatOurOwnParserReads) {
  for (const std::string& name : cddbNames("records")) {
    DiscRecord record;
    readRecord(cddbData(name), kHttpRoad, record);
    if (!record.tellsAnything()) continue;
    DiscRecord back;
    const std::string bytes = written(submissionOf(record));
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
