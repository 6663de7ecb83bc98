// Embedded faces are read straight from the program, past the system's font search: that is what
// keeps the start quick.
#include "platform/qt/fonts.h"

#include <dlfcn.h>

#include <QFont>
#include <QFontInfo>
#include <QResource>
#include <cmath>
#include <future>

namespace orvanta {

namespace {

constexpr int kSteps = 64;  ///< faces are kept to a 64th of a pixel
constexpr double kFirstSize = 12;

/// Waited for by each thread that draws.
std::shared_future<void>& warming() {
  static std::shared_future<void> future;
  return future;
}

}  // namespace

void Fonts::warmUp() {
  // Qt brings fontconfig with it, or does without.
  void* init = dlsym(RTLD_DEFAULT, "FcInit");
  if (init != nullptr) warming() = std::async(std::launch::async, [init] { reinterpret_cast<int (*)()>(init)(); }).share();
}

QString Fonts::embedded(const std::string& family, bool bold) {
  if (family == forms::kLcdFont) return QStringLiteral(":/fonts/DSEG7Classic-Bold.ttf");
  if (family == forms::kSmallFont || family == "Roboto Condensed") {
    return bold ? QStringLiteral(":/fonts/RobotoCondensed-Bold.ttf") : QStringLiteral(":/fonts/RobotoCondensed-Regular.ttf");
  }
  return {};
}

bool Fonts::has(const std::string& family) {
  if (!embedded(family, false).isEmpty()) return true;
  const QString name = QString::fromStdString(family);
  return QFontInfo(QFont(name)).family().compare(name, Qt::CaseInsensitive) == 0;
}

/// Once a file: each load asks the system for its wishes on rendering anew.
const QRawFont& Fonts::loaded(const QString& file) {
  QRawFont& face = files_[file];
  if (face.isValid()) return face;
  if (warming().valid()) warming().wait();
  const QResource resource(file);
  const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), static_cast<qsizetype>(resource.size()));
  face.loadFromData(bytes, kFirstSize, QFont::PreferNoHinting);
  return face;
}

const QRawFont& Fonts::face(const forms::Font& font, double pixels) {
  const auto key = std::tuple(font.family, font.bold, font.italic, static_cast<int>(pixels * kSteps));
  const auto known = faces_.find(key);
  if (known != faces_.end()) return known->second;
  QRawFont face;
  const QString file = embedded(font.family, font.bold);
  if (!file.isEmpty()) {
    face = loaded(file);
    face.setPixelSize(pixels);
  } else {
    QFont system(QString::fromStdString(font.family));
    system.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    system.setBold(font.bold);
    system.setItalic(font.italic);
    face = QRawFont::fromFont(system);
  }
  return faces_.emplace(key, face).first->second;
}

}  // namespace orvanta
