// The calls of libsndfile. It is loaded with the first sound file: a disc in one binary file needs none of the coders that
// come with it.
#pragma once

#include <sndfile.h>

namespace orvanta {

struct SndfileLibrary {
  decltype(&sf_open) open = nullptr;
  decltype(&sf_open_virtual) openVirtual = nullptr;
  decltype(&sf_close) close = nullptr;
  decltype(&sf_seek) seek = nullptr;
  decltype(&sf_command) command = nullptr;
  decltype(&sf_readf_short) readPairs = nullptr;
  decltype(&sf_writef_short) writePairs = nullptr;

  /// nullptr where it is not installed.
  static const SndfileLibrary* loaded();
};

}  // namespace orvanta
