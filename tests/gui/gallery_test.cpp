// Every look of the deck against its picture in docs/screens/gallery: coarse enough for another font
// rasteriser, fine enough for a key that moves or a colour that goes.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cmath>

#include "tests/gallery/scenes.h"
#include "tests/support/places.h"

namespace orvanta::test {
namespace {

class Gallery : public testing::TestWithParam<std::string> {};

struct Difference {
  double mean = 0;
  int most = 0;
};

/// In steps of 255, over blocks of four pixels.
Difference differenceOf(const QImage& a, const QImage& b) {
  const auto blocks = [](const QImage& image) {
    return image.scaled(image.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
  };
  const QImage left = blocks(a);
  const QImage right = blocks(b);
  Difference difference;
  for (int y = 0; y < left.height(); ++y) {
    for (int x = 0; x < left.width(); ++x) {
      const QRgb p = left.pixel(x, y);
      const QRgb q = right.pixel(x, y);
      const int here = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
      difference.mean += here;
      difference.most = std::max(difference.most, here);
    }
  }
  difference.mean /= left.width() * left.height();
  return difference;
}

TEST_P(Gallery, LooksAsItDid) {
  const QImage kept(QString::fromStdString(sourceFolder() + "/docs/screens/gallery/" + GetParam() + ".png"));
  const QImage now = pictureOf(GetParam(), 1);
  ASSERT_EQ(now.size(), kept.size());
  const Difference difference = differenceOf(now, kept);
  EXPECT_LT(difference.mean, 2.5);
  EXPECT_LT(difference.most, 90);
}

INSTANTIATE_TEST_SUITE_P(Scenes, Gallery, testing::ValuesIn(sceneNames()), [](const auto& scene) { return scene.param; });

}  // namespace
}  // namespace orvanta::test
