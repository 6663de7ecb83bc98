// Hands on the faceplate: what a press changes, the whole form held against itself before and after.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <sstream>

#include "tests/support/core_rig.h"

namespace orvanta::test {
namespace {

/// What differs between two prints of a form: the new line of each control. Where a control waits that does
/// not show is nobody's concern.
Tape changes(const std::string& before, const std::string& after) {
  std::istringstream was(before);
  std::istringstream is(after);
  Tape differing;
  for (std::string a, b; std::getline(was, a) && std::getline(is, b);) {
    const bool hidden = a.ends_with(" hidden") && b.ends_with(" hidden");
    if (a != b && !hidden) differing.push_back(b);
  }
  return differing;
}

struct Hands : CoreRig {
  explicit Hands(const std::function<void(Hands&)>& prepare = {}) {
    if (prepare) prepare(*this);
    startWith(discA());
  }
  std::string look() const { return forms::formAsText(form); }
  /// What an act changes in the form.
  Tape by(const std::function<void()>& act) {
    const std::string before = look();
    act();
    return changes(before, look());
  }
  void down(forms::Control& control, int x = 50, int y = 50) {
    gate.enter([&] { form.mouseDown(&control, {forms::MouseButton::Left, x, y}); });
  }
  void up(int x = 50, int y = 50) {
    gate.enter([&] { form.mouseUp({forms::MouseButton::Left, x, y}); });
  }
};

TEST(Hands, WhoSlidesOffAKeyHasThoughtBetterOfIt) {
  Hands rig;
  rig.key('D');
  rig.clock.advance(30000);
  const size_t orders = rig.device.tape.size();
  CDForm& form = rig.form;
  const std::initializer_list<forms::Control*> keys = {
      &form.Image6,     &form.Image5,     &form.icntla[Stop], &form.icntla[Record], &form.scntla[1],  &form.scntla[2],
      &form.Image17[2], &form.Image16[0], &form.Image16[1],   &form.Image16[2],     &form.Image16[4], &form.Image4[1],
      &form.Image10[1], &form.Image10[2], &form.Image2[1],    &form.Image9[1],      &form.Image19[0], &form.Image20[0],
      &form.Image11,    &form.PctL,       &form.Panel3D2,     &form.CDStatusBar,    &form.Label6,     &form.Label9};
  for (forms::Control* key : keys) {
    EXPECT_EQ(rig.by([&] {
      rig.down(*key);
      rig.up(-2000, 4000);
    }),
              Tape{})
        << key->fullName();
  }
  EXPECT_EQ(rig.device.tape.size(), orders);
  EXPECT_FALSE(rig.gate.ended());
  EXPECT_EQ(rig.dialogs.tape, Tape{});
  // A scan key ends its scan wherever the mouse is.
  rig.down(form.scntla[ScanForward]);
  EXPECT_EQ(rig.state.transport.scanCount, 1);
  rig.up(-2000, 4000);
  EXPECT_EQ(rig.state.transport.scanCount, 0);
  EXPECT_FALSE(form.scntlc[ScanForward].visible);
}

TEST(Hands, ALetterWhileTheMouseHoldsAKeyLeavesNoKeyShifted) {
  Hands rig;
  rig.key('D');
  rig.clock.advance(3000);
  const auto places = [&] {
    Tape all;
    for (const auto& face : rig.form.icntla) all.push_back(std::to_string(face.left) + ' ' + std::to_string(face.top));
    return all;
  };
  const Tape rest = places();
  for (const char letter : {'G', 'F', 'S'}) {
    rig.down(rig.form.icntla[Next]);
    EXPECT_NE(places(), rest);
    rig.key(letter);
    rig.up(-2000, 0);
    EXPECT_EQ(places(), rest) << letter;
    EXPECT_FALSE(rig.form.Shape2.visible) << letter;
    rig.key('D');
  }
}

TEST(Hands, AMuteIsKeptWhateverKeyFollows) {
  Hands rig([](Hands& fresh) { fresh.auxVolume.reading.volume = 0x80008000; });
  rig.press(rig.form.Image2[1]);
  ASSERT_EQ(rig.auxVolume.reading.volume, 0U);
  EXPECT_EQ(rig.form.activeControl(), &rig.form.Image2[0]);
  rig.key(forms::key::kSpace);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0x80008000U) << "Space lifts it";
  rig.key(forms::key::kEnter);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0U);
  const size_t written = rig.auxVolume.written.size();
  EXPECT_EQ(rig.by([&] { rig.gate.enter([&] { rig.form.press(rig.form.Image2[1]); }); }), Tape{}) << "the face that does not show";
  EXPECT_EQ(rig.auxVolume.written.size(), written);
  rig.key(forms::key::kF1 + 3);
  EXPECT_EQ(rig.auxVolume.reading.volume, 0x80008000U);
  // Held down, the key for mute does not flap; those for the level go on.
  EXPECT_EQ(rig.by([&] { rig.gate.enter([&] { rig.form.keyDown({forms::key::kF1 + 3, false, false, false, true}); }); }), Tape{});
  rig.gate.enter([&] { rig.form.keyDown({forms::key::kF1 + 5, false, false, false, true}); });
  EXPECT_EQ(rig.form.PctL.caption.get(), "45");
}

