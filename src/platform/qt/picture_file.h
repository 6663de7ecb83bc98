// Pictures of the user's.
#pragma once

#include <QImage>
#include <QSize>
#include <string>

namespace orvanta {

/// Pixels of a picture file as it is to be seen; 0 x 0 for what is none.
QSize pictureExtent(const std::string& path);
/// A picture for a place of `target` pixels: a far larger one comes in a size that is enough to draw it well. Null for
/// what cannot be read. From any thread.
QImage readPicture(const std::string& path, const QSize& target);

}  // namespace orvanta
