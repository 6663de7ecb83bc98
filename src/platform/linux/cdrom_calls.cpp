// The calls as ioctls. Opened without blocking, so that an empty or open drive can be asked too.
#include "platform/linux/cdrom_calls.h"

#include <fcntl.h>
#include <linux/cdrom.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <cerrno>

#include "platform/linux/unique_fd.h"

namespace orvanta {

namespace {

class KernelCdrom : public CdromCalls {
 public:
  explicit KernelCdrom(std::string device) : device_(std::move(device)) {}

  bool reopen() override {
    fd_ = UniqueFd(::open(device_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    absent_ = !fd_ && (errno == ENOENT || errno == ENXIO || errno == ENODEV || errno == ENOTDIR);
    return static_cast<bool>(fd_);
  }

  std::string missing() const override { return absent_ ? device_ : ""; }

  bool lock() override {
    if (lock_) return true;
    UniqueFd fd(::open(device_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    // A drive that is not there is nobody's; it may be plugged in later.
    if (fd && ::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) return false;
    lock_ = std::move(fd);
    return true;
  }

  CdromStatus driveStatus() override {
    if (!fd_ && !reopen()) return CdromStatus::Gone;
    const int status = ::ioctl(fd_.get(), CDROM_DRIVE_STATUS, CDSL_CURRENT);
    // The handle of a drive that was unplugged is dead for good.
    if (status < 0) fd_ = UniqueFd();
    return status >= CDS_NO_DISC && status <= CDS_DISC_OK ? static_cast<CdromStatus>(status) : CdromStatus::Gone;
  }

  std::optional<int> lastTrack() override {
    cdrom_tochdr header{};
    if (::ioctl(fd_.get(), CDROMREADTOCHDR, &header) != 0 || header.cdth_trk0 != 1) return std::nullopt;
    return header.cdth_trk1;
  }

  std::optional<CdromEntry> entry(int track) override {
    cdrom_tocentry entry{};
    entry.cdte_track = static_cast<unsigned char>(track);
    entry.cdte_format = CDROM_LBA;
    if (::ioctl(fd_.get(), CDROMREADTOCENTRY, &entry) != 0) return std::nullopt;
    return CdromEntry{entry.cdte_addr.lba, (entry.cdte_ctrl & CDROM_DATA_TRACK) != 0};
  }

  bool readAudio(int block, int count, int16_t* samples) override {
    cdrom_read_audio request{};
    request.addr.lba = block;
    request.addr_format = CDROM_LBA;
    request.nframes = count;
    request.buf = reinterpret_cast<unsigned char*>(samples);
    return ::ioctl(fd_.get(), CDROMREADAUDIO, &request) == 0;
  }

  bool readBlock(int block, unsigned char* bytes) override {
    constexpr int64_t kBlock = 2048;
    return ::pread(fd_.get(), bytes, kBlock, block * kBlock) == kBlock;
  }

  void setSpeed(int speed) override { ::ioctl(fd_.get(), CDROM_SELECT_SPEED, speed); }
  void eject() override { ::ioctl(fd_.get(), CDROMEJECT); }
  void closeTray() override { ::ioctl(fd_.get(), CDROMCLOSETRAY); }

 private:
  std::string device_;
  bool absent_ = false;
  UniqueFd fd_;
  UniqueFd lock_;
};

}  // namespace

std::unique_ptr<CdromCalls> kernelCdrom(const std::string& device) { return std::make_unique<KernelCdrom>(device); }

}  // namespace orvanta
