// What the screen is like, told in design pixels so that the layouts need not know the scale.
#include "platform/qt/qt_screen.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

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

/// What the free area leaves of the screen along its widest taken edge.
Taskbar QtScreen::taskbar() const {
  const QRect all = primary().geometry();
  const QRect free = primary().availableGeometry();
  const int left = free.left() - all.left();
  const int top = free.top() - all.top();
  const int right = all.right() - free.right();
  const int bottom = all.bottom() - free.bottom();
  const int most = std::max({left, top, right, bottom});
  if (most <= 0) return {};
  QRect bar = all;
  if (most == bottom) {
    bar.setTop(free.bottom() + 1);
  } else if (most == top) {
    bar.setBottom(free.top() - 1);
  } else if (most == left) {
    bar.setRight(free.left() - 1);
  } else {
    bar.setLeft(free.right() + 1);
  }
  const auto unscaled = [this](int pixels) { return static_cast<int>(pixels / scale_.factor); };
  return {true, {unscaled(bar.left()), unscaled(bar.top()), unscaled(bar.right() + 1), unscaled(bar.bottom() + 1)}};
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
