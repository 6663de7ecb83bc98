// Sound files of an image: any bytes are refused with a reason, or can be read at any place.
#include <sys/mman.h>

#include <cstdlib>
#include <vector>

#include "platform/disc/image_file.h"
#include "platform/disc/toc.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  orvanta::HeldFile held{orvanta::UniqueFd(::memfd_create("sound", MFD_CLOEXEC)), "/nowhere", {}};
  if (!held.fd || ::write(held.fd.get(), data, size) != static_cast<ssize_t>(size)) return 0;
  const orvanta::OpenedImageFile opened = orvanta::openSoundFile(std::move(held), "it");
  if ((opened.file == nullptr) != !opened.error.empty()) std::abort();
  if (!opened.file) return 0;
  const int64_t length = opened.file->length();
  if (length <= 0) std::abort();
  std::vector<int16_t> samples(size_t{3} * orvanta::kShortsPerFrame);
  for (const int64_t offset : {int64_t{0}, length - 1, length / 2, length + 5, int64_t{1}, INT64_MAX / 8}) {
    opened.file->readAudio(offset, orvanta::kBytesPerFrame, 3, samples.data());
  }
  return 0;
}
