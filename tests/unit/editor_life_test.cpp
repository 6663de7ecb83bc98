// What a person has typed in CD Data: which row it belongs to, and that nothing takes it away.
#include "tests/support/editor.h"

namespace orvanta::test {
namespace {

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
  bool has(const std::string& suffix, const std::string& text) const { return file(suffix).find(text) != std::string::npos; }
};

// ---- rows

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
      EXPECT_NE(rig.dialogs.tape[0].find("No space left on device"), std::string::npos);
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

// ---- beside the deck

TEST(EditorLife, WindowsOpenBesideTheDeckOnTheScreen) {
  const struct {
    int width, height, left, top;  ///< of the screen in pixels; of the deck in twips
    std::string data, info;        ///< their places: CD Info's is the corner below the deck, where there is height for it
  } cases[] = {
      {1600, 1000, 6000, 600, "4927,4094", "17550,4114 10906"},
      {1600, 1000, 6000, 11000, "4927,1520", "7552,8020 2500"},
      {800, 600, 2000, 2000, "300,0", "5550,5514 3506"},
      {2560, 800, 0, 3000, "9554,247", "31950,6514 5506"},
      // As much is covered above as below; the transport keys are below.
      {1024, 1200, 2903, 7253, "1830,0", "8910,10767 7253"},
  };
  for (const auto& c : cases) {
    Life rig;
    rig.windowKey(forms::key::kEscape);
    rig.screen.width = c.width;
    rig.screen.height = c.height;
    rig.form.left = c.left;
    rig.form.top = c.top;
    rig.key('I');
    const cdartext& info = rig.orvanta.infoForm;
    const auto corner = [](const forms::Form& form) { return std::to_string(form.left) + "," + std::to_string(form.top); };
    EXPECT_EQ(corner(info) + " " + std::to_string(info.height), c.info);
    rig.key('L');
    rig.key(forms::key::kF1 + 6);
    EXPECT_EQ(corner(rig.window), c.data);
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
    EXPECT_EQ(apart, c.width > 800) << "only a screen without room has it over the deck, at " << list.left << " " << list.top;
  }
}

}  // namespace
}  // namespace orvanta::test
