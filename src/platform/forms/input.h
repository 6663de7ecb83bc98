// Keys and mouse as a form's handlers get them.
#pragma once

namespace orvanta::forms {

enum class MouseButton { Left, Right };

struct Mouse {
  MouseButton button = MouseButton::Left;
  int x = 0;  ///< twips from the control's left edge
  int y = 0;
  bool shift = false;
  bool over = true;  ///< of a release: it ends over the control that was pressed
};

/// Letters, digits and the blank are their upper-case ASCII codes. Keys that type nothing lie beyond all
/// characters, so that none of them can be mistaken for one. All other characters have no code: they are
/// for text fields alone.
namespace key {
constexpr int kSpace = ' ';
constexpr int kBackspace = 0x100;
constexpr int kTab = 0x101;
constexpr int kEnter = 0x102;
constexpr int kEscape = 0x103;
constexpr int kHelp = 0x104;
constexpr int kLeft = 0x105;
constexpr int kUp = 0x106;
constexpr int kRight = 0x107;
constexpr int kDown = 0x108;
constexpr int kMenu = 0x109;
constexpr int kF1 = 0x110;  ///< F2 is the next, and so on to F12
}  // namespace key

struct KeyPress {
  int code = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool repeats = false;  ///< held down
};

}  // namespace orvanta::forms
