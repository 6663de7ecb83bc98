// make_skin FOLDER: renders the deck's own pictures, four times their size, under the names that a skin's
// files have. Copied into a data folder's "system" and painted over, they take the place of the deck's drawings.
#include <QGuiApplication>
#include <cstdio>
#include <filesystem>

#include "platform/qt/art.h"
#include "windows/cdform.h"

namespace {

constexpr double kTimes = 4;

struct NoDesktop : orvanta::forms::Desktop {
  std::unique_ptr<orvanta::forms::FormView> open(orvanta::forms::Form& /*form*/) override { return nullptr; }
};

struct Picture {
  const char* file;
  const char* control;
  int index;
};
constexpr Picture kPictures[] = {
    {"apower1.bmp", "Image5", -1}, {"afrewa1.bmp", "scntla", 0},  {"ambtns1.bmp", "scntla", 1},  {"affwda1.bmp", "scntla", 3},
    {"zpreva.bmp", "icntla", 0},   {"znexta.bmp", "icntla", 1},   {"zplaya.bmp", "icntla", 2},   {"zpausea.bmp", "icntla", 3},
    {"zstopa.bmp", "icntla", 4},   {"zrecorda.bmp", "icntla", 5}, {"acblueds.bmp", "Image9", 0}, {"acbluels.bmp", "Image9", 1},
    {"acredls.bmp", "Image2", 0},  {"acredds.bmp", "Image2", 1},
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Usage: make_skin FOLDER\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  std::filesystem::create_directories(argv[1]);
  NoDesktop desktop;
  orvanta::CDForm form;
  form.load(desktop);
  // Faces in full: no mask lies over them.
  for (auto& mask : form.icntlb) mask.visible = false;
  for (auto& mask : form.scntlb) mask.visible = false;
  bool written = true;
  for (const Picture& picture : kPictures) {
    orvanta::forms::Control* control = form.find(picture.control, picture.index);
    // Several keys share these two: their signs are drawn over the picture.
    if (control->name() == "Image9" || control->name() == "Image2")
      control->art = picture.index == 0 && control->name() == "Image2" ? "key:red" : "key:small";
    const QString path = QString::fromUtf8(argv[1]) + QLatin1Char('/') + QLatin1String(picture.file);
    written = orvanta::drawingOf(*control, kTimes).save(path) && written;
  }
  return written ? 0 : 1;
}
