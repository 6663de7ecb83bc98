// The files of an ISO 9660 data session.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvanta {

constexpr int kIsoBlock = 2048;
using IsoBlock = std::array<unsigned char, kIsoBlock>;

using IsoReader = std::function<bool(int block, IsoBlock& out)>;

struct IsoFile {
  std::string way;  ///< from the root, UTF-8, "/" between names
  int block = 0;    ///< its first, from the start of the disc
  int64_t size = 0;
};

/// All files of the session, by its long names where it has such. What stands for the rest of a folder that cannot be read is its
/// way, with "/" behind it. Whatever a disc says of itself, no way leaves the root, and
/// there is an end to files, folders and their depth.
std::vector<IsoFile> isoFiles(int start, const IsoReader& read);

/// Name of the first file in the root folder, without its version number; "" when there is none or
/// the session cannot be read. `read` fetches a block by its number from the start of the disc;
/// `start` is the number of the session's first block.
std::string firstRootFile(int start, const IsoReader& read);

}  // namespace orvanta
