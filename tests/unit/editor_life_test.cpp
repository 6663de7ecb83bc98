// What a person has typed in CD Data: which row it belongs to, and that nothing takes it away.
#include "tests/support/editor.h"

namespace orvanta::test {
namespace {

constexpr const char* kNoSpace = " could not be written: No space left on device.\n\nWhat it held before is still there.";

struct Life : Editor {
  Life() {
    processes.onStart = [this] { files.files.erase("/DATA/EJCD.TMP"); };
  }
  void put(forms::Control& control, const std::string& text) {
    gate.enter([&] { window.userText(control, text); });
  }
  std::string title(int row) const {
    const std::string text = window.List1.row(row);
    return text.substr(text.find('\t') + 1, text.rfind('\t') - text.find('\t') - 1);
  }
  int starts() const { return static_cast<int>(std::count(processes.tape.begin(), processes.tape.end(), "/programs/orvanlx")); }
  bool has(const std::string& suffix, const std::string& text) const { return file(suffix).find(text) != std::string::npos; }
};

// ---- rows

TEST(EditorRows, AClickTakesWhatWasTypedForTheRowBefore) {
  Life rig;
  rig.window.List1.set(2, "3:\t" + std::string(70, 'l') + "\t4:25");
  rig.choose(rig.window.List1, 0);
  rig.put(rig.window.Text1, "First");
  rig.choose(rig.window.List1, 0);
  EXPECT_EQ(rig.window.Text1.caption.get(), "First") << "the same row keeps what is typed";
  rig.choose(rig.window.List2, 1);
  rig.put(rig.window.Text8, "words");
  EXPECT_EQ(rig.title(0), "") << "each list has a row of its own";
  rig.choose(rig.window.List1, 2);
  EXPECT_EQ(rig.title(0), "First");
  EXPECT_EQ(rig.window.Text1.caption.get(), std::string(70, 'l'));
  rig.choose(rig.window.List1, 1);
  EXPECT_EQ(rig.title(2), std::string(70, 'l')) << "a title that nobody touched is not cut";
  rig.put(rig.window.Text1, "Second");
  rig.click(rig.window.Command1);
  EXPECT_FALSE(rig.window.loaded());
  EXPECT_TRUE(rig.has("", "\"First\"\r\n\"Second\"\r\n\"" + std::string(70, 'l') + "\""));
  EXPECT_TRUE(rig.has("3", "\"words\"")) << "OK takes what stands in both fields";
}

TEST(EditorRows, EnterOnAnUntouchedTitleLeavesItWhole) {
  Life rig;
  const std::string longTitle(70, 'l');
  rig.window.List1.set(0, "1:\t" + longTitle + "\t4:06");
  rig.choose(rig.window.List1, 0);
  rig.windowKey(forms::key::kTab);
  rig.gate.enter([&] { rig.window.userFocus(rig.window.Text1); });
  rig.enterKey();
  EXPECT_EQ(rig.title(0), longTitle);
  EXPECT_EQ(rig.window.List1.listIndex(), 1);
  EXPECT_TRUE(rig.window.Text1.allSelected);
}

TEST(EditorRows, WhatIsTypedForNoRowIsNotDroppedUnasked) {
  for (const bool yes : {false, true}) {
    Life rig;
    rig.put(rig.window.Text1, "whose?");
    rig.gate.enter([&] { rig.window.userFocus(rig.window.Text1); });
    rig.enterKey();
    EXPECT_EQ(rig.title(0), "") << "no row was chosen";
    rig.dialogs.yes = yes;
    rig.click(rig.window.Command1);
    EXPECT_EQ(rig.dialogs.tape, (Tape{"Orvanta? Lose Changes?"}));
    EXPECT_EQ(rig.window.loaded(), !yes);
  }
}

TEST(EditorRows, ClearAndAFillByProgramEndTheEdit) {
  Life rig;
  rig.choose(rig.window.List1, 1);
  rig.put(rig.window.Text1, "stale");
  rig.click(rig.window.Command5);
  EXPECT_EQ(rig.window.Text1.caption.get(), "");
  rig.window.List1.set(1, "2:\tnew\t4:58");
  rig.click(rig.window.Command1);
  EXPECT_TRUE(rig.has("", "\"\"\r\n\"new\"")) << rig.file("");

  Life filled;
  filled.choose(filled.window.List1, 0);
  filled.put(filled.window.Text1, "stale");
  filled.gate.enter([&] {
    filled.orvanta.cdData().beginFill();
    filled.window.List1.set(0, "1:\tfound\t4:06");
    filled.state.library.dataDirty = kOn;
    EXPECT_TRUE(filled.orvanta.cdData().Command1_Click());
  });
  EXPECT_TRUE(filled.has("", "\"found\""));
}

TEST(EditorRows, CancelAsksForAnEntryThatWasNotTaken) {
  Life rig;
  rig.choose(rig.window.List2, 1);
  rig.windowKey(forms::key::kEscape);
  EXPECT_FALSE(rig.window.loaded()) << "a row alone is no change";
  EXPECT_TRUE(rig.dialogs.tape.empty());
  rig.open();
  rig.choose(rig.window.List2, 0);
  rig.put(rig.window.Text8, "words");
  rig.windowKey(forms::key::kEscape);
  EXPECT_TRUE(rig.window.loaded());
  EXPECT_EQ(rig.dialogs.tape.size(), 1U);
  EXPECT_EQ(rig.window.Text8.caption.get(), "words");
}

// ---- saving

/// Each write of each act that writes fails in turn.
TEST(EditorSaves, AFailureIsToldOnceAndNothingIsLost) {
  for (const bool forGood : {false, true}) {
    for (int at = 1; at < 8; ++at) {
      Life rig;
      rig.put(rig.window.Text2, "Old");
      rig.put(rig.window.Text10, "old.example");
      rig.click(rig.window.Command1);
      const auto before = rig.files.files;
      rig.open();
      rig.put(rig.window.Text2, "\xD0\x96");
      rig.put(rig.window.Text10, "new.example");
      rig.choose(rig.window.List1, 0);
      rig.put(rig.window.Text1, "Song");
      rig.files.failAt = rig.files.writes() + at;
      rig.files.failForGood = forGood;
      rig.click(rig.window.Command1);
      const bool failed = !rig.dialogs.tape.empty();
      EXPECT_EQ(rig.window.loaded(), failed) << at;
      if (!failed) {
        EXPECT_GT(at, 4) << "four files at least are written";
        continue;
      }
      ASSERT_EQ(rig.dialogs.tape.size(), 1U) << at;
      EXPECT_EQ(rig.dialogs.tape[0].find("Orvanta: The file /data/datacd/19443766."), 0U) << rig.dialogs.tape[0];
      EXPECT_NE(rig.dialogs.tape[0].find(kNoSpace), std::string::npos);
      EXPECT_EQ(rig.screen.pointer, Pointer::Normal);
      if (!forGood) {
        EXPECT_EQ(rig.files.files, before) << at;
      }
      EXPECT_EQ(rig.form.Label12.caption.get(), "Old") << "what was not saved is not shown as if it were";
      // Room again: OK saves all of it.
      rig.files.failAt = 0;
      rig.click(rig.window.Command1);
      EXPECT_FALSE(rig.window.loaded());
      EXPECT_TRUE(rig.has("", "\"Song\"") && rig.has("3", "\"new.example\"")) << at;
      EXPECT_EQ(rig.state.disc.discArtist, "\xD0\x96");
    }
  }
}

TEST(EditorSaves, TheOtherActsTellToo) {
  Life rig;
  rig.files.full = true;
  rig.dialogs.answers = {"/pages/disc.htm"};
  rig.click(rig.window.Command7);
  EXPECT_EQ(rig.dialogs.tape.back(), std::string("Orvanta: The file /pages/disc.htm") + kNoSpace);
  rig.dialogs.answers = {"Mood", "Key"};
  rig.click(rig.window.Command13);
  EXPECT_EQ(rig.dialogs.tape.back(), std::string("Orvanta: The file /data/userdef.dat") + kNoSpace);
  EXPECT_EQ(rig.dialogs.tape.size(), 5U) << "two questions of the captions, one of the page, and two boxes";
  rig.click(rig.window.Command2);
  rig.key(forms::key::kF1 + 6);
  cdplist& list = rig.orvanta.playlistForm;
  rig.gate.enter([&] {
    list.press(list.Command11);
    list.press(list.Command1);
  });
  EXPECT_EQ(rig.dialogs.tape.back(), std::string("Orvanta: The file /data/datacd") + kNoSpace);
  EXPECT_TRUE(list.loaded()) << "the list stays to be saved";
  EXPECT_EQ(rig.state.program.pgmStored, kOff);
}

TEST(EditorSaves, ASaveUnseenTellsAndGoes) {
  CoreRig rig;
  rig.startWith(discA());
  rig.clock.advance(2000);
  rig.files.full = true;
  rig.gate.enter([&] {
    rig.orvanta.cdData().openUnseen();
    rig.orvanta.editor.Text2.caption = "Found";
    rig.state.library.dataDirty = kOn;
    EXPECT_FALSE(rig.orvanta.cdData().Command1_Click());
  });
  EXPECT_EQ(rig.dialogs.tape.size(), 1U);
  EXPECT_FALSE(rig.orvanta.editor.loaded());
  EXPECT_EQ(rig.form.Label12.caption.get(), "Found") << "the display keeps it for now";
}

// ---- texts that come with a disc

struct Sheet : Editor {
  explicit Sheet(const std::string& own = "")
      : Editor(discA(), [&](CoreRig& rig) {
          rig.player.told = {"Sheet title", "Sheet artist",  "Jazz",
                             "1997",        "0123456789012", {{"One", "Sheet artist"}, {"Two", "Guest"}, {}}};
          if (!own.empty()) rig.files.files["/DATA/DATACD/19443766.CD"] = own;
        }) {}
};

TEST(SheetTexts, FillDisplayAndWindowWhereTheUserHasNone) {
  Sheet rig;
  EXPECT_EQ(rig.form.Label12.caption.get(), "Sheet artist - Sheet title");
  EXPECT_EQ(rig.window.Text2.caption.get(), "Sheet artist");
  EXPECT_EQ(rig.window.Text4.caption.get(), "Sheet title");
  EXPECT_EQ(rig.window.List1.row(1), "2:\tGuest - Two\t4:58");
  EXPECT_EQ(rig.window.cat.caption.get() + rig.window.Text18.caption.get() + rig.window.upcnum.caption.get(), "Jazz19970123456789012");
  rig.windowKey(forms::key::kEscape);
  EXPECT_TRUE(rig.dialogs.tape.empty()) << "nothing typed, nothing to lose";
  EXPECT_EQ(rig.file(""), "(none)");
  rig.open();
  rig.click(rig.window.Command1);
  EXPECT_EQ(rig.file("").find("\"Sheet title\"\r\n\"Sheet artist\"\r\n\"\"\r\n\"One\"\r\n\"Guest - Two\"\r\n\"\""), 0U)
      << "the user's own now";
  EXPECT_NE(rig.file("3").find("\"1997\""), std::string::npos);

  Sheet own("\"\"\r\n\"Mine\"\r\n");
  EXPECT_EQ(own.form.Label12.caption.get(), "Mine");
  EXPECT_EQ(own.window.Text4.caption.get(), "") << "what the user left empty stays so";
}

// ---- discs that come and go

TEST(EditorLife, OutlivesItsDisc) {
  struct Case {
    const char* what;
    std::function<void(Life&)> leaves;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"pulled out", [](Life& rig) { rig.player.insert({}, ""); }},
           {"ejected by the deck", [](Life& rig) { rig.key('J'); }},
           {"another one in its place", [](Life& rig) { rig.key('J'), rig.clock.advance(3000), rig.player.insert(discB()); }},
           {"cleared", [](Life& rig) { rig.state.disc.clearDiscRequest = kOn; }},
       }) {
    for (const bool boxOpen : {false, true}) {
      Life rig;
      rig.put(rig.window.Text2, "Typed");
      rig.choose(rig.window.List1, 2);
      rig.put(rig.window.Text1, "Third");
      rig.choose(rig.window.List2, 2);
      rig.put(rig.window.Text8, "words");
      const auto leave = [&] {
        c.leaves(rig);
        rig.clock.advance(6000);
      };
      if (boxOpen) {
        rig.dialogs.whileOpen = leave;
        rig.click(rig.window.Command2);
        EXPECT_EQ(rig.dialogs.tape, (Tape{"Orvanta? Lose Changes?"})) << c.what;
      } else {
        leave();
      }
      ASSERT_TRUE(rig.window.loaded()) << c.what;
      EXPECT_TRUE(rig.window.enabled);
      EXPECT_EQ(rig.starts(), 0) << "a restart waits, " << c.what;
      EXPECT_FALSE(rig.gate.ended());
      rig.click(rig.window.Command1);
      EXPECT_FALSE(rig.window.loaded());
      const std::string saved = rig.files.files["/DATA/DATACD/19443766.CD"];
      EXPECT_NE(saved.find("\"Typed\""), std::string::npos);
      EXPECT_NE(saved.find("\"Third\""), std::string::npos);
      EXPECT_NE(saved.find("\"13:29,4:06,4:58,4:25,\"\r\n\"3\""), std::string::npos) << c.what;
      EXPECT_NE(rig.files.files["/DATA/DATACD/19443766.CD3"].find("\"words\""), std::string::npos);
      rig.clock.advance(3000);
      EXPECT_EQ(rig.starts(), c.what == std::string("another one in its place") ? 1 : 0) << c.what;
    }
  }
}

