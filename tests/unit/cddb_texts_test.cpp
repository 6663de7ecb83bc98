// What goes to servers and what comes back, before any record: tables of contents, replies, matches, settings, lists.
#include <gtest/gtest.h>

#include <map>

#include "cddb/matches.h"
#include "cddb/reply_shaper.h"
#include "cddb/toc_text.h"
#include "cddb/wire_text.h"
#include "state/cddb_settings.h"
#include "state/server_list.h"
#include "tests/support/cddb_data.h"
#include "tests/support/fakes.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

std::string tocOfLengths(const std::vector<std::string>& lengths, const std::vector<int32_t>& frames, char separator = ' ') {
  return tocText({static_cast<int>(lengths.size()) - 1, lengths, frames}, separator);
}

TEST(CddbToc, TellsOffsetsAndSeconds) {
  const std::vector<std::string> lengths{"", "4:06", "4:58", "4:25"};
  EXPECT_EQ(tocOfLengths(lengths, {150, 27, 25, 22}), "3 150 18627 41002 812");
  EXPECT_EQ(tocOfLengths(lengths, {150, 27, 25, 22}, '+'), "3+150+18627+41002+812");
  EXPECT_EQ(tocOfLengths({"", " 1:00 "}, {150, 73}), "1 150 62") << "150 + 4500 + 73 frames lack two of 63 seconds";
  EXPECT_EQ(tocOfLengths({"", "1:00"}, {150, 74}), "1 150 63") << "and with one more, the added frame makes it whole";
  EXPECT_EQ(tocOfLengths({"", "1:02:03", "0:10"}, {0}), "2 0 279225 3733") << "an hour, and frames that are not known";
  EXPECT_EQ(tocOfLengths({"", "75:10"}, {0, 0}), "1 0 4510") << "over an hour in minutes";
  EXPECT_EQ(tocText({3, {}, {}}, ' '), "3 0 0 0 0");
  EXPECT_EQ(tocText({-1, {}, {}}, ' '), "0 0");
  EXPECT_EQ(tocFrames({30000, {}, {}}).offsets.size(), 100U);
}

TEST(CddbToc, TakesTheIdOutOfTheReply) {
  expectAnswers("answers/ids.txt", discIdOf);
  EXPECT_EQ(discIdOf("500 Command syntax error: incorrect number of arguments.\r\n"), kTableRefused);
}

TEST(CddbWire, KeepsControlsAndStraysOut) {
  EXPECT_EQ(toWire(" user\r\nquit\x01 "), "user  quit");
  EXPECT_EQ(toWire("J\xC3\xBCrg"), "J\xFCrg");
  EXPECT_EQ(fromWire("\xEF\xBB\xBF"
                     "caf\xC3\xA9"),
            "caf\xC3\xA9");
  EXPECT_EQ(fromWire("caf\xE9"), "caf\xC3\xA9");
  EXPECT_EQ(replyCode("?200 ok"), 0);
  EXPECT_EQ(replyCode("211 Found"), 211);
  EXPECT_EQ(replyCode("99999999999"), 999);
  EXPECT_EQ(replyCode(""), 0);
}

// ---- the shaper

/// What comes out of bytes that arrive in pieces of `size`.
Tape shaped(std::string_view bytes, Shape shape, size_t size) {
  ReplyShaper shaper;
  Tape out;
  for (size_t at = 0; at < bytes.size(); at += size) {
    EXPECT_TRUE(shaper.take(bytes.substr(at, size)));
    while (const auto reply = shaper.next(shape)) out.push_back(*reply);
  }
  return out;
}

TEST(CddbShaper, GivesTheSameRepliesHoweverTheyArrive) {
  const std::map<std::string, Shape> shapes = {{"line", Shape::Line}, {"reply", Shape::Reply}, {"mail", Shape::Mail}};
  expectAnswers("answers/shaper.txt", [&](const std::string& question) {
    const auto blank = question.find(' ');
    const Shape shape = shapes.at(question.substr(0, blank));
    const std::string bytes = question.substr(blank + 1);
    const Tape replies = shaped(bytes, shape, bytes.size());
    for (size_t size = 1; size < bytes.size(); ++size) EXPECT_EQ(shaped(bytes, shape, size), replies) << bytes << size;
    std::string told;
    for (const std::string& reply : replies) told += "[" + reply + "]\n";
    return told;
  });
}

TEST(CddbShaper, RefusesAReplyWithoutEnd) {
  ReplyShaper shaper;
  EXPECT_TRUE(shaper.take("210 entry\r\n" + std::string(ReplyShaper::kMost - 11, 'x')));
  EXPECT_FALSE(shaper.take("x"));
  EXPECT_TRUE(shaper.take("201 afresh\r\n"));
  EXPECT_EQ(shaper.next(Shape::Line), "201 afresh\r\n");
}

// ---- matches

const std::string kGap(100, ' ');

TEST(CddbMatches, TakesWhateverCountsAsAReply) {
  expectAnswers("answers/matches.txt", [](const std::string& reply) {
    std::string told;
    for (const std::string& row : readQueryReply(reply, kCddbpRoad).rows) {
      EXPECT_LE(matchOfRow(row).discId.size(), 8U) << row;
      const auto gap = row.find(kGap);
      told += (gap == std::string::npos ? row : row.substr(0, gap) + " ... " + row.substr(gap + kGap.size())) + "\n";
    }
    return told;
  });
  std::string many = "211 list\r\n";
  for (int i = 0; i < 10000; ++i) many += "misc 940c700b Title\r\n";
  const QueryReply reply = readQueryReply(many + ".\r\n", kCddbpRoad);
  EXPECT_EQ(reply.total, 10000U);
  EXPECT_EQ(reply.rows.size(), 500U);
  EXPECT_EQ(readQueryReply(many + ".\r\n", kHttpRoad).rows.size(), 100U);
}

