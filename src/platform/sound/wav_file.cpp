// Writing WAV by libsndfile; the header is kept true while writing, so that a kill leaves a file
// that plays.
#include "platform/sound/wav_file.h"

#include <sndfile.h>

#include "platform/sound/samples.h"

namespace orvanta {

struct WavFile::Impl {
  SNDFILE* file = nullptr;
  bool full = false;
  ~Impl() { sf_close(file); }
};

WavFile::WavFile(const std::string& path) {
  SF_INFO info{};
  SNDFILE* file = sf_open(path.c_str(), SFM_RDWR, &info);
  const bool ours = file != nullptr && info.channels == 2 && info.samplerate == kSampleRate;
  if (file != nullptr && !ours) sf_close(file);
  if (!ours) {
    info = {};
    info.channels = 2;
    info.samplerate = kSampleRate;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    file = sf_open(path.c_str(), SFM_WRITE, &info);
  }
  if (file == nullptr) return;
  if (ours) sf_seek(file, 0, SEEK_END);
  sf_command(file, SFC_SET_UPDATE_HEADER_AUTO, nullptr, SF_TRUE);
  impl_ = std::make_unique<Impl>();
  impl_->file = file;
}

WavFile::~WavFile() = default;

void WavFile::append(const int16_t* pairs, size_t count) {
  if (!impl_ || impl_->full) return;
  impl_->full = sf_writef_short(impl_->file, pairs, static_cast<sf_count_t>(count)) != static_cast<sf_count_t>(count);
}

}  // namespace orvanta
