// A disc that was typed in is given to everybody else: category, id, record, mail, and each way in which it fails.
#include <gtest/gtest.h>

#include "tests/support/cddb_rig.h"

namespace orvanta::test {
namespace {

const std::string kMessage =
    "# xmcd database file\r\n#\r\n# Track frame offsets:\r\n#150\r\n#18627\r\n#41002\r\n#\r\n# Disc length: 812 seconds\r\n"
    "# Submitted via: Orvanta 10.0\r\n#\r\nDISCID=1f032a03\r\nDTITLE=Some Artist / Some Title\r\nTTITLE0=One\r\nTTITLE1=Two\r\n"
    "TTITLE2=Three\r\nEXTD=\r\nEXTT0=\r\nEXTT1=\r\nEXTT2=\r\nPLAYORDER=\r\n";
const std::string kSent =
    "Orvanta: CDDB entry has been emailed; you will be notified by return email if your submission has been rejected for any reason, "
    "otherwise thanks for your submission!";

/// What a mail server says, from its greeting on.
std::vector<Exchanged> mailServer() {
  return {{"", "220 mail ESMTP\r\n", false},
          {"helo domain\r\n", "250 mail\r\n", false},
          {"Mail From: user@domain\r\n", "250 2.1.0 Ok\r\n", false},
          {"Rcpt to: freedb-submit@gnudb.org\r\n", "250-2.1.5\r\n250 Ok\r\n", false},
          {"Data\r\n", "354 End data with <CR><LF>.<CR><LF>\r\n", false},
          {"\r\n.\r\n", "250 2.0.0 Ok: queued\r\n", false}};
}

/// What we say to it, up to the reply of that state.
Tape saidUpTo(size_t state) {
  Tape all{"listen 1001", "connect mail 25"};
  const auto server = mailServer();
  for (size_t i = 1; i < server.size() && i <= state; ++i) {
    if (i == 5) {
      all.emplace_back("Subject: cddb misc 1f032a03\r\n");
      all.push_back(kMessage + "\r\n");
    }
    all.push_back(server[i].asked);
  }
  return all;
}

struct Submitting : Cddb {
  /// CD Data with its texts typed in.
  void open() {
    store.autoConnect = false;
    store.smtpServer = "mail";
    begin();
    if (!store.smtpServer.empty()) writeMailSettings(files, "/data", store);
    clock.advance(500);
    Cddb::press(form.Image10[1]);
    type(editor.Text2, "Some Artist");
    EXPECT_FALSE(editor.Command12.enabled) << "no title yet";
    type(editor.Text4, "Some Title");
    type(editor.cat, " Misc");
    gate.enter([&] { editor.userRow(editor.List1, 0, {0}); });
    for (const char* title : {"One", "Two", "Three"}) {
      type(editor.Text1, title);
      enter(editor.Text1);
    }
  }
  void serve(const std::vector<Exchanged>& server) {
    net.script = cddbp();
    net.greetings[25] = server.front();
    net.script.insert(net.script.end(), server.begin() + 1, server.end());
    net.tape.clear();
    net.most = std::string::npos;
  }
  void submit() {
    Cddb::press(editor.Command12);
    Cddb::press(category.Command1);
    clock.advance(1000);
  }
  /// What was said to the mail server.
  Tape mailed() const {
    const auto begin = std::find(net.tape.begin(), net.tape.end(), "connect mail 25");
    return begin == net.tape.end() ? Tape{} : Tape(begin - 1, net.tape.end());
  }
  std::string status() const { return editor.Label25.visible ? editor.Label25.caption.get() : ""; }
  bool over() const { return !cddb.loaded() && !mail.loaded() && state.library.cddbMode == 1 && screen.pointer == Pointer::Normal; }

