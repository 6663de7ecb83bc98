// The screens.
#pragma once

#include "platform/ports/screen.h"
#include "platform/qt/fonts.h"
#include "platform/qt/scale.h"

namespace orvanta {

class QtScreen : public Screen {
 public:
  explicit QtScreen(const Scale& scale) : scale_(scale) {}
  int widthPixels() const override;
  int heightPixels() const override;
  int twipsPerPixel() const override { return scale_.twipsPerPixel; }
  int bitsPerPixel() const override;
  int planes() const override { return 1; }
  bool hasFont(const std::string& family) const override;
  int textWidthTwips(const std::string& text, const std::string& family, double points, bool bold) const override;
  PictureSize pictureSize(const std::string& path) const override;
  std::vector<WorkArea> workAreas() const override;
  void setPointer(Pointer pointer) override;

  /// The desktop's own: 1 at 96 dots per inch, in quarters.
  static double desktopFactor();

 private:
  Scale scale_;
  mutable Fonts fonts_;
  Pointer pointer_ = Pointer::Normal;
};

}  // namespace orvanta
