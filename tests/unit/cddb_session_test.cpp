// Conversations as they were recorded, on the virtual clock; then cut, dripped, refused and dropped.
#include "cddb/session.h"

#include <gtest/gtest.h>

#include "cddb/reply_shaper.h"
#include "tests/support/fake_net.h"

namespace orvanta::test {
namespace {

/// A disc with these starts in frames, that lasts so many seconds.
struct Disc {
  Disc(std::vector<int64_t> starts, int64_t seconds) {
    frames.push_back(static_cast<int32_t>(starts.front()));
    lengths.emplace_back();
    // The frame that a table of contents adds to the whole stands aside.
    starts.push_back(seconds * 75 - 1);
    for (size_t i = 1; i < starts.size(); ++i) {
      const int64_t length = starts[i] - starts[i - 1];
      frames.push_back(static_cast<int32_t>(length % 75));
      lengths.push_back(minutesSeconds(static_cast<int>(length / 75)));
    }
  }
  static std::string minutesSeconds(int seconds) { return std::to_string(seconds / 60) + ":" + padded(seconds % 60, 2); }
  TrackTable table() const { return {static_cast<int>(lengths.size()) - 1, lengths, frames}; }
  std::vector<std::string> lengths;
  std::vector<int32_t> frames;
};

const Disc kEleven({150, 25075, 46501, 70596, 88533, 105910, 125169, 147365, 162906, 190441, 215174}, 3186);
const Disc kElevenLater({150, 25175, 46601, 70696, 88633, 106010, 125269, 147465, 163006, 190541, 215274}, 3187);
const Disc kThree({150, 5000, 12000}, 812);

Disc ninetyNine() {
  std::vector<int64_t> starts;
  for (int track = 0; track < 99; ++track) starts.push_back(150 + int64_t{3000} * track);
  return {starts, 3962};
}

/// Tapes what a session tells, and goes on as a person would with the first match.
struct Watcher : SessionEvents {
  void sessionStatus(const std::string& text) override { tell("- " + text); }
  void discIdKnown(const std::string& discId) override { tell("id " + discId); }
  void tableRefused(const std::string& serverLine) override { tell("table refused: " + serverLine); }
  void discNotFound(const std::string& serverLine) override { tell("not found: " + serverLine); }
  void matchesFound(const QueryReply& reply) override {
    tell(std::string(reply.found == Found::Exact ? "exact " : "inexact ") + std::to_string(reply.total));
    if (session != nullptr && !reply.rows.empty()) session->retrieve(matchOfRow(reply.rows.front()));
  }
  void recordArrived(const std::string& bytes) override {
    record = bytes;
    tell("record");
  }
  void sitesArrived(const std::string& list) override { tell("sites " + list); }
  void nothingArrived() override { tell("nothing"); }
  void sessionFailed(const std::string& reason) override { tell("failed: " + reason); }

  void tell(const std::string& what) {
    tape.push_back(what);
    if (tape.size() == dropAt) session.reset();
  }
  /// What it said apart from its status.
  Tape said() const {
    Tape all;
    for (const auto& each : tape) {
      if (each[0] != '-') all.push_back(each);
    }
    return all;
  }

