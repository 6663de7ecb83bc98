// ISO 9660: the volume descriptor is the session's block 16; it holds the root's folder record.
#include "platform/disc/iso_root.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include "base/foreign_text.h"
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

struct Record {
  std::string name;
  bool folder = false;
  int64_t block = 0;
  int64_t size = 0;
};

Record recordAt(const IsoBlock& block, size_t at) {
  const std::string name(reinterpret_cast<const char*>(&block[at + kMinRecord]), block[at + 32]);
  return {name, (block[at + 25] & kFolderFlag) != 0, little32(&block[at + 2]), little32(&block[at + 10])};
}

/// Of one block of a folder, up to the first that is none.
std::vector<Record> recordsIn(const IsoBlock& block) {
  std::vector<Record> records;
  for (size_t at = 0; at + kMinRecord < block.size() && block[at] > kMinRecord; at += block[at]) {
    const size_t length = block[at];
    if (at + length > block.size() || kMinRecord + block[at + 32] > length) break;
    records.push_back(recordAt(block, at));
  }
  return records;
}

std::string plainName(const std::string& name) { return name.substr(0, name.find(';')); }

/// One that a disc could not be trusted with: it is no name within a folder.
bool leadsAway(const std::string& name) {
  return name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos || name.find('\\') != std::string::npos ||
         std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 32; });
}

/// Walks folders of a session; places are counted from the start of the disc.
class Walk {
 public:
  Walk(int start, const IsoReader& read) : start_(start), read_(read) {}

  std::vector<IsoFile> run() {
    const auto root = rootRecord();
    if (root) enter(*root, "", 0);
    return std::move(files_);
  }

  /// The folder of long names where the disc has one.
  std::optional<Record> rootRecord() {
    std::optional<Record> root;
    IsoBlock block{};
    for (int i = 0; i < kMostDescriptors; ++i) {
      if (!readAt(int64_t{start_} + kDescriptor + i, block) || std::memcmp(&block[1], "CD001", 5) != 0 || block[0] == kLastDescriptor)
        break;
      const bool joliet = block[0] == 2 && block[88] == '%' && block[89] == '/';
      if (block[0] != 1 && !joliet) continue;
      long_ = joliet;
      root = Record{"", true, little32(&block[kRootRecord + 2]), little32(&block[kRootRecord + 10])};
      if (joliet) break;
    }
    return root;
  }

 private:
  static constexpr int kMostDescriptors = 16;
  static constexpr unsigned char kLastDescriptor = 255;
  static constexpr int kDeepest = 8;
  static constexpr size_t kMostFiles = 20000;
  static constexpr int kMostFolderBlocks = 4096;  ///< of all folders: a disc may lead round and round

  /// Blocks count from the start of the disc, or, mastered without regard to it, of the session.
  int64_t placed(int64_t block) const { return block < start_ ? block + start_ : block; }

  bool readAt(int64_t number, IsoBlock& block) const {
    return number >= 0 && number < kMaxFrames && read_(static_cast<int>(number), block);
  }

  void enter(const Record& folder, const std::string& way, int depth) {
    if (depth > kDeepest) return;
    const int64_t first = placed(folder.block);
    const int64_t blocks = std::min<int64_t>((folder.size + kIsoBlock - 1) / kIsoBlock, kMostBlocks);
    IsoBlock block{};
    for (int64_t i = 0; i < blocks && ++blocks_ <= kMostFolderBlocks; ++i) {
      if (!readAt(first + i, block)) {
        files_.push_back({way.empty() ? "/" : way, 0, 0});
        return;
      }
      for (const Record& record : recordsIn(block)) take(record, way, depth);
    }
  }

  void take(const Record& record, const std::string& way, int depth) {
    const std::string name = plainName(long_ ? fromUtf16(record.name, true) : foreignText(record.name));
    if (leadsAway(name) || files_.size() >= kMostFiles) return;
    if (record.folder) {
      enter(record, way + name + "/", depth + 1);
    } else if (const int64_t block = placed(record.block); block < kMaxFrames) {
      files_.push_back({way + name, static_cast<int>(block), record.size});
    }
  }

  int start_;
  const IsoReader& read_;
  bool long_ = false;
  int blocks_ = 0;
  std::vector<IsoFile> files_;
};

}  // namespace

std::vector<IsoFile> isoFiles(int start, const IsoReader& read) { return Walk(start, read).run(); }

std::string firstRootFile(int start, const IsoReader& read) {
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
    for (const Record& record : recordsIn(block)) {
      if (!record.folder && !record.name.empty()) return plainName(record.name);
    }
  }
  return {};
}

}  // namespace orvanta
