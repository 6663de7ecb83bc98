// Keys and mouse as a form's handlers get them.
#pragma once

namespace orvanta::forms {

enum class MouseButton { Left, Right };

struct Mouse {
  MouseButton button = MouseButton::Left;
  int x = 0;  ///< twips from the control's left edge
  int y = 0;
  bool shift = false;
};

/// Letters and digits are their upper-case ASCII codes.
namespace key {
constexpr int kBackspace = 8;
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kSpace = 32;
constexpr int kLeft = 37;
constexpr int kUp = 38;
constexpr int kRight = 39;
constexpr int kDown = 40;
constexpr int kHelp = 47;
constexpr int kF1 = 112;  ///< F2 is 113, and so on to F12
}  // namespace key

struct KeyPress {
  int code = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
};

}  // namespace orvanta::forms
