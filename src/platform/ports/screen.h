// The screen, its fonts and the pointer.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {

struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const Rect&) const = default;
};

enum class Pointer { Normal, Hourglass };

/// What panels and docks leave of a screen, in twips of the one plane that all screens lie on.
struct WorkArea {
  std::string screen;  ///< its name, "" for the primary one
  Rect twips;

  int width() const { return twips.right - twips.left; }
  int height() const { return twips.bottom - twips.top; }
};

struct PictureSize {
  int width = 0;
  int height = 0;
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
  /// Of a picture file at its natural size, in twips; 0 x 0 for one that cannot be read.
  virtual PictureSize pictureSize(const std::string& path) const = 0;
  /// Of all screens, the primary one first; never none.
  virtual std::vector<WorkArea> workAreas() const = 0;
  /// One pointer for the whole program, last write wins; it never blocks input.
  virtual void setPointer(Pointer pointer) = 0;

  /// Of the screen that a window is on, by its middle; of one that is on none, the primary screen's.
  WorkArea workAreaOf(const Rect& window) const {
    const int x = window.left + (window.right - window.left) / 2;
    const int y = window.top + (window.bottom - window.top) / 2;
    const auto all = workAreas();
    for (const WorkArea& area : all) {
      if (x >= area.twips.left && x < area.twips.right && y >= area.twips.top && y < area.twips.bottom) return area;
    }
    return all.front();
  }
  /// Of the screen with this name while it is there, else the primary one's.
  WorkArea workAreaNamed(const std::string& name) const {
    const auto all = workAreas();
    for (const WorkArea& area : all) {
      if (area.screen == name) return area;
    }
    return all.front();
  }

  int widthTwips() const { return widthPixels() * twipsPerPixel(); }
  int heightTwips() const { return heightPixels() * twipsPerPixel(); }
};

}  // namespace orvanta
