// Forms without a screen: properties, life, focus, keys and the mouse's one release.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <tuple>

#include "platform/forms/design.h"
#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

using namespace forms;

constexpr DesignRow row(const char* name, int index, int z, Place place, const char* caption, bool tabStop, const char* parent = "Little") {
  return {name,    index,       parent, z,       place, {place.left * 2, place.top, place.width, place.height},
          caption, 0,           0,      "Arial", 8,     false,
          true,    Align::Left, false,  tabStop, false, "",
          "",      ""};
}

struct Little : Form {
  Little() : Form("Little") {}
  Label title{*this, "title"};
  ControlArray<Image, 3> keys{*this, "keys"};
  Panel box{*this, "box"};
  Bar bar{*this, "bar"};
  std::span<const DesignRow> design() const override {
    static constexpr DesignRow kRows[] = {row("Little", -1, 0, {0, 0, 1000, 500}, "A little form", false),
                                          row("bar", -1, 1, {0, 0, 100, 10}, "", true, "box"),
                                          row("title", -1, 1, {10, 10, 100, 20}, "Hello", false),
                                          row("keys", 2, 1, {300, 0, 90, 90}, "", true),
                                          row("keys", 0, 1, {100, 0, 90, 90}, "", true),
                                          row("keys", 1, 1, {200, 0, 90, 90}, "", true),
                                          row("box", -1, 0, {0, 200, 500, 100}, "", false)};
    return kRows;
  }
  std::span<const PartnerRow> partners() const override {
    static constexpr PartnerRow kRows[] = {
        {Role::Mask, "keys", 1, "box"}, {Role::Grey, "bar", -1, "title"}, {Role::Hole, "keys", kEach, "keys", kEach}};
    return kRows;
  }
};

struct Recorder : FormEvents {
  explicit Recorder(Tape& to) : tape(to) {}
  static std::string name(Control* c) { return c == nullptr ? "form" : c->fullName(); }
  void load() override { tape.emplace_back("load"); }
  void activate() override { tape.emplace_back("activate"); }
  void unload() override { tape.emplace_back("unload"); }
  void mouseDown(Control* c, const Mouse& /*m*/) override {
    tape.push_back("down " + name(c));
    if (onDown) onDown();
  }
  void mouseUp(Control* c, const Mouse& m) override {
    tape.push_back((m.over ? "up " : "off ") + name(c));
    if (onUp) onUp();
  }
  void click(Control& c) override { tape.push_back("click " + name(&c)); }
  bool keyDown(const KeyPress& key) override { return key.code == 'D'; }
  void lostFocus(Control& c) override { tape.push_back("lost " + name(&c)); }
  void gotFocus(Control& c) override { tape.push_back("got " + name(&c)); }
  Tape& tape;
  std::function<void()> onDown;
  std::function<void()> onUp;
};

struct Forms : testing::Test {
  Forms() {
    form.setEvents(&recorder);
    form.show(desktop);
    tape.clear();
    desktop.tape.clear();
  }
  Tape tape;
  Recorder recorder{tape};
  FakeDesktop desktop;
  Little form;
};

TEST_F(Forms, LoadPutsTheDesignBackAndRunsHandlersInOrder) {
  EXPECT_EQ(form.keys[2].left, 600);
  EXPECT_EQ(form.bar.parent, &form.box);
  form.title.caption = "changed";
  form.show(desktop);
  EXPECT_EQ(tape, Tape{}) << "already the one that was shown last";
  form.unload();
  form.smallFonts = false;
  form.show(desktop);
  EXPECT_EQ(tape, (Tape{"unload", "load", "activate"}));
  EXPECT_EQ(form.title.caption, "Hello");
  EXPECT_EQ(form.keys[2].left, 300);
}

TEST_F(Forms, AnEqualValueDoesNothing) {
  form.title.caption = "Hello";
  form.keys[1].visible = true;
  EXPECT_EQ(desktop.tape, Tape{});
  form.title.caption = "Other";
  form.keys[1].move(form.keys[1].left, 5);
  EXPECT_EQ(desktop.tape, (Tape{"title", "keys(1)"}));
}

TEST_F(Forms, EveryPressHasExactlyOneRelease) {
  form.mouseDown(&form.keys[0], {});
  form.mouseDown(&form.keys[1], {});
  form.keys[0].visible = false;
  form.mouseUp({MouseButton::Right, 0, 0});
  form.mouseUp({MouseButton::Left, -50, 0});
  form.mouseUp({});
  EXPECT_EQ(tape, (Tape{"got keys(0)", "down keys(0)", "off keys(0)"})) << "no click: released outside";
  tape.clear();
  form.keys[1].enabled = false;
  form.press(form.keys[1]);
  form.press(form.keys[2]);
  EXPECT_EQ(tape, (Tape{"lost keys(0)", "got keys(2)", "down keys(2)", "up keys(2)", "click keys(2)"}));
}

TEST_F(Forms, AReleaseCountsWhereTheKeyIsAndWhereItStood) {
  // The key gives way by ten to the right and down; a pixel's rounding of 15 more is forgiven.
  for (const auto& [x, y, over] : std::initializer_list<std::tuple<int, int, bool>>{
           {0, 0, true}, {-25, -25, true}, {-26, 0, false}, {0, -26, false}, {94, 94, true}, {95, 0, false}, {0, 95, false}}) {
    tape.clear();
    recorder.onDown = [&] { form.keys[0].move(210, 10); };
    recorder.onUp = [&] { form.keys[0].move(200, 0); };
    form.mouseDown(&form.keys[0], {});
    form.mouseUp({MouseButton::Left, x, y});
    EXPECT_EQ(std::count(tape.begin(), tape.end(), "click keys(0)"), over ? 1 : 0) << x << ' ' << y;
    EXPECT_EQ(std::count(tape.begin(), tape.end(), over ? "up keys(0)" : "off keys(0)"), 1) << x << ' ' << y;
  }
}

