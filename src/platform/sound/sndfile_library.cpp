#include "platform/sound/sndfile_library.h"

#include "platform/linux/late_library.h"

namespace orvanta {

namespace {

struct LoadedSndfile : SndfileLibrary {
  LateLibrary library{"libsndfile.so.1"};

  LoadedSndfile() {
    library.find(open, "sf_open");
    library.find(openVirtual, "sf_open_virtual");
    library.find(close, "sf_close");
    library.find(seek, "sf_seek");
    library.find(command, "sf_command");
    library.find(readPairs, "sf_readf_short");
    library.find(writePairs, "sf_writef_short");
  }
};

}  // namespace

const SndfileLibrary* SndfileLibrary::loaded() {
  static const LoadedSndfile loaded;
  return loaded.library.whole() ? &loaded : nullptr;
}

}  // namespace orvanta
