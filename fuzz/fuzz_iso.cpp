// The root of a data session: whatever its blocks hold, only places on a disc are asked for, and few of them.
#include <algorithm>
#include <cstdlib>

#include "platform/disc/iso_root.h"
#include "platform/disc/toc.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const int start = (data[0] << 8 | data[1]) * 6;
  const size_t kept = size - 2;
  int asked = 0;
  int limit = 100;
  // A few bytes stand for all blocks: the descriptor first, then the root.
  const auto read = [&](int block, orvanta::IsoBlock& out) {
    if (block < 0 || block >= orvanta::kMaxFrames || ++asked > limit) std::abort();
    out.fill(0);
    const bool descriptor = block == start + 16;
    if (descriptor) std::copy_n("\1CD001", 6, out.begin());
    const size_t head = std::min<size_t>(kept, 8);
    if (descriptor) {
      // Where the root lies, and how long it is.
      std::copy_n(data + 2, std::min<size_t>(head, 4), out.begin() + 158);
      if (head > 4) std::copy_n(data + 6, head - 4, out.begin() + 166);
    } else {
      std::copy_n(data + 2 + head, std::min<size_t>(kept - head, out.size()), out.begin());
    }
    return true;
  };
  const std::string name = orvanta::firstRootFile(start, read);
  if (name.size() > 255) std::abort();
  limit = 4300;
  for (const orvanta::IsoFile& file : orvanta::isoFiles(start, read)) {
    // "/" stands for a root that cannot be read.
    const bool rooted = file.way.starts_with('/') && file.way != "/";
    if (("/" + file.way + "/").find("/../") != std::string::npos || rooted || file.block < 0 || file.size < 0) std::abort();
  }
  return 0;
}
