// The root folder of an ISO 9660 data session.
#pragma once

#include <array>
#include <functional>
#include <string>

namespace orvanta {

constexpr int kIsoBlock = 2048;
using IsoBlock = std::array<unsigned char, kIsoBlock>;

/// Name of the first file in the root folder, without its version number; "" when there is none or
/// the session cannot be read. `read` fetches a block by its number from the start of the disc;
/// `start` is the number of the session's first block.
std::string firstRootFile(int start, const std::function<bool(int block, IsoBlock& out)>& read);

}  // namespace orvanta
