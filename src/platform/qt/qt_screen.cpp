// What the screen is like, told in design pixels so that the layouts need not know the scale.
#include "platform/qt/qt_screen.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/qt/picture_file.h"

namespace orvanta {

namespace {

constexpr int kTwipsPerPoint = 20;

QScreen& primary() { return *QGuiApplication::primaryScreen(); }

}  // namespace

double QtScreen::desktopFactor() { return std::max(1.0, std::round(primary().logicalDotsPerInch() / 96 * 4) / 4); }

int QtScreen::widthPixels() const { return static_cast<int>(primary().geometry().width() / scale_.factor); }

int QtScreen::heightPixels() const { return static_cast<int>(primary().geometry().height() / scale_.factor); }

int QtScreen::bitsPerPixel() const { return primary().depth(); }

bool QtScreen::hasFont(const std::string& family) const { return Fonts::has(family); }

int QtScreen::textWidthTwips(const std::string& text, const std::string& family, double points, bool bold) const {
  constexpr double kMeasured = 64;  // pixels to an em
  const QRawFont& face = fonts_.face({family, points, bold}, kMeasured);
  double width = 0;
  for (const QPointF& advance :
       face.advancesForGlyphIndexes(face.glyphIndexesForString(QString::fromStdString(text)), QRawFont::KernedAdvances)) {
    width += advance.x();
  }
  return static_cast<int>(width / kMeasured * points * kTwipsPerPoint);
}

PictureSize QtScreen::pictureSize(const std::string& path) const {
  const QSize size = pictureExtent(path);
  return {scale_.twips(size.width()), scale_.twips(size.height())};
}

std::vector<WorkArea> QtScreen::workAreas() const {
  const auto areaOf = [this](const QScreen& screen, const std::string& name) {
    const QRect free = screen.availableGeometry();
    return WorkArea{name,
                    {scale_.twips(free.left()), scale_.twips(free.top()), scale_.twips(free.right() + 1), scale_.twips(free.bottom() + 1)}};
  };
  std::vector<WorkArea> areas{areaOf(primary(), "")};
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen != &primary()) areas.push_back(areaOf(*screen, screen->name().toStdString()));
  }
  return areas;
}

void QtScreen::setPointer(Pointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  if (pointer == Pointer::Hourglass) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace orvanta
