// WAVE and FLAC files of an image, by libsndfile over our own reading: so the file stays closed to programs that
// are started, and a disk that fails is told from a file that ends.
#include <algorithm>

#include "platform/disc/image_file.h"
#include "platform/disc/toc.h"
#include "platform/sound/sndfile_library.h"

namespace orvanta {

namespace {

struct SoundCloser {
  void operator()(SNDFILE* file) const { SndfileLibrary::loaded()->close(file); }
};

class SoundFile : public ImageFile {
 public:
  explicit SoundFile(HeldFile held) : ImageFile(std::move(held)) {
    struct stat info {};
    if (::fstat(fd(), &info) == 0) bytes_ = info.st_size;
    SF_VIRTUAL_IO io{};
    io.get_filelen = [](void* self) -> sf_count_t { return of(self).bytes_; };
    io.tell = [](void* self) -> sf_count_t { return of(self).at_; };
    io.seek = [](sf_count_t offset, int whence, void* self) { return of(self).seek(offset, whence); };
    io.read = [](void* out, sf_count_t count, void* self) { return of(self).read(static_cast<char*>(out), count); };
    io.write = [](const void* /*bytes*/, sf_count_t /*count*/, void* /*self*/) -> sf_count_t { return 0; };
    if (library_ != nullptr) file_.reset(library_->openVirtual(&io, SFM_READ, &info_, this));
  }

  /// Why it is no file for a disc; "" for a good one.
  std::string fault() {
    if (library_ == nullptr) return " needs libsndfile, which is not installed";
    if (!file_) return " is not a sound file";
    if (info_.channels != 2 || info_.samplerate != kSampleRate) return " is not stereo sound at 44,100 samples a second";
    if (info_.frames <= 0) return " holds no sound";
    // The header of a file that was cut in half still tells the whole length.
    int16_t last[2];
    if (!readPairs(info_.frames - 1, 1, last)) return " is cut short: its end cannot be read";
    return {};
  }

  int64_t length() const override { return info_.frames; }
  bool countsSamples() const override { return true; }

  bool readAudio(int64_t offset, int /*sectorBytes*/, int frames, int16_t* samples) override {
    const int64_t wanted = int64_t{frames} * kSamplesPerFrame;
    diskFailed_ = false;
    const int64_t got = readPairs(offset, wanted, samples);
    std::fill(samples + got * 2, samples + wanted * 2, int16_t{0});
    return got > 0 || !diskFailed_;
  }

  bool readBytes(int64_t /*offset*/, int64_t /*count*/, char* /*bytes*/) override { return false; }

 private:
  static SoundFile& of(void* self) { return *static_cast<SoundFile*>(self); }

  int64_t readPairs(int64_t offset, int64_t wanted, int16_t* samples) {
    if (offset != next_ && library_->seek(file_.get(), offset, SEEK_SET) < 0) {
      next_ = -1;
      return 0;
    }
    const int64_t got = std::clamp<int64_t>(library_->readPairs(file_.get(), samples, wanted), 0, wanted);
    next_ = offset + got;
    return got;
  }

  sf_count_t seek(sf_count_t offset, int whence) {
    const sf_count_t base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? at_ : bytes_;
    if (offset < -base || offset > bytes_ - base) return -1;
    return at_ = base + offset;
  }

  sf_count_t read(char* out, sf_count_t count) {
    const int64_t got = readAt(fd(), at_, count, out);
    diskFailed_ = diskFailed_ || got < 0;
    at_ += std::max<int64_t>(got, 0);
    return std::max<int64_t>(got, 0);
  }

  const SndfileLibrary* library_ = SndfileLibrary::loaded();
  int64_t bytes_ = 0;
  int64_t at_ = 0;  ///< byte that libsndfile reads next
  bool diskFailed_ = false;
  SF_INFO info_{};
  int64_t next_ = 0;  ///< sample pair that comes next
  std::unique_ptr<SNDFILE, SoundCloser> file_;
};

}  // namespace

OpenedImageFile openSoundFile(HeldFile held, const std::string& quoted) {
  auto file = std::make_unique<SoundFile>(std::move(held));
  const std::string fault = file->fault();
  if (!fault.empty()) return {nullptr, quoted + fault};
  return {std::move(file), ""};
}

}  // namespace orvanta