TEST(Hands, ASliderIsNoKey) {
  Hands rig;
  rig.form.setFocus(rig.form.VolumeL, true);
  EXPECT_EQ(rig.by([&] {
    rig.key(forms::key::kSpace);
    rig.key(forms::key::kEnter);
  }),
            Tape{});
  for (const int code : {int{forms::key::kDown}, int{forms::key::kLeft}}) rig.key(code);
  EXPECT_EQ(rig.form.PctL.caption.get(), "90");
  for (const int code : {int{forms::key::kUp}, int{forms::key::kRight}, int{forms::key::kUp}}) rig.key(code);
  EXPECT_EQ(rig.form.PctL.caption.get(), "100");
}

TEST(Hands, TabBeginsAtPlayAndMeetsLiveKeysAlone) {
  const auto tour = [](Hands& rig) {
    Tape stops;
    for (;;) {
      rig.key(forms::key::kTab);
      const std::string name = rig.form.activeControl()->fullName();
      if (!stops.empty() && name == stops.front()) return stops;
      stops.push_back(name);
    }
  };
  Hands rig;
  const Tape stops = tour(rig);
  EXPECT_EQ(stops.front(), "icntla(2)");
  for (const char* dead : {"icntla(0)", "icntla(3)", "icntla(4)", "scntla(0)", "Image17(3)", "Image16(0)"})
    EXPECT_EQ(std::count(stops.begin(), stops.end(), dead), 0) << dead;
  for (const char* live : {"icntla(5)", "Image17(2)", "Image2(1)", "VolumeR", "Panel3D2", "Image16(3)", "Image5"})
    EXPECT_EQ(std::count(stops.begin(), stops.end(), live), 1) << live;
  // With the door open the tray is what is left to press.
  rig.key('J');
  rig.clock.advance(1000);
  const Tape open = tour(rig);
  EXPECT_EQ(std::count(open.begin(), open.end(), "Panel3D7"), 1);
  for (const char* dead : {"Panel3D2", "icntla(2)", "Image17(2)", "Image10(2)"})
    EXPECT_EQ(std::count(open.begin(), open.end(), dead), 0) << dead;
}

/// What of door and tray shows, and where.
std::string door(const CDForm& form) {
  std::string text;
  for (const auto* panel : {&form.Panel3D6, &form.Panel3D8, &form.Panel3D7, &form.Panel3D9, &form.Panel3D10}) {
    if (!panel->visible || !panel->insideForm()) continue;
    text += panel->name() + (panel->empty ? " empty " : " ") + std::to_string(panel->left) + "," + std::to_string(panel->top) + "; ";
  }
  const bool recess = form.Panel3D2.bevelInner == 1 && form.Panel3D2.bevelOuter == 1;
  const bool plate = form.Image77[0].visible && form.Image77[1].visible && form.Label77[0].visible && form.Label77[1].visible;
  return text + (recess ? "recess" : "shut") + (plate ? " plate" : "") + (form.Line7.visible ? " groove" : "");
}

