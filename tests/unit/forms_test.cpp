// Forms without a screen: properties, life, focus, keys and the mouse's one release.
#include <gtest/gtest.h>

#include <functional>

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
  void mouseUp(Control* c, const Mouse& /*m*/) override { tape.push_back("up " + name(c)); }
  void click(Control& c) override { tape.push_back("click " + name(&c)); }
  bool keyDown(const KeyPress& key) override { return key.code == 'D'; }
  void lostFocus(Control& c) override { tape.push_back("lost " + name(&c)); }
  void gotFocus(Control& c) override { tape.push_back("got " + name(&c)); }
  Tape& tape;
  std::function<void()> onDown;
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
  form.mouseUp({MouseButton::Left, -5, 0});
  form.mouseUp({});
  EXPECT_EQ(tape, (Tape{"got keys(0)", "down keys(0)", "up keys(0)"})) << "no click: released outside";
  tape.clear();
  form.keys[1].enabled = false;
  form.press(form.keys[1]);
  form.press(form.keys[2]);
  EXPECT_EQ(tape, (Tape{"lost keys(0)", "got keys(2)", "down keys(2)", "up keys(2)", "click keys(2)"}));
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

TEST(CoreGate, AfterTheEndNothingIsDelivered) {
  CoreGate gate;
  int calls = 0;
  int ends = 0;
  gate.setOnEnd([&] { ++ends; });
  gate.enter([&] {
    gate.enter([&] {
      ++calls;
      end();
    });
    EXPECT_TRUE(gate.ended());
    gate.leaveIfEnded();
    ++calls;
  });
  gate.enter([&] { ++calls; });
  EXPECT_EQ(calls, 1);
  EXPECT_GE(ends, 1);
}

}  // namespace
}  // namespace orvanta::test
