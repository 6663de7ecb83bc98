// The CD Data window: a disc typed, saved, read back, changed, left; the page and the print of it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "library/list_text.h"
#include "tests/support/editor.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

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

// ---- page and print

TEST(CdData, ThePageOfABareDiscAndOfAFullOne) {
  Editor rig;
  const auto save = [&] {
    rig.dialogs.answers = {"/pages/disc.htm"};
    rig.click(rig.window.Command7);
    return rig.files.files["/PAGES/DISC.HTM"];
  };
  rig.dialogs.yes = true;  // what is typed for no row is left out
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
  rig.choose(rig.window.List1, 1);
  rig.gate.enter([&] { rig.window.userText(rig.window.Text1, "not yet ended"); });
  EXPECT_NE(save().find(">not yet ended<"), std::string::npos);
  std::string wide;
  for (int i = 0; i < 100; ++i) wide += "\xE6\x97\xA5";
  rig.gate.enter([&] { rig.window.userText(rig.window.Text4, wide); });
  save();
  EXPECT_EQ(rig.dialogs.name, "AC-DC & Co > \xE6\x97\xA5 - " + wide.substr(0, 180) + ".htm") << "as long as file systems take it";
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
  rig.dialogs.yes = true;  // what is typed for no row is left out
  rig.choose(rig.window.List1, 1);
  rig.gate.enter([&] { rig.window.userText(rig.window.Text1, "not yet ended"); });
  rig.click(rig.window.Command4);
  std::string tape;
  for (const std::string& act : rig.printer.tape) tape += act + "\n";
  EXPECT_EQ(tape, kept("print_full.txt", tape));
  rig.printer.tape.clear();
  rig.printer.accepted = false;
  rig.click(rig.window.Command4);
  EXPECT_TRUE(rig.printer.tape.empty());
}

TEST(Lists, WordsWrapAtSeventyFour) {
  std::vector<size_t> sizes;
  for (const auto& row : wrapWords(std::string(200, 'x'), 74)) sizes.push_back(row.size());
  EXPECT_EQ(sizes, (std::vector<size_t>{74, 74, 52}));
  std::string words;
  for (int i = 0; i < 40; ++i) words += "word ";
  for (const auto& row : wrapWords(words, 74)) EXPECT_LE(row.size(), 74U);
  EXPECT_EQ(wrapWords(words, 74).front(), words.substr(0, 74));
  EXPECT_TRUE(wrapWords("   ", 74).empty());
}

}  // namespace
}  // namespace orvanta::test
