// One file of a disc image, opened safely: a regular file within the sheet's folder.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/linux/cue_sheet.h"

namespace orvanta {

class ImageFile {
 public:
  virtual ~ImageFile() = default;
  /// Bytes of a raw file, sample pairs of a sound file.
  virtual int64_t length() const = 0;
  virtual bool countsSamples() const = 0;
  /// `frames` CD frames as interleaved samples, from `offset` in the unit of length(). What lies
  /// beyond the end is silence; false when nothing can be read.
  virtual bool readAudio(int64_t offset, int sectorBytes, int frames, int16_t* samples) = 0;
  /// Bytes as they stand; false when not all are there.
  virtual bool readBytes(int64_t offset, int64_t count, char* bytes) = 0;
};

struct OpenedImageFile {
  std::unique_ptr<ImageFile> file;
  std::string error;  ///< why there is no file
};

/// Resolves `name` inside `folder`, links followed, in any letter case if it is not there as
/// written. What leads out of the folder, or is no regular file, is refused. Never blocks.
OpenedImageFile openImageFile(const std::string& folder, const std::string& name, CueFileType type);

/// A regular file of at most `most` bytes, whole; "" with `error` set otherwise.
std::string readSmallFile(const std::string& path, int64_t most, std::string& error);

}  // namespace orvanta
