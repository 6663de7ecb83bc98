// Small sizes have drawings of their own.
#include "platform/qt/icons.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QResource>
#include <QString>

namespace orvanta {

void giveWindowIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const QResource file(QStringLiteral(":/icons/orvanta-%1.png").arg(size));
    // By its format's name: Qt would load the readers of all formats to find out.
    icon.addPixmap(QPixmap::fromImage(QImage::fromData(file.data(), static_cast<int>(file.size()), "PNG")));
  }
  QApplication::setWindowIcon(icon);
}

}  // namespace orvanta
