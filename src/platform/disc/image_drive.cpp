// Images as discs: opening a sheet with its files, reading frames across segments, the tray.
#include "platform/disc/image_drive.h"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "base/text.h"
#include "platform/disc/image_path.h"
#include "platform/disc/iso_root.h"
#include "platform/linux/host_files.h"

namespace orvanta {

namespace fs = std::filesystem;

namespace {

constexpr int64_t kMaxSheet = int64_t{1} << 20;

std::string refusalOf(const std::string& path, const std::string& why) {
  return "The disc image " + shown(path) + " cannot be played: " + why + ".";
}

}  // namespace

std::unique_ptr<DiscImage> DiscImage::open(const std::string& cuePath, std::string& error) {
  auto disc = std::make_unique<DiscImage>();
  error.clear();
  std::error_code ignored;
  if (fs::is_directory(cuePath, ignored)) error = "it is a folder; choose a CUE sheet in it, a file that ends in .cue";
  const std::string bytes = error.empty() ? readSmallFile(cuePath, kMaxSheet, error) : "";
  if (!error.empty()) return nullptr;
  const CueSheet sheet = parseCue(bytes);
  error = sheet.error;
  std::vector<int64_t> lengths;
  // The sound of a sheet that was reached through a link lies with the sheet itself.
  std::error_code unknown;
  const std::string folder = fs::canonical(cuePath, unknown).parent_path().string();
  for (size_t i = 0; i < sheet.files.size() && error.empty(); ++i) {
    OpenedImageFile opened = openImageFile(folder, sheet.files[i].name, sheet.files[i].type);
    error = opened.error;
    lengths.push_back(opened.file ? opened.file->length() : 0);
    disc->files_.push_back(std::move(opened.file));
    disc->names_.push_back(inQuotes(sheet.files[i].name));
  }
  if (!error.empty()) return nullptr;
  disc->layout_ = layOut(sheet, lengths);
  error = disc->layout_.error;
  if (!error.empty()) return nullptr;
  disc->firstEntry_ = disc->entryOfDisc();
  disc->texts_ = textsOf(sheet);
  return disc;
}

int DiscImage::dataStart() const {
  const auto data = std::find_if(layout_.toc.tracks.begin(), layout_.toc.tracks.end(), [](const TocTrack& track) { return track.data; });
  return data == layout_.toc.tracks.end() ? -1 : data->start - kFirstFrame;
}

std::string DiscImage::entryOfDisc() {
  const int start = dataStart();
  if (start < 0) return "Track01.cda";
  const std::string file = firstRootFile(start, [this](int block, IsoBlock& out) { return readBlock(block, out.data()); });
  return file.empty() && layout_.toc.hasAudio() ? "Track01.cda" : file;
}

const Segment* DiscImage::segmentAt(int frame) const {
  const auto after = std::upper_bound(layout_.segments.begin(), layout_.segments.end(), frame,
                                      [](int place, const Segment& segment) { return place < segment.start; });
  if (after == layout_.segments.begin()) return nullptr;
  const Segment& segment = *std::prev(after);
  return frame < segment.start + segment.frames ? &segment : nullptr;
}

bool DiscImage::read(int frame, int count, int16_t* samples) {
  while (count > 0) {
    const Segment* segment = segmentAt(frame);
    if (segment == nullptr) return false;
    const int piece = std::min(count, segment->start + segment->frames - frame);
    if (!readPiece(*segment, frame, piece, samples)) return false;
    samples += ptrdiff_t{piece} * kShortsPerFrame;
    frame += piece;
    count -= piece;
  }
  return true;
}

bool DiscImage::readPiece(const Segment& segment, int frame, int count, int16_t* samples) {
  if (segment.file == Segment::kSilence || segment.data) {
    std::fill(samples, samples + ptrdiff_t{count} * kShortsPerFrame, int16_t{0});
    return true;
  }
  ImageFile& file = *files_[static_cast<size_t>(segment.file)];
  const int64_t unit = file.countsSamples() ? kSamplesPerFrame : segment.sectorBytes;
  return file.readAudio(segment.offset + (frame - segment.start) * unit, segment.sectorBytes, count, samples);
}

/// The 2048 bytes of a data sector, which lie behind its header where the header is in the file.
bool DiscImage::readBlock(int block, unsigned char* bytes) {
  const Segment* segment = segmentAt(block + kFirstFrame);
  if (segment == nullptr || !segment->data || segment->file == Segment::kSilence) return false;
  ImageFile& file = *files_[static_cast<size_t>(segment->file)];
  const int64_t offset = segment->offset + int64_t{block + kFirstFrame - segment->start} * segment->sectorBytes;
  int64_t header = segment->sectorBytes == 2336 ? 8 : 0;
  if (segment->sectorBytes == kBytesPerFrame) {
    char mode = 0;
    if (!file.readBytes(offset + 15, 1, &mode)) return false;
    header = mode == 2 ? 24 : 16;
  }
  return file.readBytes(offset + header, kIsoBlock, reinterpret_cast<char*>(bytes));
}

std::string DiscImage::fate() const {
  for (size_t i = 0; i < files_.size(); ++i) {
    const std::string fate = files_[i]->fate();
    if (!fate.empty()) return "The file " + names_[i] + fate;
  }
  return {};
}

ImageDrive::ImageDrive(std::string folder, const std::string& disc, std::string memory)
    : folder_(std::move(folder)), memory_(std::move(memory)) {
  std::string why;
  if (!disc.empty()) {
    if (take(disc, why)) {
      remember(disc);
    } else {
      notice_ = refusalOf(disc, why);
    }
  }
  if (!disc_) takeRemembered();
}

bool ImageDrive::take(const std::string& sheet, std::string& why) {
  disc_ = DiscImage::open(sheet, why);
  sheet_ = sheet;
  return disc_ != nullptr;
}

std::string rememberedImage(std::string_view bytes, const std::string& folder) {
  const auto lines = splitLines(bytes);
  return lines.size() >= 2 && lines[0] == folder ? lines[1] : "";
}

void ImageDrive::takeRemembered() {
  const auto bytes = memory_.empty() ? std::nullopt : HostFiles().read(memory_);
  const std::string last = bytes ? rememberedImage(*bytes, folder_) : "";
  if (last.empty()) return;
  std::string why;
  if (!take(last, why) && notice_.empty()) notice_ = refusalOf(last, why);
}

/// False when the next process would not find the image: the disk is full.
bool ImageDrive::remember(const std::string& imagePath) const {
  return memory_.empty() || HostFiles().write(memory_, folder_ + "\n" + imagePath + "\n");
}

std::string ImageDrive::accept(const std::string& imagePath) {
  std::string why;
  next_ = DiscImage::open(imagePath, why);
  if (!next_) return refusalOf(imagePath, why);
  nextSheet_ = imagePath;
  // Another disc is played by another process, which has no other way to know it.
  if (remember(imagePath)) return {};
  next_.reset();
  return "The disc image " + shown(imagePath) + " cannot be put in: " + shown(memory_) + " cannot be written.";
}

bool ImageDrive::lock() {
  if (lock_) return true;
  UniqueFd fd(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Without the folder there is nothing to be shared, and no disc either.
  if (!fd) return true;
  if (::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) return false;
  lock_ = std::move(fd);
  return true;
}

std::string ImageDrive::firstSheet() const {
  std::vector<std::string> sheets;
  std::error_code error;
  std::error_code unknown;
  for (auto entry = fs::directory_iterator(folder_, error); !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (endsWithNoCase(entry->path().string(), ".cue") && entry->is_regular_file(unknown)) sheets.push_back(entry->path().string());
  }
  const auto first = std::min_element(sheets.begin(), sheets.end());
  return first == sheets.end() ? "" : *first;
}

void ImageDrive::takeFirstSheet() {
  const std::string sheet = firstSheet();
  if (sheet.empty() || sheet == tried_) return;
  std::string why;
  tried_ = sheet;
  if (!take(sheet, why) && notice_.empty()) notice_ = refusalOf(sheet, why);
}

DriveStatus ImageDrive::poll() {
  if (open_) return DriveStatus::TrayOpen;
  if (!disc_) takeFirstSheet();
  if (!disc_) return DriveStatus::NoDisc;
  if (!fateTold_) {
    const std::string fate = disc_->fate();
    fateTold_ = !fate.empty();
    if (fateTold_) notice_ = fate;
  }
  return DriveStatus::Disc;
}

std::string ImageDrive::missing() const {
  std::error_code error;
  return disc_ || fs::is_directory(folder_, error) ? "" : folder_;
}

const Toc& ImageDrive::toc() const {
  static const Toc kNone;
  return disc_ && !open_ ? disc_->toc() : kNone;
}

std::string ImageDrive::firstEntry() const { return disc_ && !open_ ? disc_->firstEntry() : ""; }

SheetTexts ImageDrive::texts() const { return disc_ && !open_ ? disc_->texts() : SheetTexts{}; }

bool ImageDrive::read(int frame, int count, int16_t* samples) { return disc_ && !open_ && disc_->read(frame, count, samples); }

void ImageDrive::openTray() { open_ = true; }

void ImageDrive::closeTray() {
  open_ = false;
  if (!next_) return;
  disc_ = std::move(next_);
  sheet_ = nextSheet_;
  fateTold_ = false;
}

}  // namespace orvanta
