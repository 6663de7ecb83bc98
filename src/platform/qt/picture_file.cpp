// A photo of a camera lies on its side in its file, and is larger than Qt takes by itself.
#include "platform/qt/picture_file.h"

#include <QFileInfo>
#include <QImageReader>
#include <QString>

namespace orvanta {

namespace {

constexpr int kMostMebibytes = 512;  ///< of one picture: 128 million pixels

/// What is no plain file is not opened: a pipe would be waited for.
bool open(QImageReader& reader, const std::string& path) {
  [[maybe_unused]] static const bool kOnce = (QImageReader::setAllocationLimit(kMostMebibytes), true);
  const QString name = QString::fromStdString(path);
  if (!QFileInfo(name).isFile()) return false;
  reader.setFileName(name);
  reader.setAutoTransform(true);
  return true;
}

bool turned(const QImageReader& reader) { return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90); }

}  // namespace

QSize pictureExtent(const std::string& path) {
  QImageReader reader;
  if (!open(reader, path)) return {0, 0};
  const QSize size = reader.size();
  if (!size.isValid()) return {0, 0};
  return turned(reader) ? size.transposed() : size;
}

QImage readPicture(const std::string& path, const QSize& target) {
  QImageReader reader;
  if (!open(reader, path)) return {};
  const QSize size = reader.size();
  const QSize enough = (turned(reader) ? target.transposed() : target) * 2;
  const QSize wanted = size.boundedTo(enough);
  if (size.isValid() && wanted != size && !wanted.isEmpty()) reader.setScaledSize(wanted);
  return reader.read();
}

}  // namespace orvanta
