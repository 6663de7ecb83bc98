// A disc that nobody typed in: looked up by itself and by hand, over both roads, and all that can go wrong.
#include "windows/cddbmain.h"

#include <gtest/gtest.h>

#include "tests/support/cddb_rig.h"

namespace orvanta::test {
namespace {

std::string emptyLines(int lines) {
  std::string all;
  for (int i = 0; i < lines; ++i) all += "\"\"\r\n";
  return all;
}

const std::string kSaved = "\"Some Title\"\r\n\"Some Artist\"\r\n\"\"\r\n\"One\"\r\n\"Two\"\r\n\"Three\"\r\n" + emptyLines(42) +
                           "\"13:29,4:06,4:58,4:25,\"\r\n\"3\"\r\n\"\"\r\n\"\"\r\n\"Misc\"\r\n";

TEST(CddbWindow, NamesAnUnknownDiscByItself) {
  for (const bool overTcp : {true, false}) {
    Cddb rig;
    rig.store.useCddbp = overTcp;
    if (!overTcp) {
      rig.store.cddbServer = "http://server/cddb.cgi";
      rig.net.script = http();
    }
    rig.begin();
    rig.clock.advance(250);
    EXPECT_EQ(rig.form.Label12.caption.get(), "Connecting to CDDB Online...");
    EXPECT_TRUE(rig.form.Image14.visible);
    rig.key('D');
    rig.clock.advance(3000);
    EXPECT_EQ(rig.form.Label12.caption.get(), "Some Artist - Some Title");
    EXPECT_EQ(rig.state.disc.trackTitles[3], "Three");
    EXPECT_EQ(rig.cd(), kSaved);
    EXPECT_EQ(rig.files.read(kCdPath + "1").value_or("absent").substr(0, 2), "\"\"");
    EXPECT_FALSE(rig.files.exists(kCdPath + "3"));
    EXPECT_TRUE(rig.ended());
    EXPECT_EQ(rig.time(), "0:03") << "it played meanwhile";
    EXPECT_EQ(rig.dialogs.tape, Tape{});
    Tape sent = rig.net.tape;
    std::erase(sent, "listen 1001");
    Tape expected;
    for (const Exchanged& each : rig.net.script) {
      if (!each.asked.empty()) expected.push_back(each.asked);
    }
    if (overTcp) {
      expected.insert(expected.begin(), "connect server 8880");
      expected.emplace_back("drop");
    }
    EXPECT_EQ(sent, expected);
    rig.clock.advance(10000);
    EXPECT_EQ(sent.size(), expected.size()) << "once a disc";
  }
}

TEST(CddbWindow, EndsAnAutomaticLookupWithOneBoxAndNothingChanged) {
  const auto with = [](size_t line, const std::string& answer, bool closes) {
    auto script = cddbp();
    script.at(line).answered = answer;
    script.at(line).closes = closes;
    return script;
  };
  const struct {
    const char* what;
    std::vector<Exchanged> script;
    std::string box;
  } cases[] = {
      {"refused", with(1, "433 Unauthorized client: Orvanta 10.0\r\n", true), kNoHost + "\n\n433 Unauthorized client: Orvanta 10.0"},
      {"not found", with(3, "202 No match for disc ID 1f032a03.\r\n", false), kNotFound},
      {"closed mid-record", with(4, kRecord.substr(0, kRecord.size() - 40), true), kNoHost},
      {"no such record", with(4, "401 misc 1f032a03 No such CD entry in database.\r\n", false),
       kNotFound + "\n\n401 misc 1f032a03 No such CD entry in database."},
      {"a record without tracks", with(4, "210 x\r\nDTITLE=A / B\r\n.\r\n", false), kNotFound},
      {"a table refused", with(2, "500 Command syntax error: incorrect number of arguments.\r\n", false),
       "Orvanta: Unable to connect to the Internet\n\n500 Command syntax error: incorrect number of arguments."},
  };
  for (const auto& each : cases) {
    Cddb rig;
    rig.net.script = each.script;
    rig.begin();
    rig.clock.advance(5000);
    EXPECT_EQ(rig.dialogs.tape, (Tape{each.box})) << each.what;
    EXPECT_TRUE(rig.ended()) << each.what;
    EXPECT_EQ(rig.form.Label12.caption.get() + rig.state.disc.discArtist + rig.state.disc.discTitle, "") << each.what;
    EXPECT_EQ(rig.cd(), "absent") << each.what;
  }
  Cddb nobody;
  nobody.store.emailDomain = "";
  nobody.begin();
  nobody.clock.advance(5000);
  EXPECT_EQ(nobody.dialogs.tape.size(), 1U) << "one box without a domain";
  EXPECT_EQ(nobody.dialogs.tape.front().rfind("Orvanta CDDB Online Search: Unable to continue...", 0), 0U);
  EXPECT_TRUE(nobody.ended());
  for (const auto& asked : nobody.net.tape) EXPECT_EQ(asked, "listen 1001");
}

TEST(CddbWindow, LooksUpOnlyWhatIsUnknownAndWanted) {
  Cddb known;
  known.files.write(kCdPath, kSaved);
  known.begin();
  known.clock.advance(3000);
  EXPECT_EQ(known.form.Label12.caption.get(), "Some Artist - Some Title");
  Cddb unwanted;
  unwanted.store.autoConnect = false;
  unwanted.begin();
  unwanted.clock.advance(3000);
  Cddb stranger;
  stranger.store.emailUser = "";
  stranger.begin();
  stranger.clock.advance(3000);
  EXPECT_EQ(known.net.tape.size() + unwanted.net.tape.size() + stranger.net.tape.size(), 0U);
  EXPECT_EQ(stranger.dialogs.tape, Tape{});
}

TEST(CddbWindow, GivesUpAnAutomaticLookupForTheUser) {
  const struct {
    const char* what;
    void (*act)(Cddb&);
  } cases[] = {
      {"eject", [](Cddb& rig) { rig.key('J'); }},
      {"CD Data", [](Cddb& rig) { rig.press(rig.form.Image10[1]); }},
      {"a disc pulled out", [](Cddb& rig) { rig.player.insert({}, ""); }},
  };
  for (const auto& each : cases) {
    for (const int moment : {120, 200, 230, 260}) {
      Cddb rig;
      rig.net.script[4].answered = rig.net.script[3].answered = "";
      rig.begin();
      rig.clock.advance(moment);
      each.act(rig);
      rig.clock.advance(3000);
      EXPECT_FALSE(rig.cddb.loaded()) << each.what << moment;
      EXPECT_FALSE(rig.form.Image14.visible) << each.what;
      EXPECT_EQ(rig.state.disc.discArtist, "") << each.what;
      EXPECT_EQ(rig.cd(), "absent");
      EXPECT_EQ(rig.editor.Text2.caption.get(), "") << "no placeholder in the editor";
    }
  }
}

TEST(CddbWindow, LetsAPersonChooseLookAndSave) {
  Cddb rig;
  auto& script = rig.net.script;
  script[3].answered =
      "211 Found inexact matches, list follows (until terminating `.')\r\ndata 1f032a03 Other\r\nmisc 1f032a03 Some Artist / Some "
      "Title\r\n.\r\n";
  script[4].answered = kRecord;
  script[4].answered.replace(script[4].answered.find("EXTD="), 5, "EXTD=Recorded 1850, released 1996\\nin one take");
  script[4].answered.replace(script[4].answered.find("EXTT1="), 6, "EXTT1=la\\nla");
  rig.byHand();
  ASSERT_TRUE(rig.cddb.loaded());
  EXPECT_FALSE(rig.editor.enabled);
  EXPECT_EQ(rig.cddb.inetstatus.caption.get().substr(0, 9), "Establish");
  rig.press(rig.cddb.Command8);
  EXPECT_TRUE(rig.cddb.busy.visible);
  rig.clock.advance(1000);
  EXPECT_FALSE(rig.cddb.busy.visible);
  EXPECT_EQ(rig.cddb.Label29.caption.get(), "Total Titles Found:2");
  EXPECT_EQ(rig.cddb.inetstatus.caption.get(), "Matches found in the CDDB...");
  EXPECT_EQ(rig.cddb.List2.row(1), "Misc  - Some Artist / Some Title" + std::string(100, ' ') + "1f032a03");
  EXPECT_EQ(rig.cddb.List2.listIndex(), -1);
  rig.gate.enter([&] { rig.cddb.userRow(rig.cddb.List2, 1, {1}); });
  rig.press(rig.cddb.Command9);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.cddb.inetstatus.caption.get(), "CDDB Online Search Complete");
  EXPECT_EQ(rig.cddb.Label24.caption.get() + "|" + rig.cddb.Label27.caption.get(), " Some Artist / Some Title| Misc");
  EXPECT_EQ(rig.cddb.List1.row(2), "3:\tThree");
  EXPECT_EQ(rig.cddb.List3.count(), 1);
  EXPECT_EQ(rig.cddb.List3.row(0), "2:\tla  la");
  EXPECT_EQ(rig.cddb.linernote2.caption.get(), "Recorded 1850, released 1996\r\nin one take\r\n");
  rig.press(rig.cddb.Command7);
  EXPECT_FALSE(rig.cddb.loaded());
  EXPECT_TRUE(rig.editor.loaded() && rig.editor.enabled);
  EXPECT_EQ(rig.editor.Text2.caption.get() + "|" + rig.editor.Text4.caption.get(), "Some Artist|Some Title");
  EXPECT_EQ(rig.editor.Text18.caption.get(), "1996");
  EXPECT_EQ(rig.editor.List1.row(0), "1:\tOne\t4:06");
  EXPECT_EQ(rig.editor.List2.row(1), "2:\tla  la");
  EXPECT_EQ(rig.cd(), "absent") << "only OK writes";
  rig.press(rig.editor.Command1);
  EXPECT_EQ(rig.cd().rfind("\"Some Title\"\r\n\"Some Artist\"\r\n\"Recorded 1850~ released 1996", 0), 0U) << rig.cd();
  EXPECT_EQ(rig.form.Label12.caption.get(), "Some Artist - Some Title");
}

TEST(CddbWindow, LosesNothingThatWasTypedWhenASearchFails) {
  Cddb rig;
  rig.net.script[1].answered = "433 Unauthorized client\r\n";
  rig.byHand();
  rig.press(rig.cddb.Command3);
  EXPECT_TRUE(rig.editor.enabled);
  rig.type(rig.editor.Text2, "Typed");
  rig.press(rig.editor.Command11);
  rig.press(rig.cddb.Command8);
  rig.press(rig.cddb.Command8);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.dialogs.tape, (Tape{kNoHost + "\n\n433 Unauthorized client"}));
  EXPECT_FALSE(rig.cddb.loaded());
  EXPECT_TRUE(rig.editor.loaded() && rig.editor.enabled);
  EXPECT_EQ(rig.editor.Text2.caption.get(), "Typed");
  EXPECT_EQ(rig.screen.pointer, Pointer::Normal);
}