constexpr const char* kShut = "shut plate groove";
constexpr const char* kOpen = "Panel3D7 1200,600; Panel3D9 4690,840; Panel3D10 1200,1570; recess";
constexpr const char* kAwayOpen = "recess";

TEST(Door, SlidesByATimerWhileTheDeckGoesOn) {
  Hands rig;
  EXPECT_EQ(door(rig.form), kShut);
  const int64_t before = rig.clock.milliseconds();
  rig.key('J');
  EXPECT_EQ(rig.clock.milliseconds(), before) << "nothing waits";
  EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
  EXPECT_TRUE(rig.files.exists("/data/ejcd.tmp"));
  EXPECT_EQ(rig.sounds.tape.back(), "/data/system/opendraw.wav");
  const size_t sounds = rig.sounds.tape.size();
  for (const auto& mask : rig.form.icntlb) EXPECT_TRUE(mask.visible || mask.index() == Previous || mask.index() == Record);
  for (const char* frame : {kShut, "Panel3D6 1320,480; recess plate", "Panel3D8 1260,540; recess", kOpen}) {
    EXPECT_EQ(door(rig.form), frame);
    rig.clock.advance(110);
  }
  // Once more while it is open: it asks for a disc instead.
  rig.key('J');
  EXPECT_EQ(rig.dialogs.tape, Tape{"open Put a Disc in"});
  EXPECT_EQ(door(rig.form), kOpen);
  EXPECT_EQ(rig.sounds.tape.size(), sounds);
}

TEST(Door, IsFoundAsItStandsByEveryLayout) {
  // From which layout it was opened, and which keys lead back to the normal one.
  for (const bool expanded : {false, true}) {
    for (const int when : {0, 150, 400}) {
      Hands rig;
      CDForm& form = rig.form;
      forms::Control& away = expanded ? static_cast<forms::Control&>(form.Image20[0]) : form.Image11;
      forms::Control& back = expanded ? static_cast<forms::Control&>(form.Image20[0]) : form.Image13;
      // Opened before the other layout, in the midst of it, or there.
      if (when > 0) {
        rig.key('J');
        rig.clock.advance(when);
        if (!expanded) form.Image11.enabled = true;
        rig.press(away);
      } else {
        rig.press(away);
        rig.key('J');
      }
      rig.clock.advance(400);
      EXPECT_EQ(door(form), kAwayOpen) << expanded << ' ' << when;
      // The prompt stands for the tray that does not show.
      rig.press(form.Label12);
      EXPECT_EQ(rig.dialogs.tape, Tape{"open Put a Disc in"});
      rig.press(back);
      EXPECT_EQ(door(form), kOpen) << expanded << ' ' << when;
      rig.press(form.Panel3D7);
      EXPECT_EQ(rig.dialogs.tape.size(), 2U) << "not dead";
    }
  }
}

TEST(NoDisc, IsSeenAtOnceAndTellsTheWayIn) {
  CoreRig rig;
  rig.install();
  rig.start();
  CDForm& form = rig.form;
  const auto seen = [&] {
    EXPECT_EQ(form.Label12.caption.get(), "Please insert an Audio CD or Enh-CD into the drive...");
    EXPECT_EQ(form.Label13.caption.get(), "click the tray or drop a disc image");
    EXPECT_EQ(form.Label8.caption.get(), "0");
    EXPECT_EQ(form.Label10.caption.get(), "00:00");
    for (const auto& face : form.icntla) EXPECT_FALSE(face.available()) << face.fullName();
    for (const auto& number : form.Image17) EXPECT_FALSE(number.available()) << number.fullName();
    for (const size_t key : {1U, 2U, 3U}) EXPECT_FALSE(form.Image10[key].available()) << key;
    for (const auto& key : form.Image16) EXPECT_FALSE(key.available()) << key.fullName();
  };
  seen();
  rig.clock.advance(5000);
  seen();
  EXPECT_EQ(door(form), "Panel3D7 empty 1200,600; Panel3D9 empty 4690,840; Panel3D10 empty 1200,1570; recess");
  for (forms::Control* way : {static_cast<forms::Control*>(&form.Panel3D7), static_cast<forms::Control*>(&form.Label13)}) {
    rig.dialogs.tape.clear();
    rig.press(*way);
    EXPECT_EQ(rig.dialogs.tape, Tape{"open Put a Disc in"}) << way->fullName();
  }
  // A drive that is not there is named: nothing can be put into it.
  CoreRig none;
  none.install();
  none.player.absent = "/media/nothing";
  none.start();
  EXPECT_EQ(none.form.Label12.caption.get(), "There is no drive /media/nothing");
  EXPECT_EQ(none.form.Label13.caption.get(), "choose another one in the setup");
  // A disc that was in shows in the tray.
  Hands with;
  with.key('J');
  with.clock.advance(400);
  EXPECT_EQ(door(with.form), kOpen);
}

