// A picture of the user's.
#pragma once

#include <QFileInfo>
#include <QString>
#include <string>

namespace orvanta {

/// Its path for Qt's readers; "" for what is no plain file: a pipe would be waited for.
inline QString pictureFile(const std::string& path) {
  const QString name = QString::fromStdString(path);
  return QFileInfo(name).isFile() ? name : QString();
}

}  // namespace orvanta