TEST(CddbWindow, CancelsAtEveryMomentAndSaysGoodbye) {
  for (int moment = 0; moment <= 80; moment += 10) {
    Cddb rig;
    rig.byHand();
    rig.press(rig.cddb.Command8);
    rig.clock.advance(moment);
    rig.press(rig.cddb.Command3);
    rig.clock.advance(2000);
    EXPECT_FALSE(rig.cddb.loaded());
    EXPECT_TRUE(rig.editor.enabled);
    EXPECT_EQ(rig.dialogs.tape, Tape{}) << moment;
    EXPECT_EQ(rig.net.tape.back(), "drop") << moment;
    EXPECT_EQ(*(rig.net.tape.rbegin() + 1), moment >= 10 ? "quit\r\n" : "connect server 8880") << moment;
    EXPECT_EQ(rig.screen.pointer, Pointer::Normal);
  }
}

TEST(CddbWindow, KeepsFetchedTextsOnTheDisplayWhenTheDiskIsFull) {
  Cddb rig;
  rig.begin();
  rig.clock.advance(150);
  rig.files.full = true;
  rig.clock.advance(3000);
  EXPECT_EQ(rig.dialogs.tape.size(), 1U) << "told once";
  EXPECT_EQ(rig.form.Label12.caption.get(), "Some Artist - Some Title");
  EXPECT_EQ(rig.cd(), "absent");
  EXPECT_TRUE(rig.ended());
}

