// One file of a disc image, opened safely: a regular file within the sheet's folder.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/disc/cue_sheet.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

/// A file held open, and what it was when it was opened.
struct HeldFile {
  UniqueFd fd;
  std::string path;
  struct stat was {};
};

class ImageFile {
 public:
  explicit ImageFile(HeldFile held) : held_(std::move(held)) {}
  virtual ~ImageFile() = default;
  /// Bytes of a raw file, sample pairs of a sound file.
  virtual int64_t length() const = 0;
  virtual bool countsSamples() const = 0;
  /// `frames` CD frames as interleaved samples, from `offset` in the unit of length(). What lies
  /// beyond the end is silence; false when the disk fails and nothing can be read.
  virtual bool readAudio(int64_t offset, int sectorBytes, int frames, int16_t* samples) = 0;
  /// Bytes as they stand; false when not all are there.
  virtual bool readBytes(int64_t offset, int64_t count, char* bytes) = 0;

  /// What has become of the file since it was opened, as the end of a sentence; "" for nothing.
  std::string fate() const;

 protected:
  int fd() const { return held_.fd.get(); }

 private:
  HeldFile held_;
};

struct OpenedImageFile {
  std::unique_ptr<ImageFile> file;
  std::string error;  ///< why there is no file
};

/// Opens what `name` means inside `folder`. What leads out of it, or is no regular file, is refused. Never blocks.
OpenedImageFile openImageFile(const std::string& folder, const std::string& name, CueFileType type);

/// A WAVE or FLAC file; `quoted` is its name in messages.
OpenedImageFile openSoundFile(HeldFile held, const std::string& quoted);

/// Up to `count` bytes from `offset` on; how many there were, -1 when the disk fails at once.
int64_t readAt(int fd, int64_t offset, int64_t count, char* bytes);

/// A regular file of at most `most` bytes, whole; "" with `error` set otherwise.
std::string readSmallFile(const std::string& path, int64_t most, std::string& error);

}  // namespace orvanta