TEST_F(Forms, OneHandAtATime) {
  form.setFocus(form.keys[2]);
  tape.clear();
  // Space while the mouse holds a key, and the mouse while Space does.
  form.mouseDown(&form.keys[0], {});
  EXPECT_FALSE(form.keyDown({key::kSpace}));
  form.keyUp({key::kSpace});
  form.mouseUp({});
  form.keyDown({key::kSpace});
  form.keyDown({key::kSpace, false, false, false, true});
  form.mouseDown(&form.keys[1], {});
  form.mouseUp({});
  form.press(form.keys[1]);
  form.keyUp({key::kSpace});
  EXPECT_EQ(tape, (Tape{"lost keys(2)", "got keys(0)", "down keys(0)", "up keys(0)", "click keys(0)", "down keys(0)", "up keys(0)",
                        "click keys(0)"}));
  // The key that is held when another window comes is let go there.
  tape.clear();
  form.keyDown({key::kEnter});
  form.deactivated();
  form.keyUp({key::kEnter});
  EXPECT_EQ(tape, (Tape{"down keys(0)", "off keys(0)"}));
}

TEST_F(Forms, AFaceThatGoesHandsTheFocusToItsTwin) {
  form.keys[1].move(form.keys[0].left, form.keys[0].top);
  form.keys[1].visible = false;
  recorder.onUp = [&] {
    form.keys[0].visible = false;
    form.keys[1].visible = true;
  };
  form.press(form.keys[0]);
  EXPECT_EQ(form.activeControl(), &form.keys[1]);
  recorder.onUp = nullptr;
  tape.clear();
  form.press(form.keys[0]);
  EXPECT_EQ(tape, Tape{}) << "what does not show takes no press";
  // By program, while nobody pressed: the next key finds the face that shows.
  form.keys[1].visible = false;
  form.keys[0].visible = true;
  form.keyDown({key::kSpace});
  EXPECT_EQ(form.activeControl(), &form.keys[0]);
  form.keyUp({key::kSpace});
  form.keys[0].visible = false;
  form.keyDown({key::kSpace});
  EXPECT_EQ(tape.back(), "click keys(0)") << "nothing in its place: Space presses nothing";
}

TEST_F(Forms, TabLeavesOutWhatIsUnavailable) {
  EXPECT_EQ(form.keys[2].with(Role::Hole), &form.keys[2]);
  EXPECT_EQ(form.keys[2].with(Role::Mask), nullptr);
  const auto available = [&] { return Tape{form.keys[1].available() ? "keys(1)" : "", form.bar.available() ? "bar" : ""}; };
  EXPECT_EQ(available(), (Tape{"", "bar"})) << "its mask shows";
  form.title.foreColor = colours::kGrey;
  EXPECT_EQ(available(), (Tape{"", ""}));
  form.box.visible = false;
  EXPECT_EQ(available(), (Tape{"keys(1)", ""}));
  form.firstStop = &form.keys[2];
  for (const char* next : {"keys(2)", "keys(0)", "keys(1)"}) {
    form.keyDown({key::kTab});
    EXPECT_EQ(form.activeControl()->fullName(), next);
  }
}

TEST_F(Forms, TabVisitsEveryLiveControlOnce) {
  form.keys[1].enabled = false;
  for (const char* next : {"keys(0)", "keys(2)", "bar", "keys(0)"}) {
    form.keyDown({key::kTab});
    EXPECT_EQ(form.activeControl()->fullName(), next);
  }
  form.keyDown({key::kTab, true});
  EXPECT_EQ(form.activeControl(), &form.bar);
  EXPECT_TRUE(form.focusShown());
  form.box.left = 5000;
  EXPECT_FALSE(form.setFocus(form.bar)) << "parked outside with its panel";
  EXPECT_TRUE(form.setFocus(form.keys[0]));
  EXPECT_FALSE(form.focusShown()) << "given by code";
}

TEST_F(Forms, SpaceIsAPressAndTheKeyTableWins) {
  form.setFocus(form.keys[2]);
  tape.clear();
  EXPECT_TRUE(form.keyDown({key::kSpace}));
  EXPECT_TRUE(form.keyDown({'D'}));
  EXPECT_FALSE(form.keyDown({'Q'}));
  form.keyUp({'D'});
  form.keyUp({key::kSpace});
  EXPECT_EQ(tape, (Tape{"down keys(2)", "up keys(2)", "click keys(2)"}));
}

TEST_F(Forms, PrintsItself) {
  form.bar.floodPercent = 7;
  form.keys[0].visible = false;
  EXPECT_EQ(formAsText(form),
            "Little form 0,0 1000x500\n"
            "title label 20,10 100x20 \"Hello\" 000000/000000\n"
            "keys(0) image 200,0 90x90 000000/000000 hidden\n"
            "keys(1) image 400,0 90x90 000000/000000\n"
            "keys(2) image 600,0 90x90 000000/000000\n"
            "box panel 0,200 500x100 000000/000000\n"
            "bar bar 0,0 100x10 in box 000000/000000 7%\n");
}

}  // namespace
}  // namespace orvanta::test
