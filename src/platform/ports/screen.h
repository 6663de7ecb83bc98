// The screen, its fonts and the pointer.
#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const Rect&) const = default;
};

enum class Pointer { Normal, Hourglass };

/// What a taskbar takes of the screen.
struct Taskbar {
  bool alwaysOnTop = false;
  Rect pixels;  ///< its rectangle; empty when there is none
};

class Screen {
 public:
  virtual ~Screen() = default;
  virtual int widthPixels() const = 0;
  virtual int heightPixels() const = 0;
  /// Twips to a pixel at the base scale: 15 at 96 dots per inch, 12 at 120.
  virtual int twipsPerPixel() const = 0;
  virtual int bitsPerPixel() const = 0;
  virtual int planes() const = 0;
  /// True for a family that is drawn as asked for, also one that an alias of ours answers for.
  virtual bool hasFont(const std::string& family) const = 0;
  /// How wide one line of text would be drawn.
  virtual int textWidthTwips(const std::string& text, const std::string& family, double points, bool bold) const = 0;
  virtual Taskbar taskbar() const = 0;
  /// One pointer for the whole program, last write wins; it never blocks input.
  virtual void setPointer(Pointer pointer) = 0;

  int widthTwips() const { return widthPixels() * twipsPerPixel(); }
  int heightTwips() const { return heightPixels() * twipsPerPixel(); }
};

}  // namespace orvanta