TEST(Entry, OutOfSightGivesTheKeysBack) {
  Hands rig([](Hands& fresh) { fresh.auxVolume.reading.volume = 0xFFFFFFFF; });
  rig.player.insert(discA());
  rig.form.Label44.foreColor = colours::kBlack;
  rig.press(rig.form.Image16[Above20]);
  ASSERT_TRUE(rig.form.Text1.visible);
  EXPECT_EQ(rig.form.activeControl(), &rig.form.Text1);
  rig.press(rig.form.Image11);
  EXPECT_FALSE(rig.form.Text1.visible);
  rig.key('D');
  EXPECT_EQ(rig.state.transport.playingFlag, kOn);
  rig.press(rig.form.Image13);
  EXPECT_TRUE(rig.form.Image16[Above20].visible && rig.form.Label44.visible);
}

/// The setup program is opened and writes these settings.
void setUp(CoreRig& rig, const std::function<void(Settings&)>& change) {
  Settings changed = rig.state.settings;
  change(changed);
  rig.processes.onStart = [&] {
    for (const auto file : {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7})
      writeSettings(file, rig.files, "/data", changed);
  };
  rig.state.process.setupWanted = kOn;
  rig.clock.advance(1200);
  rig.processes.onStart = nullptr;
}

TEST(Colours, SwitchedOffInTheSetupLeaveNothingBehind) {
  const auto wear = [](Settings& settings) {
    settings.lcdCustom = 1;
    settings.lcdFore = 0x000000;
    settings.lcdBack = 0x29CF95;
    settings.customColor = {1, 0xE0E0E0, 0xD0D0D0, 0xC0C0C0, 0x60D818, 0, 0, 0, 0, 0, 0};
  };
  Hands rig([&](Hands& fresh) { wear(fresh.settings); });
  Hands plain;
  const Settings own = plain.state.settings;
  const auto takeOff = [&](Settings& settings) {
    settings.lcdCustom = own.lcdCustom;
    settings.lcdFore = own.lcdFore;
    settings.lcdBack = own.lcdBack;
    settings.customColor = own.customColor;
  };
  EXPECT_NE(rig.look(), plain.look());
  setUp(rig, takeOff);
  setUp(plain, takeOff);
  EXPECT_EQ(changes(plain.look(), rig.look()), Tape{});
  setUp(plain, wear);
  setUp(rig, wear);
  EXPECT_EQ(changes(plain.look(), rig.look()), Tape{});
  EXPECT_EQ(rig.form.Label12.foreColor, Colour{0});
}

TEST(Colours, LegendsCanBeReadOnAnyGround) {
  for (const Colour ground : {0x332E2BU, 0x000000U, 0xFFFFFFU, 0xE0E0E0U, 0x808080U, 0x0000FFU, 0x00FFFFU, 0xFF0000U, 0xE6E1DCU}) {
    Hands rig([&](Hands& fresh) { fresh.settings.customColor = {1, ground, ground, ground, 0x60D818, 0, 0, 0, 0, 0, 0}; });
    const CDForm& form = rig.form;
    for (const forms::Control* legend :
         std::initializer_list<const forms::Control*>{&form.Label1, &form.Label2, &form.Label3, &form.Label15, &form.Label41, &form.Label27,
                                                      &form.Label78[0], &form.Label78[5], &form.Label77[0], &form.Label77[1]}) {
      EXPECT_GE(contrast(legend->foreColor, ground), 3) << legend->fullName() << " on " << ground;
    }
  }
  EXPECT_NEAR(contrast(colours::kBlack, colours::kWhite), 21, .1);
  EXPECT_EQ(contrast(0x123456, 0x123456), 1);
}