  std::unique_ptr<Session> session;
  Tape tape;
  std::string record;
  size_t dropAt = 0;  ///< the session is dropped as it tells of so many things
};

struct Conversation {
  explicit Conversation(std::vector<Exchanged> script) { net.script = std::move(script); }
  void run(const Disc& disc, Purpose purpose = Purpose::Lookup, int64_t milliseconds = 60000) {
    watcher.session = startSession(net, settings, disc.table(), purpose, watcher);
    clock.advance(milliseconds);
  }
  CoreGate gate;
  VirtualClock clock{gate};
  FakeNet net{clock};
  CddbSettings settings{.cddbServer = "server",
                        .cddbSiteName = "",
                        .cddbPort = 8880,
                        .emailUser = "user",
                        .emailDomain = "domain",
                        .proxyUser = "",
                        .useCddbp = true,
                        .autoConnect = false,
                        .proxyServer = "",
                        .proxyPassword = "",
                        .submitAddress = "",
                        .smtpServer = "",
                        .smtpPort = 0};
  Watcher watcher;
};

/// What the recorded client sent, from the first to the last line that ours sends too.
Tape askedIn(const std::vector<Exchanged>& script, size_t count) {
  Tape asked;
  for (size_t i = 1; i <= count; ++i) asked.push_back(script.at(i).asked);
  return asked;
}

/// Connected, and then these.
Tape connectedAnd(Tape sent, const Tape& after = {}) {
  sent.insert(sent.begin(), "connect server 8880");
  sent.insert(sent.end(), after.begin(), after.end());
  return sent;
}

const Tape kFound{"exact 1", "record"};

TEST(CddbpSession, SpeaksAsRecordedHoweverRepliesArrive) {
  const auto script = recording("01-exact");
  for (const size_t piece : {0, 1, 2, 7, 1000}) {
    Conversation talk(script);
    talk.net.piece = piece;
    talk.run(kEleven);
    EXPECT_EQ(talk.net.tape, connectedAnd(askedIn(script, 4))) << piece;
    EXPECT_EQ(talk.watcher.said(), kFound) << piece;
    EXPECT_EQ(talk.watcher.record, script[4].answered);
  }
  Conversation talk(script);
  talk.run(kEleven);
  EXPECT_EQ(talk.watcher.tape,
            (Tape{"- Connected to CDDB Server", "- Checking Disc ID...", "- Querying CDDB Server...", "exact 1", "record"}));
  talk.watcher.session->leave();
  EXPECT_EQ(talk.net.tape, connectedAnd(askedIn(script, 4), {"quit\r\n", "drop"}));
}

TEST(CddbpSession, FollowsWhatServersAnswer) {
  auto none = recording("03-none");
  none[3].asked = "cddb query 15032a03 3 150 5000 12000 812\r\n";
  auto refused = recording("03-none");
  refused[2].answered = "500 Command syntax error: incorrect number of arguments.\r\n";
  auto odd = recording("03-none");
  odd[2].answered = "500 Command syntax error.\r\n";
  odd[3].asked = "cddb query x error. 3 150 5000 12000 812\r\n";
  odd[3].answered = "500 Command syntax error.\r\n";
  auto lineFeeds = recording("40-freedbd01");
  lineFeeds[2] = {"discid 3 150 5000 12000 812\r\n", "200 Disc ID is 1234abcd\n", false};
  lineFeeds[3].asked = "cddb query 1234abcd 3 150 5000 12000 812\r\n";
  lineFeeds[4].asked = "cddb read cd 1234abcd\r\n";
  const auto many = ninetyNine();
  const struct {
    const char* what;
    std::vector<Exchanged> script;
    const Disc& disc;
    Purpose purpose;
    size_t asked;  ///< lines of the script that are sent
    Tape sentAfter;
    Tape said;
  } cases[] = {
      {"two matches; one is picked, of which the recording knows nothing",
       recording("02-inexact"),
       kElevenLater,
       Purpose::Lookup,
       3,
       {"cddb read data 940c700b\r\n"},
       {"inexact 2"}},
      {"none", none, kThree, Purpose::Lookup, 3, {"drop"}, {"not found: "}},
      {"a hundred tracks less one", recording("17-99tracks"), many, Purpose::Lookup, 4, {}, kFound},
      {"a banner that refuses", recording("11-denied"), kThree, Purpose::Lookup, 1, {"drop"}, {"failed: 432 Unauthorized host: localhost"}},
      {"a hello that is refused",
       recording("12-badclient"),
       kThree,
       Purpose::Lookup,
       1,
       {"drop"},
       {"failed: 433 Unauthorized client: Orvanta 10.0"}},
      {"a table that is refused; the line stays open",
       refused,
       kThree,
       Purpose::Lookup,
       2,
       {},
       {"table refused: 500 Command syntax error: incorrect number of arguments."}},
      {"a refusal taken for an id ends unfound", odd, kThree, Purpose::Lookup, 3, {"drop"}, {"not found: 500 Command syntax error."}},
      {"line feeds alone", lineFeeds, kThree, Purpose::Lookup, 4, {}, kFound},
      {"an id for a submission", none, kThree, Purpose::DiscId, 2, {}, {"id 15032a03"}},
      {"no list of servers",
       recording("16-nosites"),
       kThree,
       Purpose::Sites,
       1,
       {"sites \r\n", "drop"},
       {"failed: 401 No site information available."}},
  };
  for (const auto& each : cases) {
    Conversation talk(each.script);
    for (Exchanged& line : talk.net.script) {
      if (line.asked == "sites\r\n") line.asked = "sites \r\n";
    }
    talk.run(each.disc, each.purpose);
    EXPECT_EQ(talk.net.tape, connectedAnd(askedIn(each.script, each.asked), each.sentAfter)) << each.what;
    EXPECT_EQ(talk.watcher.said(), each.said) << each.what;
  }
}

TEST(CddbpSession, FetchesAListOfServers) {
  auto script = recording("01-exact");
  ASSERT_EQ(script[5].asked, "sites\r\n");
  script[5].asked = "sites \r\n";
  for (const size_t piece : {0, 1, 5}) {
    Conversation talk(script);
    talk.net.piece = piece;
    talk.run(kThree, Purpose::Sites);
    EXPECT_EQ(talk.watcher.said(), (Tape{"sites localhost 8880 N037.21 W121.55 Loopback test site\r\n"
                                         "mirror.example 888 S000.00 E000.00 A second cddbp site\r\n"}));
    EXPECT_EQ(talk.net.tape, connectedAnd({script[1].asked, "sites \r\n", "quit\r\n", "drop"}));
  }
  // A list whose first site was for another road comes without its first line.
  script[5].answered = "mirror.example 888 S000.00 E000.00 second\r\n.\r\n";
  Conversation talk(script);
  talk.run(kThree, Purpose::Sites);
  EXPECT_EQ(talk.watcher.said(), (Tape{"sites mirror.example 888 S000.00 E000.00 second\r\n"}));
  for (const auto& [answer, closes] : {std::pair{"210 OK\r\nlocalhost 8880 N1 W2 half a", true}, {"", true}}) {
    script[5] = {"sites \r\n", answer, closes};
    Conversation broken(script);
    broken.run(kThree, Purpose::Sites);
    EXPECT_EQ(broken.watcher.said(), (Tape{"failed: "}));
  }
}

TEST(CddbpSession, EndsOnceWhereverTheServerBreaksOff) {
  const auto script = recording("01-exact");
  size_t whole = 0;
  for (size_t i = 0; i <= 4; ++i) whole += script[i].answered.size();
  for (const auto end : {FakeNet::End::Close, FakeNet::End::Reset, FakeNet::End::Silence}) {
    for (size_t most = 0; most < whole; ++most) {
      Conversation talk(script);
      talk.net.most = most;
      talk.net.end = end;
      talk.run(kEleven, Purpose::Lookup, 1000);
      Tape said = talk.watcher.said();
      if (!said.empty() && said.front() == "exact 1") said.erase(said.begin());
      const Tape expected =
          end == FakeNet::End::Silence ? Tape{} : Tape{end == FakeNet::End::Close ? "failed: " : "failed: Connection reset by peer"};
      EXPECT_EQ(said, expected) << most;
      talk.watcher.session->leave();
      EXPECT_EQ(talk.net.tape.back(), "drop");
    }
  }
}

TEST(CddbpSession, AsksOnceForARecord) {
  Conversation talk(recording("01-exact"));
  talk.run(kEleven, Purpose::Lookup, 45);
  ASSERT_EQ(talk.net.tape.back(), "cddb query 940c700b 11 150 25075 46501 70596 88533 105910 125169 147365 162906 190441 215174 3186\r\n");
  talk.watcher.session->retrieve({"misc", "940c700b"});
  talk.clock.advance(1000);
  EXPECT_EQ(talk.watcher.said(), kFound) << "not while another reply is due";
}

TEST(CddbpSession, MissesNoConnectionThatIsNotNeeded) {
  auto script = recording("01-exact");
  script[4].closes = true;
  Conversation talk(script);
  talk.run(kEleven);
  EXPECT_EQ(talk.watcher.said(), kFound) << "closed behind the record";
  talk.watcher.session->retrieve({"misc", "940c700b"});
  EXPECT_EQ(talk.watcher.said().back(), "failed: ") << "another record would have needed it";
}

TEST(CddbpSession, GivesUpOnAnEndlessReplyAndOnNoServer) {
  auto script = recording("03-none");
  script[2].answered = std::string(ReplyShaper::kMost + 1, 'x');
  Conversation endless(script);
  endless.net.piece = 65536;
  endless.run(kThree);
  EXPECT_EQ(endless.watcher.said(), (Tape{"failed: The server's reply has no end."}));
  EXPECT_EQ(endless.net.tape.back(), "drop");
  Conversation nobody(script);
  nobody.net.refuses = true;
  nobody.run(kThree);
  EXPECT_EQ(nobody.watcher.tape, (Tape{"failed: Connection refused"}));
}

TEST(CddbSession, KeepsTypedLineBreaksOutOfItsCommands) {
  Conversation talk({{"", "201 ready\r\n", false}});
  talk.settings.emailUser = "user\r\nquit";
  talk.run(kThree);
  EXPECT_EQ(talk.net.tape.back(), "cddb hello user  quit domain Orvanta 10.0\r\n");
}

// ---- over HTTP

std::vector<Exchanged> posts(std::initializer_list<const char*> names) {
  std::vector<Exchanged> script;
  for (const char* name : names) script.push_back({requestOf(name), replyOf(name), false});
  return script;
}

struct HttpConversation : Conversation {
  explicit HttpConversation(std::vector<Exchanged> replies) : Conversation(std::move(replies)) {
    settings.useCddbp = false;
    settings.cddbServer = " server/cddb.cgi ";
    settings.cddbPort = 80;
  }
};

TEST(HttpSession, PostsAsRecorded) {
  // The recorded client left the separator at a table's end away; servers take both.
  const std::string hello = "&hello=user+domain+Orvanta+10.0&proto=4";
  auto script = posts({"20-http-discid", "23-http-inexact", "25-http-read-proto4"});
  script[0] = {"cmd=discid+11+150+25175+46601+70696+88633+106010+125269+147465+163006+190541+215274+3187+" + hello,
               "200 Disc ID is 860c710b\r\n", false};
  script[1].asked.insert(script[1].asked.find("&hello"), "+");
  const std::string read = script[2].asked;
  ASSERT_EQ(read, "cmd=cddb+read+misc+940c700b" + hello);
  script[2].asked = "cmd=cddb+read+data+940c700b" + hello;
  HttpConversation talk(script);
  talk.run(kElevenLater);
  EXPECT_EQ(talk.net.tape, (Tape{script[0].asked, script[1].asked, script[2].asked}));
  EXPECT_EQ(talk.watcher.tape, (Tape{"- Checking Disc ID...", "- Querying CDDB Server...", "inexact 2", "record"}));
  EXPECT_EQ(talk.watcher.record, script[2].answered);
}

TEST(HttpSession, TellsWhatTheWebMakesOfIt) {
  const auto script = posts({"20-http-discid", "24-http-none"});
  const auto outcome = [&](const auto& change) {
    HttpConversation talk(script);
    talk.net.script[0].asked = "cmd=discid+3+150+5000+12000+812+&hello=user+domain+Orvanta+10.0&proto=4";
    talk.net.script[1].asked = "cmd=cddb+query+15032a03+3+150+5000+12000+812+&hello=user+domain+Orvanta+10.0&proto=4";
    change(talk);
    talk.run(kThree);
    return talk.watcher.said();
  };
  EXPECT_EQ(outcome([](auto&) {}), (Tape{"not found: "}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.status = 302; }), (Tape{"failed: HTTP 302"}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.status = 199; }), (Tape{"failed: HTTP 199"}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.refuses = true; }), (Tape{"failed: Connection refused"}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.end = FakeNet::End::Silence; }), Tape{});
  EXPECT_EQ(outcome([](auto& talk) { talk.net.script[0].answered = ""; }), (Tape{"nothing"}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.script[1].answered = replyOf("21-http-exact210-proto4"); }), (Tape{"not found: "}));
  EXPECT_EQ(outcome([](auto& talk) { talk.net.script[0].answered = "200 Disc ID is 15032a03\n"; }), (Tape{"not found: "}))
      << "a line feed alone";
}

