// The CD Data window: a disc typed, saved, read back, changed, left; the page and the print of it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "base/code_page.h"
#include "library/list_text.h"
#include "tests/support/editor.h"
#include "tests/support/places.h"

namespace orvanta::test {
namespace {

std::string quoted(std::initializer_list<const char*> fields) {
  std::string lines;
  for (const char* field : fields) lines += "\"" + std::string(field) + "\"\r\n";
  return lines;
}
std::string blanks(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += "\"\"\r\n";
  return lines;
}

TEST(CdData, ADiscTypedByKeysAlone) {
  Editor rig;
  ASSERT_TRUE(rig.window.loaded());
  EXPECT_EQ(rig.window.caption.get(), "CD Data [19443766.CD]");
  EXPECT_EQ(rig.window.activeControl(), &rig.window.Text2);
  rig.line("Artist, \"The\"");
  rig.line("Jazz");
  rig.line("Title");
  for (const char* text : {"12", "LP", "Label"}) rig.line(text);
  rig.line("1997");
  EXPECT_EQ(rig.window.activeControl(), &rig.window.Text7);
  EXPECT_FALSE(rig.window.CommandT[1].visible) << "its tab has come up";
  rig.line("Composer");
  rig.line("14.99");
  EXPECT_EQ(rig.window.activeControl(), &rig.window.Text8);
  rig.line("nowhere yet");
  EXPECT_EQ(rig.window.Text8.caption.get(), "nowhere yet") << "no row was chosen";
  rig.tabTo(rig.window.List2);
  rig.choose(rig.window.List2, 1);
  rig.enterKey();
  rig.line("Line one\nLine two");
  EXPECT_EQ(rig.window.List2.row(1), "2:\tLine one  Line two");
  rig.tabTo(rig.window.CommandT[0]);
  rig.windowKey(forms::key::kSpace);
  rig.tabTo(rig.window.Text3);
  rig.type("First line\nsecond");
  rig.tabTo(rig.window.List1);
  rig.choose(rig.window.List1, 0);
  rig.enterKey();
  EXPECT_EQ(rig.window.activeControl(), &rig.window.Text1);
  rig.line(std::string(70, 'x'));
  EXPECT_EQ(rig.window.List1.row(0), "1:\t" + std::string(60, 'x') + "\t4:06");
  rig.line("  Two\x01three ");
  rig.line("\xC3\x89t\xC3\xA9 \xE6\x97\xA5");
  EXPECT_EQ(rig.window.activeControl(), &rig.window.Command1) << "after the last track comes OK";
  rig.enterKey();
  EXPECT_FALSE(rig.window.loaded());
  EXPECT_EQ(rig.form.Label12.caption.get(), "Artist, \"The\" - Title");

  EXPECT_EQ(rig.file(""), quoted({"Title", "Artist~ `The`", "First line\r\nsecond"}) +
                              quoted({std::string(60, 'x').c_str(), "Two three", "\xC9t\xE9 ?"}) + blanks(42) +
                              quoted({"13:29,4:06,4:58,4:25,", "3", "Composer", "Label", "Jazz"}));
  EXPECT_EQ(rig.file("1"), blanks(42) + "0\r\n");
  EXPECT_EQ(rig.file("3"),
            quoted({"14.99", "LP", "1997"}) + blanks(11) + quoted({"Line one\r\nLine two"}) + blanks(50) + quoted({"12"}) + blanks(10));
  EXPECT_EQ(rig.file("4"), "(none)");

  // Read back as it was typed, in any script.
  rig.open();
  EXPECT_EQ(rig.window.Text2.caption.get(), "Artist, \"The\"");
  EXPECT_EQ(rig.window.Text3.caption.get(), "First line\r\nsecond");
  EXPECT_EQ(rig.window.mediatype.caption.get(), "LP");
  EXPECT_EQ(rowTitle(rig.window.List1.row(2)), "\xC3\x89t\xC3\xA9 \xE6\x97\xA5");
  EXPECT_EQ(rig.state.library.trackLyrics[2], "Line one\r\nLine two");
  EXPECT_EQ(rig.window.Label23.caption.get(), "Nov 21, 2026 3:05 PM");
  EXPECT_EQ(rig.window.Label13.caption.get(), "13:29");
  EXPECT_FALSE(rig.window.Command12.enabled) << "no sender's address";
}

TEST(CdData, CancelAsksOnlyForTheMainFields) {
  struct Case {
    const char* field;
    bool asks;
  };
  for (const Case& c : std::initializer_list<Case>{{"Text2", true},
                                                   {"Text4", true},
                                                   {"Text7", true},
                                                   {"Text18", true},
                                                   {"cat", true},
                                                   {"reccode", true},
                                                   {"Text10", false},
                                                   {"Text6", false},
                                                   {"mediatype", false}}) {
    Editor rig;
    forms::Control& field = *rig.window.find(c.field);
    rig.gate.enter([&] { rig.window.userText(field, "changed"); });
    rig.dialogs.yes = false;
    rig.windowKey(forms::key::kEscape);
    EXPECT_EQ(rig.window.loaded(), c.asks) << c.field;
    EXPECT_EQ(rig.dialogs.tape.size(), c.asks ? 1U : 0U) << c.field;
    if (!c.asks) continue;
    EXPECT_EQ(rig.dialogs.tape[0], "Orvanta? Lose Changes?");
    EXPECT_EQ(rig.dialogs.style, BoxStyle::Warning);
    EXPECT_TRUE(rig.window.enabled);
    rig.dialogs.yes = true;
    rig.click(rig.window.Command2);
    EXPECT_FALSE(rig.window.loaded());
    EXPECT_EQ(rig.file(""), "(none)");
  }
}

TEST(CdData, OkWithoutAChangeSavesNothing) {
  Editor rig;
  rig.orvanta.cdData().disc().discArtist = "Known";
  rig.form.Label12.caption = "";
  rig.click(rig.window.Command1);
  EXPECT_EQ(rig.form.Label12.caption.get(), "Known");
  EXPECT_EQ(rig.file(""), "(none)");
  EXPECT_EQ(rig.file("1"), "(none)");
}

TEST(CdData, TimeCorrectionKeepsToItsRange) {
  for (const auto& [typed, kept] : {std::pair{"9", "0"}, {"-3", "-3"}, {"5", "5"}, {"abc", "0"}, {"2 s", "2"}, {"-4", "0"}}) {
    Editor rig;
    rig.click(rig.window.CommandT[2]);
    rig.tabTo(rig.window.Text5);
    rig.line(typed);
    EXPECT_EQ(rig.window.Text5.caption.get(), kept) << typed;
    EXPECT_EQ(rig.window.activeControl(), &rig.window.Command1);
    rig.enterKey();
    EXPECT_EQ(rig.file("1"), blanks(42) + kept + "\r\n");
    EXPECT_EQ(std::to_string(rig.state.disc.timeCorrection), kept);
  }
}

Toc discOf(int tracks) {
  std::vector<int> starts;
  for (int track = 0; track < tracks; ++track) starts.push_back(150 + track * 600);
  return tocOf(starts, 150 + tracks * 600);
}

TEST(CdData, ManyTracks) {
  for (const int tracks : {45, 46, 99}) {
    Editor rig(discOf(tracks));
    EXPECT_EQ(rig.window.List1.count(), tracks);
    EXPECT_TRUE(rig.window.Label12.visible);
    rig.choose(rig.window.List2, tracks - 1);
    rig.click(rig.window.CommandT[1]);
    rig.tabTo(rig.window.List2);
    rig.enterKey();
    rig.line("Words of the last");
    rig.click(rig.window.Command1);
    EXPECT_EQ(rig.file("4") != "(none)", tracks > 45) << tracks;
    EXPECT_EQ(rig.file("5") != "(none)", tracks > 45);
    EXPECT_EQ(lyricsOf(rig.state.disc, tracks), "Words of the last");
  }
  Editor rig;
  rig.state.disc.trackCount = 100;
  rig.click(rig.window.Command2);
  rig.state.disc.discInfo[2] = "x";
  rig.gate.enter([&] { rig.window.show(rig.desktop); });
  EXPECT_FALSE(rig.window.Label10.visible || rig.window.Label12.visible);
  rig.gate.enter([&] { rig.window.userText(rig.window.Text10, "y"); });
  rig.orvanta.cdData().disc().discInfo[2] = "former";
  rig.click(rig.window.Command1);
  EXPECT_EQ(rig.state.disc.discInfo[2], "former") << "a count of three digits never goes into the record";
}

TEST(CdData, ClearTakesEverythingAndSavesNothing) {
  Editor rig;
  for (forms::Control* control : rig.window.controls()) {
    const bool text = control->kind() == forms::Kind::TextBox || control->kind() == forms::Kind::Combo;
    if (text) rig.gate.enter([&] { rig.window.userText(*control, "x"); });
  }
  rig.click(rig.window.Command5);
  std::string left;
  for (const forms::Control* control : rig.window.controls()) {
    const bool text = control->kind() == forms::Kind::TextBox || control->kind() == forms::Kind::Combo;
    if (text && !control->caption.get().empty()) left += control->name() + " ";
  }
  EXPECT_EQ(left, "Text24 catnum Text23 Text22 reccode Text5 ") << "these have never been cleared";
  EXPECT_EQ(rig.window.List1.row(0), "");
  EXPECT_EQ(rig.file(""), "(none)");
}

TEST(CdData, GenresAndCaptionsOfTheUser) {
  Editor rig;
  rig.files.files["/DATA/ADDCATS.DAT"] = "Jazz, Modern\r\n\"Zydeco\"\r\n\"  \"\r\n";
  rig.dialogs.answers = {"  Aardvark blues "};
  rig.click(rig.window.addGenreKey);
  EXPECT_EQ(rig.files.files["/DATA/ADDCATS.DAT"], quoted({"Jazz", "Modern", "Zydeco", "Aardvark blues"}));
  EXPECT_EQ(rig.window.cat.caption.get(), "Aardvark blues");
  EXPECT_EQ(rig.window.cat.items().front(), "Aardvark blues");
  EXPECT_EQ(rig.window.cat.items().size(), 91U + 4);
  EXPECT_EQ(rig.window.cat.items().back(), "Zydeco");
  std::string many;
  for (int i = 0; i < 207; ++i) many += "\"g" + std::to_string(i) + "\"\r\n";
  rig.files.files["/DATA/ADDCATS.DAT"] = many;
  rig.dialogs.answers = {"208th", "209th"};
  rig.click(rig.window.addGenreKey);
  EXPECT_TRUE(rig.files.exists("/data/addcats.dat"));
  rig.click(rig.window.addGenreKey);
  EXPECT_FALSE(rig.files.exists("/data/addcats.dat")) << "one too many: the list is lost";
  EXPECT_EQ(rig.window.cat.caption.get(), "209th");

  rig.dialogs.answers = {"Mood", "Key, \"mine\":"};
  rig.click(rig.window.Command13);
  EXPECT_EQ(rig.files.files["/DATA/USERDEF.DAT"], quoted({"Mood:", "Key~ `mine`:"}));
  EXPECT_EQ(rig.window.Label37.caption.get(), "Mood:");
  EXPECT_EQ(rig.window.Label51.caption.get(), "Key, \"mine\":");
  rig.click(rig.window.Command13);
  EXPECT_TRUE(rig.files.exists("/data/userdef.dat")) << "cancelled";
  rig.dialogs.answers = {"", " "};
  rig.click(rig.window.Command13);
  EXPECT_FALSE(rig.files.exists("/data/userdef.dat"));
  EXPECT_EQ(rig.window.Label37.caption.get(), "User Defined 1:");
}

TEST(CdData, SavesUnseenForAProgram) {
  CoreRig rig;
  rig.startWith(discA());
  rig.clock.advance(2000);
  acdtabs& window = rig.orvanta.editor;
  rig.gate.enter([&] {
    rig.orvanta.cdData().openUnseen();
    EXPECT_GT(window.left, rig.screen.widthTwips());
    EXPECT_FALSE(window.Command11.visible || window.Command12.visible);
    window.Text2.caption = "Found";
    window.List1.set(0, "1:\tSong\t4:06");
    rig.state.library.dataDirty = kOn;
    rig.orvanta.cdData().Command1_Click();
  });
  EXPECT_FALSE(window.loaded());
  EXPECT_NE(rig.files.files["/DATA/DATACD/19443766.CD"].find("\"Found\"\r\n\"\"\r\n\"Song\""), std::string::npos);
  EXPECT_EQ(std::count(rig.desktop.tape.begin(), rig.desktop.tape.end(), "hide"), 1) << "the window's own, at its end";
}

// ---- page and print

/// A page as it is kept in tests/data; ORVANTA_KEEP_GOLDEN=1 keeps it anew.
std::string kept(const std::string& name, const std::string& now) {
  const std::string path = sourceFolder() + "/tests/data/" + name;
  if (std::getenv("ORVANTA_KEEP_GOLDEN") != nullptr) std::ofstream(path, std::ios::binary) << now;
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CdData, ThePageOfABareDiscAndOfAFullOne) {
  Editor rig;
  const auto save = [&] {
    rig.dialogs.answers = {"/pages/disc.htm"};
    rig.click(rig.window.Command7);
    return rig.files.files["/PAGES/DISC.HTM"];
  };
  const std::string bare = save();
  EXPECT_EQ(bare, kept("page_bare.htm", bare));
  for (forms::Control* control : rig.window.controls()) {
    const bool text = control->kind() == forms::Kind::TextBox || control->kind() == forms::Kind::Combo;
    if (text) rig.gate.enter([&] { rig.window.userText(*control, "v" + control->name()); });
  }
  // Raw, but for what the code page lacks.
  rig.gate.enter([&] { rig.window.userText(rig.window.Text2, "AC/DC & Co > \xE6\x97\xA5"); });
  rig.window.List1.set(0, "1:\tD\xC3\xA9j\xC3\xA0 vu\t4:06");
  rig.window.List2.set(1, "2:\tLa la");
  const std::string full = save();
  EXPECT_EQ(rig.dialogs.tape.back(), "save Save Orvanta CD Data As...");
  EXPECT_EQ(full, kept("page_full.htm", full));
  // For scripts/page_in_browser.
  if (const char* keep = std::getenv("ORVANTA_KEEP_PAGE")) std::ofstream(keep, std::ios::binary) << full;
  rig.files.files.erase("/PAGES/DISC.HTM");
  rig.click(rig.window.Command7);
  EXPECT_FALSE(rig.files.exists("/pages/disc.htm")) << "cancelled";
}

TEST(CdData, ThePrintInItsColumns) {
  Editor rig;
  for (forms::Control* control : rig.window.controls()) {
    const bool text = control->kind() == forms::Kind::TextBox || control->kind() == forms::Kind::Combo;
    if (text) rig.gate.enter([&] { rig.window.userText(*control, "v" + control->name()); });
  }
  rig.gate.enter([&] { rig.window.userText(rig.window.Text3, std::string(200, 'n') + "\nend"); });
  rig.window.List1.set(0, "1:\tFirst\t4:06");
  // A whole number of slices ends in an empty line.
  rig.window.List2.set(0, "1:\t" + std::string(100, 'w'));
  rig.window.List2.set(2, "3:\tshort");
  rig.click(rig.window.Command4);
  std::string tape;
  for (const std::string& act : rig.printer.tape) tape += act + "\n";
  EXPECT_EQ(tape, kept("print_full.txt", tape));
  rig.printer.tape.clear();
  rig.printer.accepted = false;
  rig.click(rig.window.Command4);
  EXPECT_TRUE(rig.printer.tape.empty());
}

TEST(CdData, CaptionsOfTheUserAreRead) {
  const auto captions = [](const std::string& bytes) {
    Editor rig(discA(), [&](CoreRig& start) {
      if (!bytes.empty()) start.files.files["/DATA/USERDEF.DAT"] = bytes;
    });
    EXPECT_EQ(rig.state.library.userCaptions[0].empty() ? "User Defined 1:" : rig.state.library.userCaptions[0],
              rig.window.Label37.caption.get())
        << "the deck knows them too";
    return rig.window.Label37.caption.get() + "|" + rig.window.Label51.caption.get();
  };
  EXPECT_EQ(captions(""), "User Defined 1:|User Defined 2:");
  EXPECT_EQ(captions("\"Mood:\"\r\n\"Key~ `mine`:\"\r\n"), "Mood:|Key, \"mine\":");
  EXPECT_EQ(captions("\"\"\r\n\"Second:\"\r\n"), "User Defined 1:|Second:") << "an empty one stays as it is";
  EXPECT_EQ(captions("\"First:\""), "First:|User Defined 2:");
}

}  // namespace
}  // namespace orvanta::test