TEST(Colours, OfTheDisplayGoWhereTheyBelong) {
  constexpr Colour kFront = 0x4A2010;
  constexpr Colour kBack = 0xE4C4A9;
  constexpr Colour kPrinted = 0x4F4F4F;
  struct Row {
    const char* name;
    int index;
    Colour own;     ///< in the deck's own colours
    Colour custom;  ///< in the user's
  };
  constexpr int kOne = forms::kNoIndex;
  const Row fore[] = {{"Label23", kOne, 0x00FF00, kFront},  {"Label6", kOne, 0x00FF00, kFront},    {"Label8", kOne, 0x00FF00, kFront},
                      {"Label10", kOne, 0x00FF00, kFront},  {"Label12", kOne, 0x50C8FF, kFront},   {"Label13", kOne, 0x00FF00, kFront},
                      {"Label9", kOne, 0xFFFF00, kFront},   {"Label7", kOne, 0xFFFF00, kFront},    {"Label11", kOne, 0xFFFF00, kFront},
                      {"Label16", kOne, 0x004040, kBack},   {"Label32", kOne, 0x585800, kPrinted}, {"Label33", kOne, 0x3C3C00, kPrinted},
                      {"Line10", kOne, 0x323200, kPrinted}, {"Line12", kOne, 0x323200, kPrinted},  {"Line11", kOne, 0x323200, 0x606060},
                      {"Line1", kOne, 0x000000, kBack},     {"Line8", kOne, 0x000000, kBack}};
  const Row back[] = {{"Panel3D1", kOne, 0, kBack}, {"Panel3D5", kOne, 0, kBack}, {"CDStatusBar", kOne, 0, kBack}};
  for (const bool custom : {false, true}) {
    Hands rig([&](Hands& fresh) {
      fresh.settings.lcdCustom = custom ? 1 : 0;
      fresh.settings.lcdFore = kFront;
      fresh.settings.lcdBack = kBack;
      fresh.settings.showLights = custom ? 0 : 1;
      fresh.settings.faceplateBorder = custom ? 1 : 0;
    });
    for (const Row& row : fore) EXPECT_EQ(rig.form.find(row.name)->foreColor, custom ? row.custom : row.own) << row.name;
    for (const Row& row : back) EXPECT_EQ(rig.form.find(row.name)->backColor, custom ? row.custom : row.own) << row.name;
    EXPECT_EQ(rig.form.CDStatusBar.floodColor, custom ? kFront : rig.state.settings.customColor[4]);
    for (const auto& lamp : rig.form.Shape15) EXPECT_EQ(lamp.visible, !custom) << lamp.index();
    for (const auto* line : {&rig.form.Line2, &rig.form.Line3, &rig.form.Line4, &rig.form.Line5}) EXPECT_EQ(line->visible, custom);
  }
  // The user's colours of the window, each at its own places; two of them for words and digits of the display.
  Hands rig([](Hands& fresh) { fresh.settings.customColor = {0x11, 0x22, 0x33, 0x44, 0x55, 0, 0, 0, 0, 0x99, 0xAA}; });
  const CDForm& form = rig.form;
  const auto backs = [](std::initializer_list<const forms::Control*> controls, Colour colour) {
    for (const auto* control : controls) EXPECT_EQ(control->backColor, colour) << control->fullName();
  };
  EXPECT_EQ(form.Line2.foreColor, Colour{0x11});
  EXPECT_EQ(form.backColor, Colour{0x22});
  backs({&form.Label1, &form.Label2, &form.Label3, &form.Label4, &form.Label5}, 0x22);
  backs({&form.Panel3D2, &form.Panel3D6, &form.Panel3D7, &form.Panel3D8}, 0x33);
  backs({&form.Panel3D3, &form.SSPanel1}, 0x44);
  backs({&form.VbarbtmL, &form.VbarbtmR}, 0x55);
  EXPECT_EQ(form.CDStatusBar.floodColor, Colour{0x55});
  for (const auto* label : {&form.Label7, &form.Label9, &form.Label11}) EXPECT_EQ(label->foreColor, Colour{0x99});
  for (const auto* label : {&form.Label8, &form.Label10}) EXPECT_EQ(label->foreColor, Colour{0xAA});
}

