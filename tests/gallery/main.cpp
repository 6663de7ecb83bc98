// gallery FOLDER: writes the picture of every scene, at once and twice the size.
#include <QApplication>
#include <cstdio>

#include "tests/gallery/scenes.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Usage: gallery FOLDER\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  const QApplication application(argc, argv);
  bool written = true;
  for (const std::string& name : orvanta::test::sceneNames()) {
    for (const int factor : {1, 2}) {
      const std::string path = std::string(argv[1]) + '/' + name + (factor == 2 ? "-2x.png" : ".png");
      written = orvanta::test::pictureOf(name, factor).save(QString::fromStdString(path)) && written;
    }
  }
  return written ? 0 : 1;
}