  cddbcatg& category = orvanta.categoryForm;
  cddbmail& mail = orvanta.mailForm;
};

TEST(CddbSubmit, MailsWhatWasTypedAndSaysThatItWent) {
  for (const size_t piece : {0, 1}) {
    Submitting rig;
    rig.open();
    rig.serve(mailServer());
    rig.net.piece = piece;
    ASSERT_TRUE(rig.editor.Command12.enabled);
    rig.press(rig.editor.Command12);
    EXPECT_FALSE(rig.editor.enabled);
    rig.gate.enter([&] { rig.editor.closeAsked(); });
    EXPECT_TRUE(rig.editor.loaded()) << "it takes no input under the dialog";
    EXPECT_EQ(rig.category.catfind.count(), 11);
    rig.press(rig.category.Command1);
    EXPECT_FALSE(rig.category.loaded());
    EXPECT_TRUE(rig.editor.enabled);
    EXPECT_EQ(rig.status(), "Submitting...");
    EXPECT_EQ(rig.screen.pointer, Pointer::Hourglass);
    while (!rig.mail.loaded()) {
      rig.clock.advance(10);
      EXPECT_FALSE(rig.cddb.view() != nullptr && !rig.cddb.parked) << "out of sight";
    }
    EXPECT_EQ(rig.status(), "");
    rig.clock.advance(10000);
    Tape mailed = rig.mailed();
    EXPECT_EQ(std::count(mailed.begin(), mailed.end(), "drop"), 2) << "both connections";
    Tape expected = saidUpTo(5);
    expected.insert(expected.begin() + 2, {"quit\r\n", "drop"});
    expected.insert(expected.end(), {"quit\r\n", "drop"});
    EXPECT_EQ(mailed, expected);
    EXPECT_EQ(rig.dialogs.tape, (Tape{kSent}));
    EXPECT_TRUE(rig.over());
    EXPECT_EQ(rig.editor.Text2.caption.get() + "|" + rig.cd(), "Some Artist|absent") << "CD Data is as it was, unsaved";
  }
}

TEST(CddbSubmit, TellsWhyAMailDidNotGo) {
  std::string flood;
  while (flood.size() < size_t{5} << 20) flood += "100 " + std::string(4000, 'x') + "\r\n";
  const struct {
    const char* what;
    size_t state;  ///< in which the server answers otherwise
    std::string answer;
    bool closes;
    std::string box;
    std::string status;
    bool stays;  ///< the mail window, until it is cancelled
  } cases[] = {
      {"no welcome", 0, "554 No service\r\n", false, "", "Not sent. 554 No service", true},
      {"a greeting that is none", 0, "250 what\r\n", false, "", "Not sent. 250 what", true},
      {"busy, then closed", 0, "421 busy\r\n", true, "", "Not sent. 421 busy", false},
      {"helo", 1, "501 who?\r\n", false, "", "Not sent. 501 who?", true},
      {"the sender", 2, "553-5.1.0 not\r\n553 5.1.0 you\r\n", false, "", "Not sent. 553-5.1.0 not 553 5.1.0 you", true},
      {"the receiver", 3, "450 later\r\n", false, "", "Not sent. 450 later", true},
      {"data", 4, "250 not now\r\n", false, "", "Not sent. 250 not now", true},
      {"the record", 5, "550 \x1b[1mspam\r\n", false, "Orvanta: Email to CDDB Failed!\n\n550  [1mspam", "550  [1mspam", false},
      {"the record, for now", 5, "451 try again\r\n", false, "", "Not sent. 451 try again", true},
      {"a flood of lines", 0, flood, false, "", "Not sent. " + flood.substr(0, 500), false},
      {"closed", 3, "", true, "", "Not sent. mail: the connection was closed", false},
  };
  for (const auto& each : cases) {
    Submitting rig;
    rig.open();
    auto server = mailServer();
    server[each.state].answered = each.answer;
    server[each.state].closes = each.closes;
    rig.serve(server);
    rig.net.piece = 65536;
    rig.submit();
    EXPECT_EQ(rig.dialogs.tape, each.box.empty() ? Tape{} : Tape{each.box}) << each.what;
    EXPECT_EQ(rig.status(), each.status) << each.what;
    EXPECT_EQ(rig.mail.loaded(), each.stays) << each.what;
    EXPECT_EQ(rig.screen.pointer, Pointer::Normal) << each.what;
    const bool said = std::find(rig.net.tape.begin(), rig.net.tape.end(), kMessage + "\r\n") != rig.net.tape.end();
    EXPECT_EQ(said, each.state == 5) << each.what;
    if (each.stays) rig.press(rig.mail.Command3);
    EXPECT_TRUE(rig.over()) << each.what;
    // A second try begins afresh, byte for byte.
    rig.serve(mailServer());
    rig.submit();
    EXPECT_EQ(rig.status(), "") << each.what;
    EXPECT_EQ(rig.dialogs.tape.back(), kSent) << each.what;
    EXPECT_NE(std::find(rig.net.tape.begin(), rig.net.tape.end(), kMessage + "\r\n"), rig.net.tape.end()) << each.what;
  }
  // With CD Data closed the mail's own window is all there is to read it in, and the power key asks only while a mail is on its way.
  Submitting alone;
  alone.open();
  auto gone = mailServer();
  gone[3].answered = "";
  gone[3].closes = true;
  alone.serve(gone);
  alone.press(alone.editor.Command12);
  alone.press(alone.category.Command1);
  alone.press(alone.editor.Command1);
  alone.clock.advance(1000);
  EXPECT_TRUE(alone.mail.loaded() && !alone.editor.loaded());
  EXPECT_EQ(alone.mail.status.caption.get(), "Not sent. mail: the connection was closed");
  EXPECT_EQ(alone.screen.pointer, Pointer::Normal);
  alone.dialogs.tape.clear();
  alone.key(forms::key::kEscape);
  EXPECT_EQ(alone.dialogs.tape, Tape{}) << "nothing is being sent any more";
  EXPECT_TRUE(alone.gate.ended());
  Submitting silent;
  silent.open();
  auto server = mailServer();
  server[2].answered = "";
  silent.serve(server);
  silent.submit();
  silent.clock.advance(600000);
  EXPECT_TRUE(silent.mail.loaded()) << "no limit of time";
  silent.key(forms::key::kEscape);
  EXPECT_EQ(silent.dialogs.tape, Tape{"Orvanta? A submission to the CDDB is still being sent.\n\nEnd the program all the same?"});
  EXPECT_FALSE(silent.gate.ended());
  silent.gate.enter([&] { silent.mail.keyDown({forms::key::kEscape}); });
  EXPECT_TRUE(silent.over());
}

struct MailWatcher : MailEvents {
  void mailUnderWay() override {}
  void mailSent() override { ++lastWords; }
  void mailRejected(const std::string& /*line*/) override { ++lastWords; }
  void mailRefused(const std::string& /*line*/) override { refused = true; }
  void mailBroken(const std::string& /*reason*/) override { ++lastWords; }
  int lastWords = 0;
  bool refused = false;
};

TEST(CddbMail, EndsOnceWhereverAnyServerBreaksOff) {
  for (const std::string& path : cddbNames("sessions")) {
    if (path.find("smtp") == std::string::npos) continue;
    const std::string name = path.substr(path.rfind('/') + 1, path.size() - path.rfind('/') - 5);
    std::vector<Exchanged> script = recording(name);
    size_t whole = 1;
    for (Exchanged& each : script) {
      if (each.asked == ".\r\n") each.asked = "\r\n.\r\n";
      whole += each.answered.size();
    }
    for (size_t most = 0; most < whole; ++most) {
      CoreGate gate;
      VirtualClock clock{gate};
      FakeNet net{clock};
      net.script = script;
      net.most = most;
      net.end = most % 2 == 0 ? FakeNet::End::Close : FakeNet::End::Reset;
      MailWatcher watcher;
      MailSession mail(net, {"mail", 0, "user", "domain", "test-submit@localhost", "misc", "15032a03", kMessage}, watcher);
      clock.advance(300);
      EXPECT_EQ(net.tape.front(), "connect mail 25");
      const bool open = net.tape.back() != "drop";
      EXPECT_EQ(watcher.lastWords, open ? 0 : 1) << name << " " << most;
      EXPECT_TRUE(!open || watcher.refused) << name << " " << most;
    }
  }
}

TEST(CddbSubmit, NeedsAnIdFromTheServer) {
  const struct {
    const char* what;
    size_t line;
    const char* answer;
    bool closes;
    std::string box;
  } cases[] = {
      {"no disc", 2, "200 Disc ID is 00000000\r\n", false, "Orvanta: Unable to submit entry at this time - please try again later!"},
      {"an id that is none", 2, "500 Command syntax error.\r\n", false,
       "Orvanta: Unable to submit entry at this time - please try again later!"},
      {"a table refused", 2, "500 incorrect number of arguments.\r\n", false,
       "Orvanta: Unable to connect to the Internet\n\n500 incorrect number of arguments."},
      {"a stranger", 1, "433 Unauthorized client\r\n", false, kNoHost + "\n\n433 Unauthorized client"},
      {"closed", 0, "", true, kNoHost},
  };
  for (const auto& each : cases) {
    Submitting rig;
    rig.open();
    rig.serve(mailServer());
    rig.net.script[each.line].answered = each.answer;
    rig.net.script[each.line].closes = each.closes;
    rig.submit();
    EXPECT_EQ(rig.dialogs.tape, (Tape{each.box})) << each.what;
    EXPECT_EQ(rig.status(), "") << each.what;
    EXPECT_TRUE(rig.over() && rig.editor.loaded() && rig.editor.enabled) << each.what;
    EXPECT_EQ(rig.mailed(), Tape{}) << each.what;
    EXPECT_EQ(rig.editor.Text4.caption.get(), "Some Title");
  }
}

TEST(CddbSubmit, IsGivenUpByAnotherStartAndNotWithCdData) {
  Submitting rig;
  rig.open();
  rig.serve(mailServer());
  rig.net.script[2].answered = "";
  rig.submit();
  EXPECT_EQ(rig.status(), "Checking Disc ID...");
  rig.press(rig.editor.Command12);
  EXPECT_EQ(rig.status(), "");
  EXPECT_FALSE(rig.cddb.loaded());
  rig.press(rig.category.Command3);
  EXPECT_TRUE(rig.over() && rig.editor.enabled);
  rig.submit();
  rig.press(rig.editor.Command11);
  EXPECT_TRUE(rig.orvanta.cddbForm.loaded() && !rig.cddb.parked) << "a search of one's own instead";
  rig.press(rig.cddb.Command3);
  rig.submit();
  rig.press(rig.editor.Command1);
  rig.clock.advance(200);
  EXPECT_TRUE(rig.cddb.loaded() && !rig.editor.loaded()) << "OK takes no submission back";
}

TEST(CddbSubmit, TakesUpToAHundredTracks) {
  for (const int16_t tracks : {int16_t{100}, int16_t{101}}) {
    Submitting rig;
    rig.open();
    rig.orvanta.cdData().disc().trackCount = tracks;
    rig.press(rig.editor.Command12);
    EXPECT_EQ(rig.category.loaded(), tracks == 100);
  }
}

TEST(CddbSubmit, KeepsTypedLinesOutOfTheMail) {
  Submitting rig;
  rig.store.emailUser = "user\r\nDATA";
  rig.store.emailDomain = "do main\n.";
  rig.open();
  rig.serve(mailServer());
  rig.net.script[1].asked = "cddb hello user  DATA do main . Orvanta 10.0\r\n";
  rig.net.script.push_back({"helo do main .\r\n", "250 x\r\n", false});
  rig.submit();
  EXPECT_EQ(rig.net.tape.back(), "Mail From: user  DATA@do main .\r\n");
}

TEST(CddbSubmit, GuessesTheCategoryAndTellsOfPlainLetters) {
  const std::pair<const char*, const char*> cases[] = {{"Rock & Roll", "rock"},
                                                       {" punk ROCK ", "rock"},
                                                       {"Krautrock", "rock"},
                                                       {"Soul", "rock"},
                                                       {"New Age", "newage"},
                                                       {"Miscellaneous", "misc"},
                                                       {"Movie Soundtrack", "soundtrack"},
                                                       {"Jazz", "jazz"},
                                                       {"General", ""},
                                                       {"Rocker", ""}};
  for (const auto& [genre, category] : cases) EXPECT_EQ(categoryOf(genre), category) << genre;
  Submitting rig;
  rig.open();
  rig.serve(mailServer());
  rig.type(rig.editor.cat, "Something else");
  rig.type(rig.editor.Text2, "Bj\xC3\xB6rk");
  rig.press(rig.editor.Command12);
  EXPECT_FALSE(rig.category.Command1.enabled) << "no guess";
  EXPECT_TRUE(rig.category.plain.visible);
  EXPECT_NE(rig.category.plain.caption.get().find("\"Bj\xC3\xB6rk\" is sent as \"Bjoerk\""), std::string::npos);
  rig.gate.enter([&] { rig.category.keyDown({forms::key::kEnter}); });
  EXPECT_TRUE(rig.category.loaded()) << "nothing chosen";
  rig.gate.enter([&] { rig.category.userRow(rig.category.catfind, 4, {4}); });
  rig.press(rig.category.Command1);
  rig.clock.advance(1000);
  EXPECT_NE(std::find(rig.net.tape.begin(), rig.net.tape.end(), "Subject: cddb folk 1f032a03\r\n"), rig.net.tape.end());
  rig.type(rig.editor.Text2, "Bjork");
  rig.press(rig.editor.Command12);
  EXPECT_FALSE(rig.category.plain.visible);
}

TEST(CddbSubmit, TakesLyricsNotesAndTheFreedbPeoplesAddress) {
  Submitting rig;
  rig.store.cddbServer = "FreeDB.freedb.org";
  rig.open();
  rig.serve(mailServer());
  rig.press(rig.editor.CommandT[1]);
  rig.gate.enter([&] { rig.editor.userRow(rig.editor.List2, 1, {1}); });
  rig.type(rig.editor.Text8, "la\r\nla");
  rig.enter(rig.editor.Text8);
  rig.type(rig.editor.Text3, "one\r\n.\r\n");
  rig.submit();
  const auto has = [&](const std::string& text) {
    return std::any_of(rig.net.tape.begin(), rig.net.tape.end(),
                       [&](const std::string& each) { return each.find(text) != std::string::npos; });
  };
  EXPECT_TRUE(has("Rcpt to: freedb-submit@freedb.org\r\n"));
  rig.net.script.push_back({"Rcpt to: freedb-submit@freedb.org\r\n", "250 Ok\r\n", false});
  rig.submit();
  EXPECT_TRUE(has("EXTD=one\r\nEXTD=\\n.\r\nEXTT0=\r\nEXTT1=la  la\\n\r\nEXTT2=\r\n"));
  EXPECT_EQ(rig.state.library.trackLyrics[2], "la\r\nla") << "what was typed keeps its lines";
}

}  // namespace
}  // namespace orvanta::test