// ---- the Setup tab

TEST(CddbSetup, IsAllThereIsUntilSomebodyIsKnown) {
  Cddb rig;
  rig.store = {};
  rig.store.cddbServer = "server";
  rig.store.cddbSiteName = "Site";
  rig.store.cddbPort = 8880;
  rig.store.useCddbp = true;
  rig.byHand();
  EXPECT_FALSE(rig.cddb.CommandT[1].visible) << "the tab that shows";
  EXPECT_FALSE(rig.cddb.CommandT[0].enabled || rig.cddb.Command10.visible);
  EXPECT_EQ(rig.cddb.activeControl(), &rig.cddb.Text5);
  EXPECT_EQ(rig.cddb.Combo1.items(), (Tape{"Site", "Other"}));
  rig.press(rig.cddb.Command1);
  rig.type(rig.cddb.Text5, "nobody");
  rig.press(rig.cddb.Command1);
  rig.type(rig.cddb.Text5, "user@domain");
  rig.type(rig.cddb.Text4, "x");
  rig.enter(rig.cddb.Text4);
  EXPECT_EQ(rig.dialogs.tape, (Tape{"Orvanta: You must enter your email address to access the CDDB Online!",
                                    "Orvanta: Invalid email address format - example of proper format: someone@example.com",
                                    "Orvanta: Please enter a valid Port number (usually 80 for HTTP and 8880 or 888 for CDDBP)"}));
  rig.type(rig.cddb.Combo1, "Other");
  EXPECT_EQ(rig.cddb.Text4.caption.get(), "888");
  rig.enter(rig.cddb.Text5);
  EXPECT_EQ(rig.cddb.activeControl(), &rig.cddb.Text7);
  EXPECT_EQ(rig.cddb.Text7.caption.get(), "domain") << "proposed";
  rig.press(rig.cddb.Check1);
  rig.press(rig.cddb.Command1);
  EXPECT_FALSE(rig.cddb.loaded());
  EXPECT_EQ(rig.files.read("/data/cddbol.dat"),
            "\"other\"\r\n\"Other\"\r\n888\r\n\"user\"\r\n\"domain\"\r\n\"\"\r\n1\r\n1\r\n\"\"\r\n\"\"\r\n");
  EXPECT_EQ(rig.files.read("/data/cddbml.dat").value_or("absent").rfind("\"\"\r\n\"freedb-submit@gnudb.org\"\r\n\"domain\"\r\n25\r\n", 0),
            0U);
  rig.press(rig.editor.Command11);
  EXPECT_TRUE(rig.cddb.CommandT[0].enabled && rig.cddb.Command10.visible);
}