TEST(EditorLife, EveryWindowOfTheUsersHoldsARestart) {
  Life rig;
  rig.windowKey(forms::key::kEscape);
  rig.key(forms::key::kF1 + 6);
  ASSERT_TRUE(rig.orvanta.playlistForm.loaded());
  rig.player.insert({}, "");
  rig.clock.advance(3000);
  EXPECT_TRUE(rig.orvanta.playlistForm.loaded());
  rig.files.tape.clear();
  rig.player.insert(discB());
  rig.clock.advance(5000);
  EXPECT_EQ(rig.starts(), 0);
  EXPECT_TRUE(rig.files.tape.empty()) << "nothing of the restart is done again and again";
  EXPECT_EQ(rig.form.Panel3D7.top, 600) << "the drawer stays open";
  rig.gate.enter([&] { rig.orvanta.playlistForm.closeAsked(); });
  rig.clock.advance(1200);
  EXPECT_EQ(rig.starts(), 1);
  EXPECT_TRUE(rig.gate.ended());
}

TEST(EditorLife, AnExitByTheUserAsksWhenSomethingWasTyped) {
  for (const int key : {int{forms::key::kEscape}, int{'H'}}) {
    Life untouched;
    untouched.key(key);
    EXPECT_TRUE(untouched.gate.ended()) << key;
    EXPECT_TRUE(untouched.dialogs.tape.empty());

    Life rig;
    rig.put(rig.window.Text10, "typed");
    rig.key(key);
    EXPECT_EQ(rig.dialogs.tape, (Tape{"Orvanta? Lose Changes?"}));
    EXPECT_FALSE(rig.gate.ended());
    EXPECT_EQ(rig.window.Text10.caption.get(), "typed");
    rig.dialogs.yes = true;
    rig.key(key);
    EXPECT_TRUE(rig.gate.ended()) << key;
  }
}