/// Both sliders with all their parts, the keys under them, and the device's word.
std::string sliders(const Hands& rig) {
  const CDForm& form = rig.form;
  const auto channel = [](const forms::Label& pct, const forms::Shape& thumb, const forms::ControlArray<forms::Line, 2>& lines,
                          const forms::Panel& upper, const forms::Panel& lower) {
    const bool together = lines[0].top == thumb.top && lines[1].top == thumb.top && lines[1].height == 79 && upper.height == thumb.top - 90;
    return pct.caption.get() + "% " + std::to_string(thumb.top) + (together ? "" : " apart") + (upper.visible ? " cover" : "") +
           (thumb.backColor == Colour{0x7EFEDE} ? " held" : "") + (lower.backColor == colours::kRed ? " red" : "") + " | ";
  };
  char word[16];
  std::snprintf(word, sizeof word, "%08X", static_cast<unsigned>(rig.auxVolume.reading.volume));
  return channel(form.PctL, form.ThumbL, form.TlineL, form.VbartopL, form.VbarbtmL) +
         channel(form.PctR, form.ThumbR, form.TlineR, form.VbartopR, form.VbarbtmR) + (form.Image9[1].visible ? "linked" : "") +
         (form.Image9[0].visible ? "apart" : "") + (form.Image2[1].visible ? " sound " : "") + (form.Image2[0].visible ? " mute " : "") +
         word;
}

