// The one place that knows every adapter: it makes them, hands them to the core, and runs the loop.
#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "app/command_line.h"
#include "app/licences.h"
#include "app/options.h"
#include "app/orvanta.h"
#include "base/text.h"
#include "platform/disc/cdrom_drive.h"
#include "platform/disc/drive_tray.h"
#include "platform/disc/image_drive.h"
#include "platform/disc/mci_device.h"
#include "platform/disc/play_on.h"
#include "platform/disc/player.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_processes.h"
#include "platform/linux/host_system.h"
#include "platform/linux/local_socket.h"
#include "platform/linux/signals.h"
#include "platform/qt/fonts.h"
#include "platform/qt/form_view.h"
#include "platform/qt/late_net.h"
#include "platform/qt/late_printer.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_screen.h"
#include "platform/sound/mixer_stand_in.h"
#include "platform/sound/sound_choice.h"
#include "platform/sound/stream_volume.h"
#include "platform/sound/wave_player.h"

namespace orvanta {
namespace {

constexpr int kLockTime = 3000;   ///< milliseconds for another player to let go of the drive
constexpr int kDiscTime = 10000;  ///< for a drive to tell a disc that this process was started for
constexpr int kFarewell = 500;

/// A second start goes to the deck that listens for its data folder. nullopt: there is none, and `server` listens now;
/// else the code that this process ends with.
std::optional<int> handedToFirst(SocketServer& server, const std::string& socket, const SecondStart& start) {
  constexpr int kReply = 5000;  // milliseconds
  constexpr int kTries = 100;
  constexpr auto kPause = std::chrono::milliseconds(50);
  for (int tries = 0; tries < kTries; ++tries) {
    if (server.listen()) return std::nullopt;
    const Asked asked = askWhoListens(socket, lineOf(start), kReply);
    if (asked.delivered && !asked.reply) std::fputs("orvanlx: the deck that runs is busy; it takes this start up when it can\n", stderr);
    if (asked.delivered) return 0;
    // It has just started, or is about to end.
    std::this_thread::sleep_for(kPause);
  }
  std::fputs("orvanlx: another deck has this data folder and does not answer\n", stderr);
  return 1;
}

/// What second starts and the setup program ask of this deck.
void serve(SocketServer& server, CoreGate& gate, Orvanta& orvanta) {
  while (const auto request = server.next()) {
    const auto start = secondStartOf(request->line);
    SocketServer::reply(*request, start || request->line == kSettingsChanged ? "ok" : "no");
    gate.enter([&] {
      if (start) orvanta.secondStart(*start);
      if (request->line == kSettingsChanged) orvanta.takeUpSettings();
    });
  }
}

/// The signals that end a program end it as its exit does; children that have ended are let go of.
void serveSignals(Signals& wishes, const HostProcesses& processes, CoreGate& gate, Orvanta& orvanta) {
  for (auto what = wishes.next(); what != Signals::What::None; what = wishes.next()) {
    if (what == Signals::What::End) {
      gate.enter([&] { orvanta.endOfSession(); });
    } else {
      processes.reap();
    }
  }
}

/// When the display's server dies, Qt ends the process where it stands: what is still to be kept is kept then.
std::function<void()> lastWill;

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

  Signals wishes;
  HostFiles files;
  HostProcesses processes;
  HostSystem system(options.handedOn());
  if (options.host.dataDir.empty()) setUpFirstStart(files, processes, system);
  // The drive's thread reads the disc while Qt starts.
  const auto [data, path] = placesOf(options.host, files, system.systemDir());
  const bool real = isDevice(path);
  if (!options.host.dataDir.empty()) files.makeFolder(data);
  const std::string folder = HostFiles::actual(data);
  const std::string socket = socketPath("deck", identityOf(folder));
  SocketServer server(socket, folder);
  // A program on the command line is run in place of a deck, whether or not one is there.
  const bool forProgram = classify(options.host.words).kind == CommandLine::Kind::Program && files.exists(options.host.words);
  if (!options.takeOver && !forProgram) {
    const auto code = handedToFirst(server, socket, {options.disc, options.host.drive, options.host.words});
    if (code) return *code;
  }
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
  LateNet net(gate);
  MciDevice device(*player, clock);
  DriveTray tray(*player, real ? "" : path);
  const std::string level = data.empty() ? "" : joinPath(data, "level.dat");
  StreamVolume volume(player->level(), files, clock, level);
  const auto master = systemMasterVolume();
  MixerStandIn mixer(*master);
  const SoundSetup deckSound = makeSound(options.audio == "default" ? options.audio : "null");
  WavePlayer sounds(*deckSound.outputs, [] { QApplication::beep(); });
  Ports ports{device, tray, clock, dialogs, files, processes, screen, system, volume, mixer, sounds, printer, net, desktop};
  auto orvanta = std::make_unique<Orvanta>(ports);

  QSocketNotifier signalled(wishes.fd(), QSocketNotifier::Read);
  QObject::connect(&signalled, &QSocketNotifier::activated, [&] { serveSignals(wishes, processes, gate, *orvanta); });
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application, [&] { gate.enter([&] { orvanta->endOfSession(); }); },
      Qt::DirectConnection);

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
  // The deck that made way for this one may still listen for a moment.
  std::unique_ptr<QSocketNotifier> notifier;
  QTimer listens;
  const auto listen = [&] {
    if (!server.listen()) return;
    listens.stop();
    notifier = std::make_unique<QSocketNotifier>(server.fd(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [&] { serve(server, gate, *orvanta); });
    serve(server, gate, *orvanta);
  };
  QObject::connect(&listens, &QTimer::timeout, listen);
  constexpr int kListenAgain = 100;  // milliseconds
  listens.start(kListenAgain);
  lastWill = [&] { gate.enter([&] { orvanta->displayGone(); }); };
  std::atexit([] {
    if (lastWill) lastWill();
  });
  const int code = gate.ended() ? 0 : QApplication::exec();
  lastWill = nullptr;
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