TEST(EditorLife, AnExitOnEjectWaitsForIt) {
  Life rig;
  rig.state.settings.appOptions[2] = 1;
  rig.put(rig.window.Text2, "Typed");
  const int ejected = rig.player.ejected;
  rig.key('J');
  rig.clock.advance(3000);
  EXPECT_EQ(rig.player.ejected, ejected + 1) << "ejected now, and once";
  EXPECT_FALSE(rig.gate.ended());
  EXPECT_TRUE(rig.dialogs.tape.empty()) << "no question: nothing is lost";
  rig.click(rig.window.Command1);
  rig.clock.advance(1200);
  EXPECT_TRUE(rig.gate.ended());
  EXPECT_TRUE(rig.has("", "\"Typed\""));
}

TEST(EditorLife, TheSessionsEndKeepsADraft) {
  Life rig;
  rig.put(rig.window.Text2, "Typed \xD0\x96");
  rig.put(rig.window.cat, "Jazz");
  rig.choose(rig.window.List1, 1);
  rig.put(rig.window.Text1, "Second");
  rig.choose(rig.window.List2, 0);
  rig.put(rig.window.Text8, "one\ntwo");
  rig.gate.enter([&] { rig.orvanta.keepDrafts(); });
  EXPECT_EQ(rig.file(""), "(none)") << "not saved: nobody has said OK";
  const std::string draft = rig.files.files["/DATA/19443766.DRAFT"];
  EXPECT_NE(draft.find("Text2\tTyped \xD0\x96\n"), std::string::npos) << draft;

  for (const bool wanted : {true, false}) {
    Life next;
    next.windowKey(forms::key::kEscape);
    next.files.files["/DATA/19443766.DRAFT"] = draft;
    next.dialogs.yes = wanted;
    next.open();
    ASSERT_EQ(next.dialogs.tape.size(), 1U);
    EXPECT_EQ(next.window.Text2.caption.get(), wanted ? "Typed \xD0\x96" : "");
    EXPECT_EQ(next.title(1), wanted ? "Second" : "");
    EXPECT_EQ(next.files.exists("/data/19443766.draft"), wanted) << "kept until OK or Cancel";
    if (!wanted) continue;
    next.dialogs.yes = false;
    next.windowKey(forms::key::kEscape);
    EXPECT_TRUE(next.window.loaded()) << "it counts as typed";
    next.click(next.window.Command1);
    EXPECT_TRUE(next.has("", "\"Typed ?\"") && next.has("", "\"\"\r\n\"Second\"") && next.has("3", "\"one\r\ntwo\"")) << next.file("");
    EXPECT_EQ(next.state.disc.discInfo[kGenre], "Jazz");
    EXPECT_FALSE(next.files.exists("/data/19443766.draft"));
  }

  Life untouched;
  untouched.gate.enter([&] { untouched.orvanta.keepDrafts(); });
  EXPECT_FALSE(untouched.files.exists("/data/19443766.draft"));
}