TEST(CddbSetup, KeepsTheProxyThroughAChangeOfMind) {
  Cddb rig;
  rig.store.useCddbp = false;
  rig.store.cddbServer = "http://server/cddb.cgi";
  rig.store.cddbSiteName = "Web, site";
  rig.store.cddbPort = 80;
  rig.byHand();
  rig.press(rig.cddb.CommandT[1]);
  rig.type(rig.cddb.Text1, "proxy:3128");
  EXPECT_FALSE(rig.cddb.Text3.enabled);
  rig.press(rig.cddb.Check2);
  EXPECT_TRUE(rig.cddb.Text3.enabled && rig.cddb.Text8.enabled);
  rig.type(rig.cddb.Text3, "me");
  rig.type(rig.cddb.Text8, "secret");
  rig.press(rig.cddb.Option2[1]);
  EXPECT_EQ(rig.cddb.Text1.caption.get() + rig.cddb.Combo1.caption.get(), "Site");
  EXPECT_FALSE(rig.cddb.Text1.enabled || rig.cddb.Text8.enabled);
  rig.press(rig.cddb.Option2[0]);
  EXPECT_EQ(rig.cddb.Text1.caption.get(), "proxy:3128");
  rig.files.full = true;
  rig.press(rig.cddb.Command1);
  EXPECT_TRUE(rig.cddb.loaded()) << "what was typed stays when it cannot be written";
  EXPECT_EQ(rig.dialogs.tape.size(), 1U);
  rig.files.full = false;
  rig.press(rig.cddb.Command1);
  EXPECT_EQ(rig.files.read("/data/cddbol.dat"),
            "\"http://server/cddb.cgi\"\r\n\"Web, "
            "site\"\r\n80\r\n\"user\"\r\n\"domain\"\r\n\"me\"\r\n0\r\n0\r\n\"proxy:3128\"\r\n\"secret\"\r\n");
}

TEST(CddbSetup, TakesAListOfServersOrKeepsTheOld) {
  for (const bool comes : {true, false}) {
    Cddb rig;
    rig.net.script.push_back(
        {"sites \r\n", comes ? "210 OK\r\nnew.b 888 N1 W2 New\r\n.\r\n" : "401 No site information available.\r\n", false});
    rig.byHand();
    rig.press(rig.cddb.CommandT[1]);
    rig.press(rig.cddb.Command10);
    rig.clock.advance(1000);
    EXPECT_EQ(rig.net.tape.at(rig.net.tape.size() - (comes ? 5 : 4)), "connect gnudb.gnudb.org 8880");
    EXPECT_EQ(rig.dialogs.tape.size(), 1U);
    EXPECT_EQ(rig.files.read("/data/datacd/srvcddbp.txt"),
              comes ? "new.b 888 N1 W2 New\r\n" : "server 8880 Site\r\nother 888 N1 Other\r\n");
    EXPECT_EQ(rig.cddb.Combo1.items(), comes ? Tape{"New"} : Tape{});
    EXPECT_EQ(rig.cddb.loaded(), comes);
  }
}

}  // namespace
}  // namespace orvanta::test