TEST(Sliders, AfterEachActInEachState) {
  struct Case {
    const char* what;
    std::function<void(Hands&)> act;
    const char* seen;
  };
  const auto turn = [](Hands& rig, forms::Control& control, int notches) { rig.gate.enter([&] { rig.form.wheel(&control, notches); }); };
  const auto apart = [](Hands& rig) { rig.press(rig.form.Image9[1]); };
  const auto mute = [](Hands& rig) { rig.press(rig.form.Image2[1]); };
  const Case cases[] = {
      {"nothing", [](Hands&) {}, "50% 575 cover | 50% 575 cover | linked sound 80008000"},
      {"louder", [&](Hands& rig) { turn(rig, rig.form.VolumeL, 1); }, "55% 525 cover | 55% 525 cover | linked sound 8CCD8CCD"},
      {"softer, at the other", [&](Hands& rig) { turn(rig, rig.form.VolumeR, -1); },
       "45% 625 cover | 45% 625 cover | linked sound 73337333"},
      {"to the end", [&](Hands& rig) { turn(rig, rig.form.VolumeL, 12); }, "100% 75 | 100% 75 | linked sound FFFFFFFF"},
      {"to the other end", [&](Hands& rig) { turn(rig, rig.form.VolumeL, -12); }, "0% 1070 cover | 0% 1070 cover | linked sound 00000000"},
      {"a percent", [](Hands& rig) { rig.press(rig.form.PctR); }, "0% 1070 cover | 0% 1070 cover | linked sound 00000000"},
      {"held", [](Hands& rig) { rig.down(rig.form.VolumeL, 100, 600); }, "50% 575 cover held | 50% 575 cover held | linked sound 80008000"},
      {"held and let go", [](Hands& rig) { rig.down(rig.form.VolumeL, 100, 600), rig.up(); },
       "50% 575 cover | 50% 575 cover | linked sound 80008000"},
      {"a press beside the thumb", [](Hands& rig) { rig.down(rig.form.VolumeL, 100, 160), rig.up(); },
       "97% 100 cover | 97% 100 cover | linked sound F851F851"},
      {"apart", [&](Hands& rig) { apart(rig); }, "50% 575 cover | 50% 575 cover | apart sound 80008000"},
      {"apart, left louder", [&](Hands& rig) { apart(rig), turn(rig, rig.form.VolumeL, 1); },
       "55% 525 cover | 50% 575 cover | apart sound 80008CCD"},
      {"apart, right softer", [&](Hands& rig) { apart(rig), turn(rig, rig.form.VolumeR, -1); },
       "50% 575 cover | 45% 625 cover | apart sound 73338000"},
      {"apart, left silent", [&](Hands& rig) { apart(rig), rig.press(rig.form.PctL); },
       "0% 1070 cover | 50% 575 cover | apart sound 80000000"},
      {"apart, right held", [&](Hands& rig) { apart(rig), rig.down(rig.form.VolumeR, 100, 600); },
       "50% 575 cover | 50% 575 cover held | apart sound 80008000"},
      {"together again", [&](Hands& rig) { apart(rig), turn(rig, rig.form.VolumeL, 1), rig.press(rig.form.Image9[0]); },
       "55% 525 cover | 50% 575 cover | linked sound 80008CCD"},
      {"mute", [&](Hands& rig) { mute(rig); }, "50% 575 cover red | 50% 575 cover red | linked mute 00000000"},
      {"mute and back", [&](Hands& rig) { mute(rig), rig.press(rig.form.Image2[0]); },
       "50% 575 cover | 50% 575 cover | linked sound 80008000"},
      {"mute, a drag", [&](Hands& rig) { mute(rig), rig.down(rig.form.VolumeL, 100, 300), rig.up(); },
       "50% 575 cover red | 50% 575 cover red | linked mute 00000000"},
      {"mute apart, a percent", [&](Hands& rig) { apart(rig), mute(rig), rig.press(rig.form.PctL); },
       "0% 1070 cover | 50% 575 cover | apart sound 80000000"},
      {"F5", [](Hands& rig) { rig.key(forms::key::kF1 + 4); }, "55% 525 cover | 55% 525 cover | linked sound 8CCD8CCD"},
      {"apart, F6", [&](Hands& rig) { apart(rig), rig.key(forms::key::kF1 + 5); }, "45% 625 cover | 45% 625 cover | apart sound 73337333"},
      {"the right button beside a slider",
       [](Hands& rig) {
         rig.gate.enter([&] {
           rig.form.mouseDown(&rig.form.VolumeL, {forms::MouseButton::Right, 100, 300});
           rig.form.mouseUp({forms::MouseButton::Right, 100, 300});
         });
       },
       "50% 575 cover | 50% 575 cover | linked sound 80008000"},
  };
  for (const Case& row : cases) {
    Hands rig([](Hands& fresh) { fresh.auxVolume.reading.volume = 0x80008000; });
    const Tape changed = rig.by([&] { row.act(rig); });
    EXPECT_EQ(sliders(rig), row.seen) << row.what;
    for (const std::string& line : changed) {
      const bool part = line.find(" in VolumeL ") != std::string::npos || line.find(" in VolumeR ") != std::string::npos ||
                        line.rfind("Pct", 0) == 0 || line.rfind("Image2(", 0) == 0 || line.rfind("Image9(", 0) == 0;
      EXPECT_TRUE(part) << row.what << ": " << line;
    }
  }
}

TEST(Mixer, IsPreparedWhenTheSetupTurnsToIt) {
  Hands rig;
  EXPECT_EQ(rig.mixer.tape, Tape{});
  setUp(rig, [](Settings& settings) { settings.soundMode = 4; });
  EXPECT_EQ(std::count(rig.mixer.tape.begin(), rig.mixer.tape.end(), "{RIGHT 32}"), 1);
  EXPECT_EQ(rig.form.PctL.caption.get(), "50");
  setUp(rig, [](Settings& settings) { settings.soundMode = 4; });
  EXPECT_EQ(std::count(rig.mixer.tape.begin(), rig.mixer.tape.end(), "{RIGHT 32}"), 1) << "once";
}

}  // namespace
}  // namespace orvanta::test