// ---- beside the deck

TEST(EditorLife, TheDeckPlaysOnBesideIt) {
  Life rig;
  EXPECT_EQ(std::count(rig.desktop.tape.begin(), rig.desktop.tape.end(), "hide"), 0);
  EXPECT_EQ(rig.window.List1.markedRow, -1);
  rig.put(rig.window.Text2, "Artist");
  rig.choose(rig.window.List1, 0);
  rig.put(rig.window.Text1, "First");
  rig.gate.enter([&] { rig.form.activated(); });
  rig.key('D');
  rig.clock.advance(1500);
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
  EXPECT_EQ(rig.window.List1.markedRow, 0);
  rig.key('S');
  rig.clock.advance(1500);
  EXPECT_EQ(rig.window.List1.markedRow, 1);
  rig.gate.enter([&] { rig.window.activated(); });
  rig.gate.enter([&] { rig.window.userFocus(rig.window.Text1); });
  rig.enterKey();
  EXPECT_EQ(rig.title(0), "First") << "coming back from the deck the row is still under edit";
  rig.key('G');
  rig.clock.advance(1500);
  EXPECT_EQ(rig.window.List1.markedRow, -1);
  rig.key('D');
  rig.clock.advance(1500);
  rig.click(rig.window.Command1);
  EXPECT_EQ(rig.form.Label12.caption.get(), "Artist");
  EXPECT_EQ(rig.form.Label13.caption.get(), rig.state.disc.trackTitles[static_cast<size_t>(rig.state.transport.curTrack)]);
  rig.open();
  EXPECT_TRUE(rig.window.loaded());
  const size_t boxes = rig.dialogs.tape.size();
  rig.open();
  EXPECT_EQ(rig.dialogs.tape.size(), boxes) << "its key only brings it to the front";
}

