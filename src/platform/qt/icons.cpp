// Small sizes have drawings of their own.
#include "platform/qt/icons.h"

#include <QSize>
#include <QString>

namespace orvanta {

QIcon applicationIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addFile(QStringLiteral(":/icons/orvanta-%1.png").arg(size), QSize(size, size));
  return icon;
}

}  // namespace orvanta