TEST(HttpSession, TellsCredentialsOnlyWithAPassword) {
  for (const auto& [password, user] : {std::pair{"", ""}, {"  ", ""}, {"secret", "me"}}) {
    HttpConversation talk({});
    talk.settings.proxyServer = " proxy:3128 ";
    talk.settings.proxyUser = "me";
    talk.settings.proxyPassword = password;
    talk.run(kThree);
    const HttpRequest& request = talk.net.requests.at(0);
    EXPECT_EQ(request.user, user);
    EXPECT_EQ(request.url + " " + std::to_string(request.port) + " " + request.proxy, "server/cddb.cgi 80 proxy:3128");
    EXPECT_EQ(request.most, ReplyShaper::kMost);
  }
}

TEST(CddbSession, CanBeDroppedInEachOfItsEvents) {
  for (size_t dropAt = 1; dropAt <= 5; ++dropAt) {
    Conversation talk(recording("01-exact"));
    talk.watcher.dropAt = dropAt;
    talk.run(kEleven);
    EXPECT_EQ(talk.watcher.tape.size(), dropAt);
    EXPECT_EQ(talk.net.tape.back(), "drop");
    Conversation failing(recording("12-badclient"));
    failing.watcher.dropAt = dropAt;
    failing.run(kThree);
    EXPECT_LE(failing.watcher.tape.size(), 2U);
  }
  for (size_t dropAt = 2; dropAt <= 4; ++dropAt) {
    HttpConversation talk(posts({"20-http-discid", "24-http-none"}));
    for (Exchanged& each : talk.net.script) each.asked.insert(each.asked.find("&hello"), "+");
    talk.net.script[1].asked.replace(talk.net.script[1].asked.find("19032a03"), 8, "15032a03");
    talk.watcher.dropAt = dropAt;
    talk.run(kThree);
    EXPECT_EQ(talk.watcher.tape.size(), std::min<size_t>(dropAt, 3));
  }
}

}  // namespace
}  // namespace orvanta::test
