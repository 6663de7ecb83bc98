// Preloaded into the program as shipped: /dev/fake-cdrom becomes a drive whose disc is an image of raw sound.
// A folder, named by FAKE_CDROM, controls it while it runs:
//   disc.bin  the sound, 2352 bytes a frame        starts  blocks of the tracks, the lead-out last
//   status    CDS_... number (4 disc, 2 open tray)  delay   milliseconds for each table read
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr const char* kDevice = "/dev/fake-cdrom";
std::set<int> handles;

std::string control(const char* name) { return std::string(std::getenv("FAKE_CDROM")) + "/" + name; }

std::vector<int> numbers(const char* name) {
  std::ifstream file(control(name));
  std::vector<int> all;
  for (int value = 0; file >> value;) all.push_back(value);
  return all;
}

int status() {
  const auto value = numbers("status");
  return value.empty() ? CDS_NO_DISC : value[0];
}

void setStatus(int value) { std::ofstream(control("status")) << value; }

int entry(cdrom_tocentry& out) {
  const auto starts = numbers("starts");
  const size_t place = out.cdte_track == CDROM_LEADOUT ? starts.size() : out.cdte_track;
  if (place < 1 || place > starts.size()) return -1;
  out.cdte_addr.lba = starts[place - 1];
  out.cdte_ctrl = 0;
  return 0;
}

int readAudio(const cdrom_read_audio& request) {
  if (status() != CDS_DISC_OK || request.nframes > 75) return -1;
  std::ifstream disc(control("disc.bin"), std::ios::binary);
  disc.seekg(std::streamoff{request.addr.lba} * CD_FRAMESIZE_RAW);
  return disc.read(reinterpret_cast<char*>(request.buf), std::streamsize{request.nframes} * CD_FRAMESIZE_RAW) ? 0 : -1;
}

int answer(unsigned long call, void* argument) {
  switch (call) {
    case CDROM_DRIVE_STATUS: return status();
    case CDROMREADTOCHDR: {
      const auto delay = numbers("delay");
      if (!delay.empty()) usleep(static_cast<useconds_t>(delay[0]) * 1000);
      const auto starts = numbers("starts");
      if (status() != CDS_DISC_OK || starts.size() < 2) return -1;
      static_cast<cdrom_tochdr*>(argument)->cdth_trk0 = 1;
      static_cast<cdrom_tochdr*>(argument)->cdth_trk1 = static_cast<unsigned char>(starts.size() - 1);
      return 0;
    }
    case CDROMREADTOCENTRY: return entry(*static_cast<cdrom_tocentry*>(argument));
    case CDROMREADAUDIO: return readAudio(*static_cast<cdrom_read_audio*>(argument));
    case CDROM_SELECT_SPEED: return 0;
    case CDROMEJECT: setStatus(CDS_TRAY_OPEN); return 0;
    case CDROMCLOSETRAY: setStatus(CDS_DISC_OK); return 0;
    default: return -1;
  }
}

template <class Function>
Function real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int openDevice(const char* name, const char* path, int flags, mode_t mode) {
  if (std::strcmp(path, kDevice) != 0) return real<int (*)(const char*, int, ...)>(name)(path, flags, mode);
  // The control folder stands in, so that locks work as on a device.
  const int fd = real<int (*)(const char*, int, ...)>(name)(std::getenv("FAKE_CDROM"), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd >= 0) handles.insert(fd);
  return fd;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return openDevice("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return openDevice("open64", path, flags, mode);
}

int ioctl(int fd, unsigned long call, ...) {
  va_list more;
  va_start(more, call);
  void* argument = va_arg(more, void*);
  va_end(more);
  if (handles.count(fd) == 1) return answer(call, argument);
  return real<int (*)(int, unsigned long, ...)>("ioctl")(fd, call, argument);
}

int close(int fd) {
  handles.erase(fd);
  return real<int (*)(int)>("close")(fd);
}
}
