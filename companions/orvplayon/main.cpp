// orvplayon DRIVE MEMORY AUDIO LEVEL: plays a disc on after the deck was switched off. Started by the deck, it knows
// the disc before it is told to play, holds the drive while it plays, gives the disc to the next deck that asks,
// and ends with it.
#include <poll.h>

#include <chrono>
#include <cstdio>
#include <memory>

#include "base/log.h"
#include "platform/disc/cdrom_drive.h"
#include "platform/disc/image_drive.h"
#include "platform/disc/play_on.h"
#include "platform/disc/play_on_talk.h"
#include "platform/linux/host_files.h"
#include "platform/linux/local_socket.h"
#include "platform/sound/sound_choice.h"
#include "platform/sound/stream_volume.h"

namespace orvanta {
namespace {

constexpr int kTick = 200;                                  ///< milliseconds between two looks
constexpr auto kOrphan = std::chrono::milliseconds(10000);  ///< without a word from the deck

class PlayOn {
 public:
  PlayOn(DiscSource& drive, SoundOutputs& outputs, const std::string& name)
      : drive_(drive), shared_(drive), player_(shared_, outputs), server_(socketPath("play", name)) {}

  Level& level() { return player_.level(); }

  int run() {
    if (server_.fd() < 0) return 1;
    while (!talk_.over()) {
      pollfd wait{server_.fd(), POLLIN, 0};
      if (::poll(&wait, 1, kTick) > 0) {
        while (auto request = server_.next()) SocketServer::reply(*request, talk_.answer(request->line));
      }
      // The deck's lock goes with its process: ours follows as soon as it can.
      if (talk_.playing() && !held_) held_ = drive_.lock();
      if (!talk_.playing() && std::chrono::steady_clock::now() - started_ > kOrphan) break;
    }
    return 0;
  }

 private:
  DiscSource& drive_;
  SharedDrive shared_;
  Player player_;
  PlayOnTalk talk_{player_};
  SocketServer server_;
  std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
  bool held_ = false;
};

int run(int argc, char** argv) {
  if (argc != 5) {
    std::fprintf(stderr, "orvplayon is started by the deck.\n");
    return 2;
  }
  const std::string path = argv[1];
  std::unique_ptr<DiscSource> drive;
  if (isDevice(path)) {
    drive = std::make_unique<CdromDrive>(kernelCdrom(path));
  } else {
    drive = std::make_unique<ImageDrive>(path, "", argv[2]);
  }
  const SoundSetup sound = makeSound(argv[3]);
  PlayOn playOn(*drive, *sound.outputs, path);
  setLevel(playOn.level(), keptLevel(HostFiles(), argv[4]));
  return playOn.run();
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
