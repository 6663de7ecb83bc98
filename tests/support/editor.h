// The CD Data window over the whole core, worked as a person does.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/core_rig.h"

namespace orvanta::test {

struct Editor : CoreRig {
  explicit Editor(const Toc& toc = discA(), const std::function<void(CoreRig&)>& prepare = {}) {
    if (prepare) prepare(*this);
    startWith(toc);
    clock.advance(2000);
    open();
  }
  void open() { key('L'); }
  acdtabs& window = orvanta.editor;
  /// Keys reach the window on top.
  void enterKey() { windowKey(forms::key::kEnter); }
  void windowKey(int code, bool shift = false) {
    gate.enter([&] {
      window.keyDown({code, shift});
      window.keyUp({code, shift});
    });
  }
  void type(const std::string& text) {
    ASSERT_NE(window.activeControl(), nullptr);
    gate.enter([&] { window.userText(*window.activeControl(), text); });
  }
  void line(const std::string& text) {
    type(text);
    enterKey();
  }
  void tabTo(const forms::Control& control) {
    for (int i = 0; i < 80 && window.activeControl() != &control; ++i) windowKey(forms::key::kTab);
    ASSERT_EQ(window.activeControl(), &control) << control.fullName();
  }
  void choose(forms::ListBox& list, int row) {
    gate.enter([&] { window.userRow(list, row, {row}); });
  }
  void click(forms::Control& control) {
    gate.enter([&] { window.press(control); });
  }
  std::string file(const std::string& suffix) const {
    const auto found = files.files.find(upper(state.disc.cdFilePath + suffix));
    return found == files.files.end() ? "(none)" : found->second;
  }
};

}  // namespace orvanta::test
