// Writing WAV by libsndfile; the header is kept true while writing, so that a kill leaves a file
// that plays.
#include "platform/sound/wav_file.h"

#include "platform/sound/samples.h"
#include "platform/sound/sndfile_library.h"

namespace orvanta {

struct WavFile::Impl {
  const SndfileLibrary& library;
  SNDFILE* file;
  bool full = false;

  Impl(const SndfileLibrary& from, SNDFILE* opened) : library(from), file(opened) {}
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;
  ~Impl() { library.close(file); }
};

WavFile::WavFile(const std::string& path) {
  const SndfileLibrary* library = SndfileLibrary::loaded();
  if (library == nullptr) return;
  SF_INFO info{};
  SNDFILE* file = library->open(path.c_str(), SFM_RDWR, &info);
  const bool ours = file != nullptr && info.channels == 2 && info.samplerate == kSampleRate;
  if (file != nullptr && !ours) library->close(file);
  if (!ours) {
    info = {};
    info.channels = 2;
    info.samplerate = kSampleRate;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    file = library->open(path.c_str(), SFM_WRITE, &info);
  }
  if (file == nullptr) return;
  if (ours) library->seek(file, 0, SEEK_END);
  library->command(file, SFC_SET_UPDATE_HEADER_AUTO, nullptr, SF_TRUE);
  impl_ = std::make_unique<Impl>(*library, file);
}

WavFile::~WavFile() = default;

void WavFile::append(const int16_t* pairs, size_t count) {
  if (!impl_ || impl_->full) return;
  impl_->full = impl_->library.writePairs(impl_->file, pairs, static_cast<sf_count_t>(count)) != static_cast<sf_count_t>(count);
}

}  // namespace orvanta
