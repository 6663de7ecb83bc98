// Files of an image: raw ones by pread, and what may happen to any of them while its disc is in the tray.
#include "platform/disc/image_file.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/disc/image_path.h"
#include "platform/disc/toc.h"

namespace orvanta {

int64_t readAt(int fd, int64_t offset, int64_t count, char* bytes) {
  int64_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(fd, bytes + done, static_cast<size_t>(count - done), offset + done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0 && done == 0) return -1;
    if (got <= 0) break;
    done += got;
  }
  return done;
}

std::string ImageFile::fate() const {
  struct stat here {};
  struct stat there {};
  if (::fstat(held_.fd.get(), &here) != 0) return {};
  if (here.st_size < held_.was.st_size) return " was cut short. The disc plays on; what is missing is silent.";
  if (::stat(held_.path.c_str(), &there) != 0) return " was removed or renamed. The disc plays on until it is taken out.";
  if (there.st_ino != here.st_ino || there.st_dev != here.st_dev) {
    return " was replaced by another file. The disc plays on as it was until it is taken out.";
  }
  const timespec& before = held_.was.st_mtim;
  const bool same = before.tv_sec == here.st_mtim.tv_sec && before.tv_nsec == here.st_mtim.tv_nsec && here.st_size == held_.was.st_size;
  return same ? "" : " was changed. The disc plays on, with what it holds now.";
}

namespace {

class RawFile : public ImageFile {
 public:
  RawFile(HeldFile held, bool swapped) : ImageFile(std::move(held)), swapped_(swapped) {
    struct stat info {};
    if (::fstat(fd(), &info) == 0) length_ = info.st_size;
  }

  int64_t length() const override { return length_; }
  bool countsSamples() const override { return false; }

  bool readAudio(int64_t offset, int sectorBytes, int frames, int16_t* samples) override {
    auto* out = reinterpret_cast<char*>(samples);
    const int64_t wanted = int64_t{frames} * kBytesPerFrame;
    const int64_t got = sectorBytes == kBytesPerFrame ? readAt(fd(), offset, wanted, out) : readSectors(offset, sectorBytes, frames, out);
    const int64_t there = std::max<int64_t>(got, 0);
    std::memset(out + there, 0, static_cast<size_t>(wanted - there));
    if (swapped_) {
      for (int64_t i = 0; i + 1 < there; i += 2) std::swap(out[i], out[i + 1]);
    }
    return got >= 0;
  }

  bool readBytes(int64_t offset, int64_t count, char* bytes) override { return readAt(fd(), offset, count, bytes) == count; }

 private:
  /// Sectors with more than sound in them: the sound stands first.
  int64_t readSectors(int64_t offset, int sectorBytes, int frames, char* out) const {
    int64_t got = 0;
    for (int i = 0; i < frames; ++i) {
      const int64_t one = readAt(fd(), offset + int64_t{i} * sectorBytes, kBytesPerFrame, out + got);
      if (one < 0 && got == 0) return -1;
      got += std::max<int64_t>(one, 0);
      if (one < kBytesPerFrame) break;
    }
    return got;
  }

  int64_t length_ = 0;
  bool swapped_;
};

/// O_NONBLOCK, so that a pipe in the place of a file cannot hold us up.
HeldFile openRegular(const std::string& path) {
  HeldFile held{UniqueFd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)), path, {}};
  if (!held.fd || ::fstat(held.fd.get(), &held.was) != 0 || !S_ISREG(held.was.st_mode)) return {};
  return held;
}

}  // namespace

OpenedImageFile openImageFile(const std::string& folder, const std::string& name, CueFileType type) {
  const ImagePath resolved = resolveInside(folder, name);
  if (!resolved.error.empty()) return {nullptr, resolved.error};
  HeldFile held = openRegular(resolved.path.string());
  if (!held.fd) return {nullptr, inQuotes(name) + " is not a file that can be read"};
  if (type == CueFileType::Sound) return openSoundFile(std::move(held), inQuotes(name));
  return {std::make_unique<RawFile>(std::move(held), type == CueFileType::Motorola), ""};
}

std::string readSmallFile(const std::string& path, int64_t most, std::string& error) {
  const HeldFile held = openRegular(path);
  if (!held.fd || held.was.st_size > most) {
    error = held.fd ? "it is too long for a CUE sheet; choose a CUE sheet, a file that ends in .cue" : "it is not a file that can be read";
    return {};
  }
  std::string bytes(static_cast<size_t>(held.was.st_size), '\0');
  bytes.resize(static_cast<size_t>(std::max<int64_t>(readAt(held.fd.get(), 0, held.was.st_size, bytes.data()), 0)));
  return bytes;
}

}  // namespace orvanta
