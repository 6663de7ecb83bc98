// ISO 9660: the volume descriptor is the session's block 16; it holds the root's folder record.
#include "platform/disc/iso_root.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/disc/toc.h"

namespace orvanta {

namespace {

constexpr int kDescriptor = 16;
constexpr size_t kRootRecord = 156;
constexpr size_t kMinRecord = 33;
constexpr unsigned char kFolderFlag = 2;

constexpr int64_t kMostBlocks = 64;  ///< of a root folder that are looked through

int64_t little32(const unsigned char* bytes) {
  const auto part = [bytes](size_t i) { return int64_t{bytes[i]} << (8U * i); };
  return part(0) | part(1) | part(2) | part(3);
}

/// First file among the records of one block of a folder; "" for none.
std::string firstFileIn(const IsoBlock& block) {
  for (size_t at = 0; at + kMinRecord < block.size() && block[at] > kMinRecord;) {
    const size_t length = block[at];
    const size_t nameLength = block[at + 32];
    if (at + length > block.size() || kMinRecord + nameLength > length) return {};
    const bool folder = (block[at + 25] & kFolderFlag) != 0;
    if (!folder && nameLength > 0) {
      const std::string name(reinterpret_cast<const char*>(&block[at + kMinRecord]), nameLength);
      return name.substr(0, name.find(';'));
    }
    at += length;
  }
  return {};
}

}  // namespace

std::string firstRootFile(int start, const std::function<bool(int, IsoBlock&)>& read) {
  IsoBlock block{};
  // What a disc says of itself may be anything: no place beyond the end of any disc is asked for.
  const auto readAt = [&](int64_t number) { return number >= 0 && number < kMaxFrames && read(static_cast<int>(number), block); };
  if (!readAt(int64_t{start} + kDescriptor) || block[0] != 1 || std::memcmp(&block[1], "CD001", 5) != 0) return {};
  // Blocks count from the start of the disc, or, mastered without regard to it, of the session.
  int64_t first = little32(&block[kRootRecord + 2]);
  if (first < start) first += start;
  const int64_t bytes = little32(&block[kRootRecord + 10]);
  const int64_t blocks = std::min<int64_t>((bytes + kIsoBlock - 1) / kIsoBlock, kMostBlocks);
  for (int64_t i = 0; i < blocks; ++i) {
    if (!readAt(first + i)) return {};
    std::string name = firstFileIn(block);
    if (!name.empty()) return name;
  }
  return {};
}

}  // namespace orvanta
