// Raw image files by pread, sound files by libsndfile.
#include "platform/linux/image_file.h"

#include <fcntl.h>
#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <vector>

#include "base/text.h"
#include "platform/linux/toc.h"
#include "platform/linux/unique_fd.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

int64_t readAt(int fd, int64_t offset, int64_t count, char* bytes) {
  int64_t done = 0;
  while (done < count) {
    const ssize_t got = ::pread(fd, bytes + done, static_cast<size_t>(count - done), offset + done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    done += got;
  }
  return done;
}

class RawFile : public ImageFile {
 public:
  RawFile(UniqueFd fd, int64_t length, bool swapped) : fd_(std::move(fd)), length_(length), swapped_(swapped) {}

  int64_t length() const override { return length_; }
  bool countsSamples() const override { return false; }

  bool readAudio(int64_t offset, int sectorBytes, int frames, int16_t* samples) override {
    auto* out = reinterpret_cast<char*>(samples);
    const int64_t wanted = int64_t{frames} * kBytesPerFrame;
    const int64_t got =
        sectorBytes == kBytesPerFrame ? readAt(fd_.get(), offset, wanted, out) : readSectors(offset, sectorBytes, frames, out);
    std::memset(out + got, 0, static_cast<size_t>(wanted - got));
    if (swapped_) {
      for (int64_t i = 0; i + 1 < got; i += 2) std::swap(out[i], out[i + 1]);
    }
    return got > 0;
  }

  bool readBytes(int64_t offset, int64_t count, char* bytes) override { return readAt(fd_.get(), offset, count, bytes) == count; }

 private:
  /// Sectors with more than sound in them: the sound stands first.
  int64_t readSectors(int64_t offset, int sectorBytes, int frames, char* out) const {
    int64_t got = 0;
    for (int i = 0; i < frames; ++i) {
      const int64_t one = readAt(fd_.get(), offset + int64_t{i} * sectorBytes, kBytesPerFrame, out + got);
      got += one;
      if (one < kBytesPerFrame) break;
    }
    return got;
  }

  UniqueFd fd_;
  int64_t length_;
  bool swapped_;
};

struct SoundCloser {
  void operator()(SNDFILE* file) const { sf_close(file); }
};

class SoundFile : public ImageFile {
 public:
  SoundFile(SNDFILE* file, const SF_INFO& info) : file_(file), length_(info.frames) {}

  int64_t length() const override { return length_; }
  bool countsSamples() const override { return true; }

  bool readAudio(int64_t offset, int /*sectorBytes*/, int frames, int16_t* samples) override {
    const int64_t wanted = int64_t{frames} * kSamplesPerFrame;
    if (offset != next_ && sf_seek(file_.get(), offset, SEEK_SET) < 0) {
      next_ = -1;
      return false;
    }
    const int64_t got = std::max<int64_t>(sf_readf_short(file_.get(), samples, wanted), 0);
    next_ = offset + got;
    std::fill(samples + got * 2, samples + wanted * 2, int16_t{0});
    return got > 0;
  }

  bool readBytes(int64_t /*offset*/, int64_t /*count*/, char* /*bytes*/) override { return false; }

 private:
  std::unique_ptr<SNDFILE, SoundCloser> file_;
  int64_t length_;
  int64_t next_ = 0;
};

/// `name` in `folder` as it is, or the entry that differs in letter case alone.
fs::path entryOf(const fs::path& folder, const fs::path& name) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(folder / name, error))) return folder / name;
  for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (equalsNoCase(entry->path().filename().string(), name.string())) return entry->path();
  }
  return folder / name;
}

bool liesIn(const fs::path& path, const fs::path& folder) {
  const auto [end, rest] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return end == folder.end() && rest != path.end();
}

struct Resolved {
  fs::path path;
  std::string error;
};

Resolved resolve(const std::string& folder, const std::string& name) {
  std::string forward = name;
  std::replace(forward.begin(), forward.end(), '\\', '/');
  const std::string quoted = "\"" + name + "\"";
  std::error_code error;
  const fs::path base = fs::canonical(folder, error);
  if (error || forward.empty()) return {{}, quoted + " is missing"};
  if (fs::path(forward).is_absolute() || (forward.size() > 1 && forward[1] == ':')) return {{}, quoted + " lies outside its folder"};
  fs::path path = base;
  for (const fs::path& part : fs::path(forward)) path = part == ".." || part == "." ? path / part : entryOf(path, part);
  const fs::path real = fs::canonical(path, error);
  if (error) return {{}, quoted + " is missing"};
  if (!liesIn(real, base)) return {{}, quoted + " lies outside its folder"};
  return {real, ""};
}

/// O_NONBLOCK, so that a pipe in the place of a file cannot hold us up.
UniqueFd openRegular(const fs::path& path, int64_t& length) {
  UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat info {};
  if (!fd || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) return {};
  length = info.st_size;
  return fd;
}

OpenedImageFile openSound(UniqueFd fd, const std::string& quoted) {
  SF_INFO info{};
  SNDFILE* file = sf_open_fd(::dup(fd.get()), SFM_READ, &info, SF_TRUE);
  if (file == nullptr) return {nullptr, quoted + " is not a sound file"};
  auto sound = std::make_unique<SoundFile>(file, info);
  if (info.channels != 2 || info.samplerate != kSampleRate || info.frames <= 0) {
    return {nullptr, quoted + " is not stereo sound at 44,100 samples a second"};
  }
  return {std::move(sound), ""};
}

}  // namespace

OpenedImageFile openImageFile(const std::string& folder, const std::string& name, CueFileType type) {
  const std::string quoted = "\"" + name + "\"";
  const Resolved resolved = resolve(folder, name);
  if (!resolved.error.empty()) return {nullptr, resolved.error};
  int64_t length = 0;
  UniqueFd fd = openRegular(resolved.path, length);
  if (!fd) return {nullptr, quoted + " is not a file that can be read"};
  if (type == CueFileType::Sound) return openSound(std::move(fd), quoted);
  return {std::make_unique<RawFile>(std::move(fd), length, type == CueFileType::Motorola), ""};
}

std::string readSmallFile(const std::string& path, int64_t most, std::string& error) {
  int64_t length = 0;
  const UniqueFd fd = openRegular(path, length);
  if (!fd || length > most) {
    error = fd ? "it is too long for a CUE sheet" : "it is not a file that can be read";
    return {};
  }
  std::string bytes(static_cast<size_t>(length), '\0');
  bytes.resize(static_cast<size_t>(readAt(fd.get(), 0, length, bytes.data())));
  return bytes;
}

}  // namespace orvanta
