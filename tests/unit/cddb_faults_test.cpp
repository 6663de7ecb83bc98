// What no honest server sends, and an exit amid a lookup: cut, told, or left, and the deck plays on.
#include <gtest/gtest.h>

#include "tests/support/cddb_rig.h"

namespace orvanta::test {
namespace {

bool ended(const Cddb& rig) {
  return !rig.cddb.loaded() && !rig.editor.loaded() && !rig.form.Image14.visible && rig.state.library.cddbMode == 1 &&
         rig.screen.pointer == Pointer::Normal;
}

std::string times(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// The record with another disc title.
std::string titled(const std::string& title) {
  std::string record = kRecord;
  return record.replace(record.find("Some Artist"), 24, title);
}

TEST(CddbFaults, TakesWhatServersMakeOfTheirLines) {
  const struct {
    const char* what;
    void (*change)(std::vector<Exchanged>& script);
    std::string header;  ///< on the display afterwards, or what it begins with
    size_t boxes;
  } cases[] = {
      {"line feeds alone",
       [](auto& script) {
         for (auto& each : script) std::erase(each.answered, '\r');
       },
       "Some Artist - Some Title", 0},
      {"a mark before the record", [](auto& script) { script[4].answered.insert(kRecord.find("# xmcd"), "\xEF\xBB\xBF"); },
       "Some Artist - Some Title", 0},
      {"a lone return", [](auto& script) { script[4].answered = titled("Some\rArtist / T"); }, "Some Artist - T", 0},
      {"a NUL", [](auto& script) { script[4].answered = titled(std::string("Some\0Artist / T", 15)); }, "Some Artist - T", 0},
      {"Latin-1", [](auto& script) { script[4].answered = titled("Bj\xF6rk / T"); }, "Bj\xC3\xB6rk - T", 0},
      {"a hundred tracks", [](auto& script) { script[4].answered = titled("A / T\r\n" + times("TTITLE=x\r\nTTITLE1=y\r\n", 50)); }, "A - T",
       0},
      {"a title of a million", [](auto& script) { script[4].answered = titled("A / " + std::string(1 << 20, 'x')); }, "A - xxxx", 0},
      {"a record without an end", [](auto& script) { script[4].answered = "210 x\r\n" + std::string(5 << 20, 'x'); }, "", 1},
      {"a greeting without an end", [](auto& script) { script[1].answered = times("100 wait\r\n", 500000); }, "", 1},
      {"an id of a million", [](auto& script) { script[2].answered = std::string(1 << 20, '2') + "\r\n"; }, "", 0},
  };
  for (const auto& each : cases) {
    Cddb rig;
    each.change(rig.net.script);
    rig.net.piece = 65536;
    rig.begin();
    rig.clock.advance(5000);
    const std::string header = rig.form.Label12.caption;
    EXPECT_EQ(header.substr(0, each.header.size()), each.header) << each.what;
    EXPECT_LE(header.size(), 1000U) << each.what;
    EXPECT_EQ(rig.dialogs.tape.size(), each.boxes) << each.what;
    EXPECT_EQ(rig.cd() != "absent", !each.header.empty()) << each.what;
    if (rig.cddb.loaded()) rig.gate.enter([&] { rig.cddb.closeAsked(); });
    EXPECT_TRUE(ended(rig)) << each.what;
  }
}

TEST(CddbFaults, ShowsWhatAPersonMustChooseFrom) {
  Cddb hidden;
  hidden.net.script[3].answered = "";
  hidden.begin();
  hidden.key('D');
  hidden.clock.advance(1000);
  EXPECT_TRUE(hidden.cddb.loaded() && hidden.cddb.parked) << "nothing comes up by itself";
  // The word for it is the display's alone: nobody takes it for the disc's name.
  const DeckStatus& status = hidden.orvanta.status().last();
  EXPECT_EQ(hidden.form.Label12.caption.get(), "Searching CDDB Online - Please Wait...");
  EXPECT_EQ(status.artist + status.title + (status.searching ? " searching" : ""), " searching");
  Cddb rig;
  rig.net.script[3].answered = "211 list\r\n" + times("misc 1f032a03 Some Artist / Some Title\r\n", 10000) + ".\r\n";
  rig.begin();
  rig.clock.advance(3000);
  EXPECT_FALSE(rig.cddb.parked) << "out of its hiding";
  EXPECT_EQ(rig.cddb.Label29.caption.get(), "Total Titles Found:10000");
  EXPECT_EQ(rig.cddb.List2.count(), 500);
  rig.gate.enter([&] { rig.cddb.userRow(rig.cddb.List2, 499, {499}); });
  rig.press(rig.cddb.Command9);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.form.Label12.caption.get(), "Some Artist - Some Title");
  EXPECT_TRUE(ended(rig));
}

TEST(CddbFaults, LeavesNothingOfAProtocolWhoseServersAreKnown) {
  Cddb rig;
  rig.store.autoConnect = false;
  rig.begin();
  rig.files.remove("/data/datacd/srvhttp.txt");
  rig.clock.advance(500);
  rig.press(rig.form.Image10[1]);
  rig.press(rig.editor.Command11);
  rig.press(rig.cddb.CommandT[1]);
  rig.press(rig.cddb.Option2[0]);
  EXPECT_EQ(rig.cddb.Combo1.caption.get() + rig.cddb.Text4.caption.get(), "") << "no server of the other road";
  rig.press(rig.cddb.Option2[1]);
  EXPECT_EQ(rig.cddb.Combo1.caption.get() + rig.cddb.Text4.caption.get(), "Site8880");
  // A server that is typed is the one that is asked; none at all is told.
  const auto serverTyped = [&](const char* text) {
    rig.gate.enter([&] { rig.cddb.userText(rig.cddb.Combo1, text); });
    rig.press(rig.cddb.Command1);
    return rig.files.files["/DATA/CDDBOL.DAT"].substr(0, 31);
  };
  const std::string before = rig.files.files["/DATA/CDDBOL.DAT"].substr(0, 31);
  EXPECT_EQ(serverTyped(""), before);
  EXPECT_TRUE(rig.cddb.loaded() && rig.dialogs.tape.size() == 1U);
  EXPECT_EQ(serverTyped("my.server.org"), "\"my.server.org\"\r\n\"my.server.org");
  EXPECT_FALSE(rig.cddb.loaded());
}

TEST(CddbFaults, LetsTheExitGoAmidALookup) {
  for (const int moment : {120, 160, 200, 240}) {
    Cddb rig;
    rig.begin();
    rig.clock.advance(moment);
    rig.key(forms::key::kEscape);
    rig.clock.advance(1000);
    EXPECT_TRUE(rig.gate.ended()) << moment;
    EXPECT_EQ(rig.cd(), "absent") << moment;
    EXPECT_EQ(rig.dialogs.tape, Tape{}) << moment;
  }
}

}  // namespace
}  // namespace orvanta::test
