// Status once a look, a new handle and table at each change, and reads that stay within the drive's
// limits.
#include "platform/disc/cdrom_drive.h"

#include <algorithm>

#include "base/log.h"
#include "platform/disc/iso_root.h"

namespace orvanta {

namespace {

constexpr int kMostAtOnce = 75;
constexpr int kQuietSpeed = 8;
/// Between the sound and the data of an enhanced disc: lead-out, lead-in and pregap of the session.
constexpr int kSessionGap = 11400;

DriveStatus statusOf(CdromStatus status) {
  switch (status) {
    case CdromStatus::Disc: return DriveStatus::Disc;
    case CdromStatus::TrayOpen: return DriveStatus::TrayOpen;
    case CdromStatus::NotReady: return DriveStatus::NotReady;
    default: return DriveStatus::NoDisc;
  }
}

}  // namespace

bool isDevice(const std::string& drivePath) { return drivePath.rfind("/dev/", 0) == 0; }

DriveStatus CdromDrive::poll() {
  const CdromStatus status = calls_->driveStatus();
  if (status != status_) {
    if (logs("drive")) logLine("drive", "status " + std::to_string(static_cast<int>(status)));
    status_ = status;
    known_ = false;
  }
  if (statusOf(status) != DriveStatus::Disc) {
    toc_ = {};
    entry_.clear();
    return statusOf(status);
  }
  if (!known_) known_ = calls_->reopen() && readTable();
  return known_ ? DriveStatus::Disc : DriveStatus::NotReady;
}

bool CdromDrive::readTable() {
  toc_ = {};
  entry_.clear();
  const auto last = calls_->lastTrack();
  const auto leadOut = calls_->entry(CdromCalls::kLeadOut);
  const auto onDisc = [](const std::optional<CdromEntry>& entry) { return entry && entry->block >= 0 && entry->block < kMaxFrames; };
  if (!last || !onDisc(leadOut) || *last < 1 || *last > kMaxTracks) return false;
  Toc toc;
  for (int number = 1; number <= *last; ++number) {
    const auto entry = calls_->entry(number);
    if (!onDisc(entry) || (number > 1 && entry->block + kFirstFrame <= toc.startOf(number - 1))) return false;
    toc.tracks.push_back({number, entry->block + kFirstFrame, entry->data});
  }
  toc.leadOut = leadOut->block + kFirstFrame;
  if (toc.leadOut <= toc.tracks.back().start || toc.leadOut > kMaxFrames) return false;
  toc.sessionGap = kSessionGap;
  toc_ = toc;
  calls_->setSpeed(kQuietSpeed);
  entry_ = entryOfDisc();
  return true;
}

std::string CdromDrive::entryOfDisc() {
  const auto data = std::find_if(toc_.tracks.begin(), toc_.tracks.end(), [](const TocTrack& track) { return track.data; });
  if (data == toc_.tracks.end()) return "Track01.cda";
  const std::string file =
      firstRootFile(data->start - kFirstFrame, [this](int block, IsoBlock& out) { return calls_->readBlock(block, out.data()); });
  return file.empty() && toc_.hasAudio() ? "Track01.cda" : file;
}

bool CdromDrive::read(int frame, int count, int16_t* samples) {
  if (!known_ || frame < kFirstFrame || frame + count > toc_.leadOut) return false;
  while (count > 0) {
    const int piece = std::min(count, kMostAtOnce);
    if (!calls_->readAudio(frame - kFirstFrame, piece, samples)) return false;
    samples += ptrdiff_t{piece} * kShortsPerFrame;
    frame += piece;
    count -= piece;
  }
  return true;
}

void CdromDrive::openTray() {
  calls_->eject();
  status_.reset();
}

void CdromDrive::closeTray() {
  calls_->closeTray();
  status_.reset();
}

std::string CdromDrive::accept(const std::string& /*imagePath*/) {
  return "This drive takes discs, not disc images. A folder as the drive takes images.";
}

}  // namespace orvanta
