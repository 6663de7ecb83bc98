// An image's data track as files. The player has the image open too; this is a reader of its own.
#include "platform/disc/image_data.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "platform/disc/image_drive.h"
#include "platform/disc/same_name.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

constexpr int64_t kMostBytes = int64_t{900} << 20;  ///< no disc holds more
constexpr int kBlocksAtATime = 512;                 ///< copied between two yields

/// A copy that is broken off would only fill the disk: nor does it stay when the process ends while events are delivered.
struct Part {
  explicit Part(DiscStore& copy) : store(copy) {}
  ~Part() {
    if (!whole) store.drop();
  }
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;
  DiscStore& store;
  bool whole = false;
};

}  // namespace

ImageData::ImageData(std::function<std::string()> sheet, std::string stores, std::function<void()> yield)
    : sheet_(std::move(sheet)), store_(std::move(stores)), yield_(std::move(yield)), copied_([this] { return store_.folder(); }) {}

ImageData::~ImageData() = default;

bool ImageData::open() {
  const std::string sheet = sheet_();
  if (!sheet.empty() && sheet == opened_ && image_) return true;
  opened_ = sheet;
  files_.clear();
  std::string why;
  image_ = sheet.empty() ? nullptr : DiscImage::open(sheet, why);
  const int start = image_ ? image_->dataStart() : -1;
  if (start >= 0) files_ = isoFiles(start, [this](int block, IsoBlock& out) { return readBlock(block, out); });
  return image_ != nullptr;
}

bool ImageData::readBlock(int block, IsoBlock& out) const { return image_->readBlock(block, out.data()); }

std::vector<std::string> ImageData::rootFiles() {
  std::vector<std::string> names;
  if (!open()) return names;
  for (const IsoFile& file : files_) {
    if (file.way.find('/') == std::string::npos) names.push_back(file.way);
  }
  std::sort(names.begin(), names.end());
  return names;
}

const IsoFile* ImageData::found(const std::string& way) const {
  const auto file =
      std::find_if(files_.begin(), files_.end(), [&](const IsoFile& each) { return !each.way.ends_with('/') && sameName(each.way, way); });
  return file == files_.end() ? nullptr : &*file;
}

std::string ImageData::find(const std::string& way) {
  const IsoFile* file = open() ? found(way) : nullptr;
  return file == nullptr ? "" : file->way;
}

std::string ImageData::read(const std::string& way, size_t most) {
  const IsoFile* file = open() ? found(way) : nullptr;
  std::string bytes;
  IsoBlock block{};
  if (file == nullptr) return bytes;
  most = std::min(most, static_cast<size_t>(file->size));
  for (int i = 0; bytes.size() < most && readBlock(file->block + i, block); ++i)
    bytes.append(reinterpret_cast<const char*>(block.data()), block.size());
  bytes.resize(std::min(bytes.size(), most));
  return bytes;
}

std::string ImageData::bring(const std::string& way) { return copyOut() ? copied_.bring(way) : ""; }

/// The disc's programs need what lies beside them, so all of its files are copied.
bool ImageData::copyOut() {
  if (!open()) return false;
  if (stored_ == opened_) return true;
  const std::string sheet = opened_;
  stored_.clear();
  Part part(store_);
  part.whole = copyAll(sheet);
  if (part.whole) {
    stored_ = sheet;
  } else {
    unread_.clear();
  }
  return part.whole;
}

/// One bad file leaves all others usable. False: none could be had, or no room was left, or the disc was taken out, or another
/// came, while events were delivered.
bool ImageData::copyAll(const std::string& sheet) {
  unread_.clear();
  if (files_.empty() || !store_.renew()) return false;
  room_ = kMostBytes;
  const std::vector<IsoFile> files = files_;
  for (const IsoFile& file : files) {
    const Copied how = copy(file);
    if (how == Copied::BrokenOff || sheet_() != sheet) return false;
    if (how == Copied::Unreadable) unread_.push_back(file.way);
  }
  return unread_.size() < files.size();
}

/// A damaged record may name any size.
bool ImageData::endsOnDisc(const IsoFile& file) const {
  IsoBlock block{};
  return file.size == 0 || readBlock(file.block + static_cast<int>((file.size - 1) / kIsoBlock), block);
}

bool ImageData::goesOn() {
  if (++blocks_ % kBlocksAtATime == 0) yield_();
  return image_ && sheet_() == opened_;
}

/// Executable: which of a disc's files are programs, its names alone tell.
ImageData::Copied ImageData::copy(const IsoFile& file) {
  if (!goesOn()) return Copied::BrokenOff;
  if (file.way.ends_with('/') || file.size > room_ || !endsOnDisc(file)) return Copied::Unreadable;
  const std::string path = joinPath(store_.folder(), file.way);
  std::error_code error;
  // Of several versions of a file the newest stands first.
  if (fs::is_regular_file(path, error)) return Copied::Whole;
  fs::create_directories(fs::path(path).parent_path(), error);
  errno = 0;
  std::ofstream out(path, std::ios::binary);
  // A name may be one that this machine cannot have.
  if (!out) return errno == ENOSPC || errno == EDQUOT ? Copied::BrokenOff : Copied::Unreadable;
  const Copied how = copyBlocks(file, out);
  out.close();
  fs::permissions(path, fs::perms::owner_all, error);
  if (how == Copied::Unreadable) fs::remove(path, error);
  return how == Copied::Whole && !out ? Copied::BrokenOff : how;
}

ImageData::Copied ImageData::copyBlocks(const IsoFile& file, std::ostream& out) {
  IsoBlock block{};
  int64_t left = file.size;
  for (int i = 0; left > 0; ++i) {
    if (!goesOn() || !out) return Copied::BrokenOff;
    if (!readBlock(file.block + i, block)) return Copied::Unreadable;
    const int64_t piece = std::min<int64_t>(left, kIsoBlock);
    out.write(reinterpret_cast<const char*>(block.data()), piece);
    left -= piece;
    room_ -= piece;
  }
  return Copied::Whole;
}

}  // namespace orvanta
