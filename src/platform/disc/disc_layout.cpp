// Laying a sheet's tracks end to end. A track's region in its file runs from its first index to
// that of the next track; the first track of a file also has what stands before its index.
#include "platform/disc/disc_layout.h"

#include <algorithm>

namespace orvanta {

namespace {

/// More than any disc has: what is longer counts as this.
constexpr int64_t kMaxLength = int64_t{2} * kMaxFrames * 2448;

class Layer {
 public:
  Layer(const CueSheet& sheet, std::span<const int64_t> lengths, DiscLayout& out) : sheet_(sheet), lengths_(lengths), out_(out) {}

  void run() {
    for (size_t i = 0; i < sheet_.tracks.size() && out_.error.empty(); ++i) track(i);
    out_.toc.leadOut = at_;
    if (out_.error.empty() && at_ > kMaxFrames) out_.error = "it is longer than a disc can be";
  }

 private:
  void track(size_t i) {
    const CueTrack& track = sheet_.tracks[i];
    const bool firstOfFile = i == 0 || sheet_.tracks[i - 1].file != track.file;
    const bool lastOfFile = i + 1 == sheet_.tracks.size() || sheet_.tracks[i + 1].file != track.file;
    if (firstOfFile) {
      fileFrame_ = 0;
      offset_ = 0;
    }
    const int64_t end = lastOfFile ? fileEnd(track) : sheet_.tracks[i + 1].indexes.front().frame;
    const int start = startIndex(track);
    const int64_t limit = fileEnd(track);
    const std::string name = "track " + std::to_string(track.number);
    const std::string next = "track " + std::to_string(track.number + 1);
    if (track.indexes.front().frame < fileFrame_) return refuse(name + " lies before the one it follows");
    if (start >= limit) return refuse(name + " lies beyond the end of its file");
    if (end < start) return refuse(next + " lies before the one it follows");
    if (end == start) return refuse(name + " has no length");
    if (end > limit) return refuse(next + " lies beyond the end of its file");
    silence(track.pregap);
    out_.toc.tracks.push_back({track.number, at_ + start - fileFrame_, track.data});
    fromFile(track, static_cast<int>(end) - fileFrame_);
    silence(track.postgap);
  }

  void refuse(const std::string& why) { out_.error = why; }

  static int startIndex(const CueTrack& track) {
    for (const CueIndex& index : track.indexes) {
      if (index.number == 1) return index.frame;
    }
    return 0;
  }

  bool isSound(const CueTrack& track) const { return sheet_.files[track.file].type == CueFileType::Sound; }

  /// First frame behind the file, were this track its last one. A piece of a sector counts in a
  /// sound file, where silence fills it up, and not in a raw one.
  int64_t fileEnd(const CueTrack& track) const {
    const int64_t length = std::min(lengths_[track.file], kMaxLength);
    const int64_t rest =
        isSound(track) ? (length - offset_ + kSamplesPerFrame - 1) / kSamplesPerFrame : (length - offset_) / track.sectorBytes;
    return std::min<int64_t>(fileFrame_ + std::max<int64_t>(rest, 0), int64_t{2} * kMaxFrames);
  }

  void silence(int frames) {
    if (frames > 0) out_.segments.push_back({at_, frames, Segment::kSilence, 0, kBytesPerFrame, false});
    at_ += frames;
  }

  void fromFile(const CueTrack& track, int frames) {
    out_.segments.push_back({at_, frames, static_cast<int>(track.file), offset_, track.sectorBytes, track.data});
    at_ += frames;
    fileFrame_ += frames;
    offset_ += int64_t{frames} * (isSound(track) ? kSamplesPerFrame : track.sectorBytes);
  }

  const CueSheet& sheet_;
  std::span<const int64_t> lengths_;
  DiscLayout& out_;
  int at_ = kFirstFrame;
  int fileFrame_ = 0;   ///< of the present file, where the next region starts
  int64_t offset_ = 0;  ///< the same in its own units
};

}  // namespace

DiscLayout layOut(const CueSheet& sheet, std::span<const int64_t> lengths) {
  DiscLayout layout;
  layout.error = sheet.error;
  if (layout.error.empty() && lengths.size() != sheet.files.size()) layout.error = "a file is missing";
  if (layout.error.empty()) Layer(sheet, lengths, layout).run();
  return layout;
}

}  // namespace orvanta
