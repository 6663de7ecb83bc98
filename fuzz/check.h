// What fuzz targets share.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// A property that no bytes may break.
inline void check(bool good) {
  if (!good) std::abort();
}

inline std::string_view bytesOf(const uint8_t* data, size_t size) { return {reinterpret_cast<const char*>(data), size}; }
