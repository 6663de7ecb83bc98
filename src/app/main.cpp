// The one place that knows every adapter: it makes them, hands them to the core, and runs the loop.
#include <QApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "app/licences.h"
#include "app/options.h"
#include "app/orvanta.h"
#include "base/text.h"
#include "platform/linux/cdrom_drive.h"
#include "platform/linux/drive_tray.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_processes.h"
#include "platform/linux/host_system.h"
#include "platform/linux/image_drive.h"
#include "platform/linux/local_socket.h"
#include "platform/linux/mci_device.h"
#include "platform/linux/mixer_stand_in.h"
#include "platform/linux/play_on.h"
#include "platform/linux/player.h"
#include "platform/linux/sound_choice.h"
#include "platform/linux/stream_volume.h"
#include "platform/linux/wave_player.h"
#include "platform/qt/fonts.h"
#include "platform/qt/form_view.h"
#include "platform/qt/late_printer.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_screen.h"

namespace orvanta {
namespace {

constexpr int kLockTime = 3000;   ///< milliseconds for another player to let go of the drive
constexpr int kDiscTime = 10000;  ///< for a drive to tell a disc that this process was started for
constexpr int kFarewell = 500;

/// A second start on the same data folder: its disc goes to the window that is there, which comes to
/// the front. False: there is none.
bool handedToFirst(const std::string& socket, const std::string& disc) {
  constexpr int kPatience = 1000;
  return ask(socket, disc.empty() ? "raise" : "disc " + disc, kPatience).has_value();
}

/// What a second start asks of the first.
void serveSecondStarts(SocketServer& server, CoreGate& gate, DiscTray& tray, forms::Form& form) {
  while (const auto request = server.next()) {
    SocketServer::reply(*request, "ok");
    gate.enter([&] {
      if (request->line.rfind("disc ", 0) == 0) tray.offer(request->line.substr(5));
      form.minimised = false;
      if (form.view() != nullptr) form.view()->raise();
    });
  }
}

/// X11 where both are there, unless the user chose: stored places and top-most windows need it.
/// One transform does all scaling, so Qt's own stays out.
void prepareQt() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "xcb");
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
}

int run(int argc, char** argv) {
  const Options options = readOptions({argv + 1, argv + argc}, std::filesystem::current_path().string());
  if (!options.error.empty()) {
    std::fprintf(stderr, "orvanlx: not understood: %s\n%s", options.error.c_str(), helpText().c_str());
    return 2;
  }
  if (options.help) return std::fputs(helpText().c_str(), stdout) < 0 ? 1 : 0;
  if (options.version) return std::fputs("Orvanta LX " ORVANTA_VERSION "\n" ORVANTA_LICENCES, stdout) < 0 ? 1 : 0;

  HostFiles files;
  HostProcesses processes;
  HostSystem system(options.handedOn());
  // The drive's thread reads the disc while Qt starts.
  const auto [data, path] = placesOf(options.host, files, system.systemDir());
  const bool real = isDevice(path);
  const std::string socket = socketPath("deck", data);
  if (!options.takeOver && handedToFirst(socket, options.disc)) return 0;
  const std::string memory = data.empty() ? "" : joinPath(data, "tray.dat");
  auto images = real ? nullptr : std::make_unique<ImageDrive>(path, options.disc, memory);
  auto discs = real ? std::make_unique<CdromDrive>(kernelCdrom(path)) : nullptr;
  DiscSource& drive = real ? static_cast<DiscSource&>(*discs) : *images;
  const SoundSetup sound = makeSound(options.audio);
  auto player = std::make_unique<Player>(drive, *sound.outputs);
  // A drive of real discs says that it takes no images, by the road of all answers.
  if (real && !options.disc.empty()) player->offer(options.disc);

  prepareQt();
  Fonts::warmUp();
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Orvanta LX"));
  QApplication::setQuitOnLastWindowClosed(false);

  CoreGate gate;
  gate.setOnEnd([] { QApplication::exit(0); });
  const Scale scale{options.scale > 0 ? options.scale : QtScreen::desktopFactor(), kTwipsPerPixel};
  QtClock clock(gate);
  QtScreen screen(scale);
  QtDialogs dialogs(gate, screen);
  QtDesktop desktop(gate, scale);
  processes.setYield([&clock] { clock.yield(); });
  LatePrinter printer(gate);
  MciDevice device(*player, clock);
  DriveTray tray(*player, real ? "" : path);
  const std::string level = data.empty() ? "" : joinPath(data, "level.dat");
  StreamVolume volume(player->level(), files, clock, level);
  const auto master = systemMasterVolume();
  MixerStandIn mixer(*master);
  const SoundSetup deckSound = makeSound(options.audio == "default" ? options.audio : "null");
  WavePlayer sounds(*deckSound.outputs, [] { QApplication::beep(); });
  Ports ports{device, tray, clock, dialogs, files, processes, screen, system, volume, mixer, sounds, printer, desktop};
  auto orvanta = std::make_unique<Orvanta>(ports);

  // The start-up form first: it takes the hand-over file away, upon which a process that made way for
  // this one lets go of the drive.
  gate.enter([&] { orvanta->startUp(options.host); });
  if (!gate.ended()) {
    // A disc that plays on from the last time is taken over where it is.
    const auto rest = takeBack(path);
    if (options.takeOver) {
      player->waitForDisc(kLockTime, kDiscTime);
    } else {
      player->waitUntilKnown(kLockTime);
    }
    if (rest && player->holder() == Holder::Us && rest->to <= player->toc().leadOut) player->play(rest->from, rest->to);
  }
  gate.enter([&] { orvanta->showFaceplate(); });
  SocketServer server(socket);
  std::unique_ptr<QSocketNotifier> notifier;
  if (server.fd() >= 0) {
    notifier = std::make_unique<QSocketNotifier>(server.fd(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [&] { serveSecondStarts(server, gate, tray, orvanta->form); });
  }
  const int code = gate.ended() ? 0 : QApplication::exec();
  volume.keep();
  if (player->state() == PlayState::Playing) {
    handOn(*player, player->playEnd(), path, joinPath(system.windowsDir(), "orvplayon"), {path, memory, options.audio, level});
  }
  // A drive that hangs must not hold up the end.
  if (!player->finish(kFarewell)) std::_Exit(code);
  return code;
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