TEST(EditorLife, WindowsOpenBesideTheDeckOnTheScreen) {
  struct Case {
    int width, height, left, top;  ///< of the screen in pixels; of the deck in twips
  };
  for (const Case& c : {Case{1600, 1000, 6000, 600}, {1600, 1000, 6000, 11000}, {800, 600, 2000, 2000}, {2560, 800, 0, 3000}}) {
    Life rig;
    rig.windowKey(forms::key::kEscape);
    rig.screen.width = c.width;
    rig.screen.height = c.height;
    rig.form.left = c.left;
    rig.form.top = c.top;
    rig.key('I');
    rig.key('L');
    rig.key(forms::key::kF1 + 6);
    for (const forms::Form* form : {static_cast<forms::Form*>(&rig.orvanta.playlistForm), static_cast<forms::Form*>(&rig.window)}) {
      ASSERT_TRUE(form->loaded());
      EXPECT_GE(form->left, 0);
      EXPECT_GE(form->top, 0);
      EXPECT_LE(form->left + form->width, std::max(c.width * 15, form->width.get()));
      EXPECT_LE(form->top + form->height, std::max(c.height * 15, form->height.get()));
    }
    const cdplist& list = rig.orvanta.playlistForm;
    const bool apart = list.top + list.height <= c.top || list.top >= c.top + rig.form.height || list.left + list.width <= c.left ||
                       list.left >= c.left + rig.form.width;
    EXPECT_EQ(apart, c.width != 800) << "only a screen without room has it over the deck, at " << list.left << " " << list.top;
  }
}

}  // namespace
}  // namespace orvanta::test
