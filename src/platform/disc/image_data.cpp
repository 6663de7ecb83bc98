// An image's data track as files. The player has the image open too; this is a reader of its own.
#include "platform/disc/image_data.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <numeric>

#include "base/text.h"
#include "platform/disc/image_drive.h"
#include "platform/linux/host_files.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

constexpr int64_t kMostBytes = int64_t{900} << 20;  ///< no disc holds more
constexpr int kBlocksAtATime = 512;                 ///< copied between two yields

}  // namespace

ImageData::ImageData(std::function<std::string()> sheet, std::string stores, std::function<void()> yield)
    : sheet_(std::move(sheet)),
      stores_(std::move(stores)),
      store_(joinPath(stores_, std::to_string(::getpid()))),
      yield_(std::move(yield)),
      copied_([this] { return store_; }) {}

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
  const auto file = std::find_if(files_.begin(), files_.end(), [&](const IsoFile& each) { return equalsNoCase(each.way, way); });
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
  clearStores();
  if (copyAll(sheet)) {
    stored_ = sheet;
    return true;
  }
  // What was broken off would only fill the disk.
  std::error_code error;
  fs::remove_all(store_, error);
  return false;
}

/// Ours, and those of decks that have ended.
void ImageData::clearStores() const {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(stores_, error)) {
    const auto owner = static_cast<pid_t>(leadingNumber(entry.path().filename().string()));
    if (owner == ::getpid() || owner <= 0 || (::kill(owner, 0) != 0 && errno == ESRCH)) fs::remove_all(entry.path(), error);
  }
}

/// False, too, when the disc was taken out, or another came, while events were delivered.
bool ImageData::copyAll(const std::string& sheet) {
  const int64_t bytes =
      std::accumulate(files_.begin(), files_.end(), int64_t{0}, [](int64_t sum, const IsoFile& file) { return sum + file.size; });
  // For this user alone, each folder of the way.
  if (bytes > kMostBytes || files_.empty() || !HostFiles().makeFolder(store_)) return false;
  const std::vector<IsoFile> files = files_;
  return std::all_of(files.begin(), files.end(), [&](const IsoFile& file) { return copy(file) && sheet_() == sheet; });
}

/// Executable: which of a disc's files are programs, its names alone tell.
bool ImageData::copy(const IsoFile& file) {
  const std::string path = joinPath(store_, file.way);
  std::error_code error;
  fs::create_directories(fs::path(path).parent_path(), error);
  std::ofstream out(path, std::ios::binary);
  IsoBlock block{};
  int64_t left = file.size;
  for (int i = 0; left > 0; ++i) {
    if (++blocks_ % kBlocksAtATime == 0) {
      yield_();
      if (sheet_() != opened_) return false;
    }
    if (!out || !image_ || !readBlock(file.block + i, block)) return false;
    const int64_t piece = std::min<int64_t>(left, kIsoBlock);
    out.write(reinterpret_cast<const char*>(block.data()), piece);
    left -= piece;
  }
  out.close();
  fs::permissions(path, fs::perms::owner_all, error);
  return out.good();
}

}  // namespace orvanta