// ---- settings and lists

TEST(CddbSettings, AreReadAndWrittenFieldByField) {
  FakeFiles files;
  CddbSettings settings;
  EXPECT_FALSE(readCddbSettings(files, "/data", settings));
  files.write(
      "/data/cddbol.dat",
      "\"host\"\r\n\"Site, Town\"\r\n8880\r\n\"user\"\r\n\"domain\"\r\n\"proxyuser\"\r\n1\r\n0\r\n\"proxy:3128\"\r\n\"secret\"\r\n");
  files.write("/data/cddbml.dat", "\"\"\r\n\"submit@x\"\r\n\"mail.x\"\r\n10000\r\n\"\"\r\n");
  EXPECT_TRUE(readCddbSettings(files, "/data", settings));
  EXPECT_TRUE(readMailSettings(files, "/data", settings));
  EXPECT_EQ(settings.cddbSiteName + settings.emailUser + settings.emailDomain, "Site, Townuserdomain");
  EXPECT_TRUE(settings.useCddbp && !settings.autoConnect && settings.complete());
  EXPECT_EQ(mailPort(settings.smtpPort), 25);
  EXPECT_EQ(mailPort(9999), 9999);
  EXPECT_EQ(mailPort(0), 25);
  const auto before = files.files;
  EXPECT_TRUE(writeCddbSettings(files, "/data", settings) && writeMailSettings(files, "/data", settings));
  EXPECT_EQ(files.files, before);
  for (const auto& lacking : {&CddbSettings::cddbServer, &CddbSettings::emailUser, &CddbSettings::emailDomain}) {
    CddbSettings less = settings;
    less.*lacking = " ";
    EXPECT_FALSE(less.complete());
  }
  settings.cddbPort = 0;
  EXPECT_FALSE(settings.complete());
}

TEST(CddbSettings, OfAFreshFolderLackOnlyTheAddress) {
  FakeFiles files;
  EXPECT_TRUE(writeMissingCddbFiles(files, "/data"));
  CddbSettings settings;
  EXPECT_TRUE(readCddbSettings(files, "/data", settings));
  EXPECT_TRUE(settings.useCddbp && settings.autoConnect && !settings.complete());
  settings.emailUser = settings.emailDomain = "x";
  EXPECT_TRUE(settings.complete());
  const std::vector<Site> cddbp = ServerLists(files, "/data").load(true);
  EXPECT_EQ(cddbp, (std::vector<Site>{{settings.cddbServer, settings.cddbPort, settings.cddbSiteName}}));
  const std::vector<Site> http = ServerLists(files, "/data").load(false);
  EXPECT_EQ(http, (std::vector<Site>{{"http://gnudb.gnudb.org/~cddb/cddb.cgi", 80, "gnudb.org, HTTP"}}));
  files.write("/data/datacd/srvhttp.txt", "mine 80 x");
  writeCddbSettings(files, "/data", {});
  EXPECT_TRUE(writeMissingCddbFiles(files, "/data"));
  EXPECT_EQ(files.read("/data/datacd/srvhttp.txt"), "mine 80 x") << "what is there stays";
  files.full = true;
  EXPECT_FALSE(writeMissingCddbFiles(files, "/other"));
}

TEST(CddbServers, AreReadFromAnyList) {
  expectAnswers("answers/servers.txt", [](const std::string& list) {
    std::string told;
    for (const Site& site : readSites(list)) told += site.siteHost + " | " + std::to_string(site.sitePort) + " | " + site.siteName + "\n";
    return told;
  });
  std::string many;
  for (int i = 0; i < 300; ++i) many += "a.b 888 x\n";
  EXPECT_EQ(readSites(many).size(), 250U);
}

TEST(CddbServers, FallBackToTheBackupAndThenToTheKnownOne) {
  const Site known{"gnudb.gnudb.org", 888, "Random US Site"};
  const Site kept{"kept.b", 888, "kept"};
  const std::string text = "/data/datacd/srvcddbp.txt";
  const std::string backup = "/data/datacd/srvcddbp.bak";
  const auto first = [&](const char* list, const char* bak) {
    FakeFiles files;
    if (list != nullptr) files.write(text, list);
    if (bak != nullptr) files.write(backup, bak);
    return ServerLists(files, "/data").load(true).front();
  };
  EXPECT_EQ(first(nullptr, nullptr), known);
  EXPECT_EQ(first("", "kept.b 888 kept"), kept);
  EXPECT_EQ(first(nullptr, "kept.b 888 kept"), kept);
  EXPECT_EQ(first("x 1 spoiled", "kept.b 888 kept"), kept);
  EXPECT_EQ(first("x 1 spoiled", nullptr), known);
  EXPECT_EQ(first("a.b 888", "kept.b 888 kept"), known) << "a host without a name";

  FakeFiles files;
  files.write(text, "old.b 888 old");
  files.write(backup, "older.b 888 older");
  ServerLists lists(files, "/data");
  lists.beginUpdate();
  EXPECT_FALSE(files.exists(text));
  lists.giveUpUpdate();
  EXPECT_EQ(lists.load(true).front().siteName, "old");
  lists.beginUpdate();
  EXPECT_TRUE(lists.finishUpdate("new.b 888 new\r\n"));
  EXPECT_EQ(lists.load(true).front().siteName, "new");
  EXPECT_EQ(files.read(backup), "old.b 888 old");
  files.full = true;
  lists.beginUpdate();
  EXPECT_EQ(files.read(text), "new.b 888 new\r\n") << "a list that cannot be put aside stays";
}

}  // namespace
}  // namespace orvanta::test
