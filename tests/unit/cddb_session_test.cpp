// Conversations as they were recorded, on the virtual clock; then cut, dripped, refused and dropped.
#include "cddb/session.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "cddb/reply_shaper.h"
#include "tests/support/fake_net.h"
#include "tests/support/script_words.h"
#include "tests/support/transcript.h"

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

std::vector<Exchanged> posts(std::initializer_list<const char*> names) {
  std::vector<Exchanged> script;
  for (const char* name : names) script.push_back({requestOf(name), replyOf(name), false});
  return script;
}

void overHttp(Conversation& talk) {
  talk.settings.useCddbp = false;
  talk.settings.cddbServer = " server/cddb.cgi ";
  talk.settings.cddbPort = 80;
}

/// A conversation as a line of words: a recording, a disc, what the server says or takes otherwise at which of its turns, and what the
/// user has set. Tells what was sent, and what the session told of it.
std::string conversation(const std::string& line) {
  std::vector<Word> words = wordsOf(line);
  const std::map<std::string, Disc> discs = {
      {"three", kThree}, {"eleven", kEleven}, {"eleven-later", kElevenLater}, {"ninety-nine", ninetyNine()}};
  const std::map<std::string, Purpose> purposes = {{"lookup", Purpose::Lookup}, {"id", Purpose::DiscId}, {"sites", Purpose::Sites}};
  Conversation talk(words.at(0).verb == "http" ? posts({"20-http-discid", "24-http-none"}) : recording(words.at(0).verb));
  if (words.at(0).verb == "http") overHttp(talk);
  for (const Word& word : words) {
    Exchanged& turn = talk.net.script.at(std::min(talk.net.script.size() - 1, static_cast<size_t>(word.number())));
    if (word.verb == "asked") turn.asked = word.value.substr(2);
    if (word.verb == "answers" || word.verb == "closes") turn.answered = word.value.substr(2);
    if (word.verb == "closes") turn.closes = true;
    if (word.verb == "piece") talk.net.piece = static_cast<size_t>(word.number());
    if (word.verb == "refuses") talk.net.refuses = true;
    if (word.verb == "status") talk.net.status = word.number();
    if (word.verb == "silence") talk.net.end = FakeNet::End::Silence;
    if (word.verb == "user") talk.settings.emailUser = word.value;
    if (word.verb == "proxy") talk.settings.proxyServer = word.value;
    if (word.verb == "proxy-user") talk.settings.proxyUser = word.value;
    if (word.verb == "password") talk.settings.proxyPassword = word.value;
  }
  for (Exchanged& turn : talk.net.script) {
    if (turn.asked == "sites\r\n") turn.asked = "sites \r\n";
  }
  talk.run(discs.at(words.at(1).verb), purposes.at(words.at(2).verb));
  std::string told;
  for (const std::string& sent : talk.net.tape) told += "> " + sent + (sent.ends_with('\n') ? "" : "\n");
  for (const std::string& said : talk.watcher.tape) told += said + (said.ends_with('\n') ? "" : "\n");
  for (const HttpRequest& request : talk.net.requests) {
    told += request.url + " " + std::to_string(request.port) + " by " + request.proxy + " as " + request.user + ", at most " +
            std::to_string(request.most) + "\n";
  }
  return told;
}

TEST(CddbSession, FollowsWhatServersAnswer) { expectAnswers("answers/sessions.txt", conversation); }

/// Runs that break off after so many bytes: at every byte of the first replies, at a hundred places of the rest.
std::vector<size_t> placesToBreak(size_t first, size_t whole) {
  std::vector<size_t> places;
  for (size_t at = 0; at < std::min(first, whole); ++at) places.push_back(at);
  std::mt19937 random(1);
  for (int i = 0; i < 100 && first < whole; ++i) places.push_back(std::uniform_int_distribution<size_t>(first, whole - 1)(random));
  return places;
}

TEST(CddbSession, EndsOnceWhereverAnyServerBreaksOff) {
  for (const std::string& path : cddbNames("sessions")) {
    const std::string name = path.substr(path.rfind('/') + 1, path.size() - path.rfind('/') - 5);
    const bool web = name.find("http") != std::string::npos;
    if (name.find("smtp") != std::string::npos) continue;
    std::vector<Exchanged> script = recording(name);
    // Over HTTP a recording is one answer: here it is that to each of the three questions.
    if (web) script.assign(4, {"", replyOf(name), false});
    size_t whole = 0;
    for (const Exchanged& each : script) whole += each.answered.size();
    size_t first = web ? 100 : 0;
    for (size_t turn = 0; turn < std::min<size_t>(script.size(), 3) && !web; ++turn) first += script[turn].answered.size();
    for (const size_t most : placesToBreak(first, whole)) {
      for (const auto end : {FakeNet::End::Close, FakeNet::End::Reset, FakeNet::End::Silence}) {
        Conversation talk(script);
        talk.settings.useCddbp = !web;
        talk.net.inOrder = true;
        talk.net.most = web ? std::string::npos : most;
        talk.net.end = web ? FakeNet::End::Close : end;
        if (web) talk.net.script[1 + most % 3].answered.resize(most % (talk.net.script[1].answered.size() + 1));
        talk.run(kThree, Purpose::Lookup, 400);
        Tape said = talk.watcher.said();
        std::erase_if(said, [](const std::string& each) { return each.find("exact") != std::string::npos; });
        EXPECT_EQ(said.size(), web || end != FakeNet::End::Silence ? 1U : said.size()) << name << " " << most;
        EXPECT_LE(said.size(), 1U) << name << " " << most;
        talk.watcher.session->leave();
        talk.watcher.session.reset();
        EXPECT_TRUE(web || talk.net.tape.back() == "drop") << name << " " << most;
        if (web) break;
      }
    }
  }
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
    Conversation talk(posts({"20-http-discid", "24-http-none"}));
    overHttp(talk);
    for (Exchanged& each : talk.net.script) each.asked.insert(each.asked.find("&hello"), "+");
    talk.net.script[1].asked.replace(talk.net.script[1].asked.find("19032a03"), 8, "15032a03");
    talk.watcher.dropAt = dropAt;
    talk.run(kThree);
    EXPECT_EQ(talk.watcher.tape.size(), std::min<size_t>(dropAt, 3));
  }
}

}  // namespace
}  // namespace orvanta::test
