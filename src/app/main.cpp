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
#include "app/options.h"
#include "app/orvanta.h"
#include "base/licences.h"
#include "platform/disc/cdrom_drive.h"
#include "platform/disc/drive_tray.h"
#include "platform/disc/folder_data.h"
#include "platform/disc/image_data.h"
#include "platform/disc/image_drive.h"
#include "platform/disc/mci_device.h"
#include "platform/disc/play_on.h"
#include "platform/disc/player.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_processes.h"
#include "platform/linux/host_system.h"
#include "platform/linux/local_socket.h"
#include "platform/linux/signals.h"
#include "platform/ports/facts.h"
#include "platform/qt/fonts.h"
#include "platform/qt/late_net.h"
#include "platform/qt/late_printer.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_facts.h"
#include "platform/qt/qt_menus.h"
#include "platform/qt/qt_screen.h"
#include "platform/qt/qt_tray.h"
#include "platform/qt/turns.h"
#include "platform/sound/mixer_stand_in.h"
#include "platform/sound/sound_choice.h"
#include "platform/sound/stream_volume.h"
#include "platform/sound/wave_player.h"
#include "state/data_folder.h"

namespace orvanta {
namespace {

constexpr int kLockTime = 3000;   ///< milliseconds for another player to let go of the drive
constexpr int kDiscTime = 10000;  ///< for a drive to tell a disc that this process was started for
constexpr int kFarewell = 500;

/// What there is before any window: files and processes, where data and drive lie, the socket of second starts.
struct Host {
  explicit Host(const Options& options)
      : system(options.handedOn()),
        places(findPlaces(options)),
        folder(HostFiles::actual(places.dataDir)),
        socket(socketPath("deck", identityOf(folder))),
        server(socket, folder) {}

  /// "" without a data folder.
  std::string inData(DataFile file) { return places.dataDir.empty() ? "" : DataFolder(files, places.dataDir).path(file); }

  Signals wishes;
  HostFiles files;
  HostProcesses processes;
  HostSystem system;
  Places places;
  std::string folder;
  std::string socket;
  SocketServer server;

 private:
  Places findPlaces(const Options& options) {
    if (options.host.dataDir.empty()) setUpFirstStart(files, processes, system);
    Places found = placesOf(options.host, files, system.systemDir());
    if (!options.host.dataDir.empty()) files.makeFolder(found.dataDir);
    return found;
  }
};

/// A second start goes to the deck that listens for its data folder. nullopt: there is none, and `server` listens now;
/// else the code that this process ends with.
std::optional<int> handedToFirst(const Options& options, Host& host) {
  // A program on the command line is run in place of a deck, whether or not one is there.
  const std::string& words = options.host.words;
  const bool forProgram = classify(words).kind == CommandLine::Kind::Program && host.files.exists(words);
  if (options.takeOver) host.server.waitInLine();
  if (options.takeOver || forProgram) return std::nullopt;
  const std::string line = lineOf({options.disc, options.host.drive, words});
  constexpr int kReply = 5000;  // milliseconds
  constexpr int kTries = 100;
  constexpr auto kPause = std::chrono::milliseconds(50);
  for (int tries = 0; tries < kTries; ++tries) {
    if (host.server.listen()) return std::nullopt;
    const Asked asked = askWhoListens(host.socket, line, kReply);
    if (asked.delivered && !asked.reply) std::fputs("orvanlx: the deck that runs is busy; it takes this start up when it can\n", stderr);
    if (asked.delivered) return 0;
    // It has just started, or is about to end.
    std::this_thread::sleep_for(kPause);
  }
  std::fputs("orvanlx: another deck has this data folder and does not answer\n", stderr);
  return 1;
}

/// The drive that the settings name, and its player. Their thread reads the disc while Qt starts.
struct Drive {
  Drive(const Options& options, Host& host)
      : path(host.places.drive),
        real(isDevice(path)),
        memory(host.inData(DataFile::Tray)),
        audio(options.audio),
        images(real ? nullptr : std::make_unique<ImageDrive>(path, options.disc, memory)),
        discs(real ? std::make_unique<CdromDrive>(kernelCdrom(path)) : nullptr),
        sound(makeSound(audio)),
        player(std::make_unique<Player>(real ? static_cast<DiscSource&>(*discs) : *images, *sound.outputs)) {
    // A drive of real discs says that it takes no images, by the road of all answers.
    if (real && !options.disc.empty()) player->offer(options.disc);
  }

  /// A disc that plays on from the last time is taken over where it is. `takeOver`: this process was started for a disc.
  void takeUp(bool takeOver) {
    const auto rest = takeBack(path);
    if (takeOver) {
      player->waitForDisc(kLockTime, kDiscTime);
    } else {
      player->waitUntilKnown(kLockTime);
    }
    if (rest && player->holder() == Holder::Us && rest->to <= player->toc().leadOut) player->play(rest->from, rest->to);
  }

  /// What still plays is handed to a player without a window. False for a drive that hangs.
  bool leave(Host& host) {
    if (player->state() == PlayState::Playing) {
      handOn(*player, player->playEnd(), path, host.system.companion("orvplayon"), {path, memory, audio, host.inData(DataFile::Level)});
    }
    return player->finish(kFarewell);
  }

  std::string path;
  bool real;
  std::string memory;
  std::string audio;
  std::unique_ptr<ImageDrive> images;
  std::unique_ptr<CdromDrive> discs;
  SoundSetup sound;
  std::unique_ptr<Player> player;
};

class DeckFacts : public FactSource {
 public:
  explicit DeckFacts(const Drive& drive) : drive_(drive) {}
  Facts facts() const override {
    return {ORVANTA_VERSION, systemName(), toolkitName(), sound(), drive_.real ? drive_.path : "disc images in " + drive_.path};
  }

 private:
  /// Which of the desktop's roads it is shows with the first sound.
  std::string sound() const {
    const std::string road = drive_.player->soundRoad();
    if (drive_.audio.rfind("file:", 0) == 0) return "written to " + drive_.audio.substr(5);
    if (drive_.audio == "null") return "heard by nobody, as asked for";
    return road.empty() ? "through PulseAudio or ALSA, from the first play on" : road;
  }

  const Drive& drive_;
};

/// The adapters that need Qt, and the core over them all.
struct Deck {
  Deck(const Options& options, Host& host, Drive& drive)
      : scale{options.scale > 0 ? options.scale : QtScreen::desktopFactor(), kTwipsPerPixel},
        device(*drive.player, clock),
        tray(*drive.player, drive.real ? "" : drive.path),
        volume(drive.player->level(), host.files, clock, host.inData(DataFile::Level), [&drive] { drive.player->relevel(); }),
        drivePath(drive.path),
        deckSound(makeSound(options.audio == "default" ? options.audio : "null")),
        facts(drive),
        discData(drive.real ? std::unique_ptr<DiscData>(std::make_unique<FolderData>([this] { return mountPointOf(drivePath); }))
                            : std::make_unique<ImageData>([&drive] { return drive.player->sheet(); }, HostSystem::discFolder(),
                                                          [this] { clock.yield(); })),
        ports{device, tray,  *discData, clock,   dialogs, host.files, host.processes, screen, host.system,
              volume, mixer, sounds,    printer, net,     menus,      systemTray,     facts,  desktop},
        orvanta(std::make_unique<Orvanta>(ports)) {
    gate.setOnEnd([] { QApplication::exit(0); });
    host.processes.setYield([this] { clock.yield(); });
  }

  CoreGate gate;
  Scale scale;
  QtClock clock{gate};
  QtScreen screen{scale};
  QtDialogs dialogs{gate, screen};
  QtMenus menus{gate, screen};
  QtDesktop desktop{gate, scale};
  LatePrinter printer{gate};
  LateNet net{gate};
  QtTray systemTray{gate};
  MciDevice device;
  DriveTray tray;
  StreamVolume volume;
  std::string drivePath;
  std::unique_ptr<MasterVolume> master = systemMasterVolume();
  MixerStandIn mixer{*master};
  SoundSetup deckSound;
  DeckFacts facts;
  WavePlayer sounds{*deckSound.outputs, [] { QApplication::beep(); }};
  std::unique_ptr<DiscData> discData;
  Ports ports;
  std::unique_ptr<Orvanta> orvanta;
};

/// The signals that end a program end it as its exit does; children that have ended are let go of.
void serveSignals(Host& host, Deck& deck) {
  for (auto what = host.wishes.next(); what != Signals::What::None; what = host.wishes.next()) {
    if (what == Signals::What::End) {
      deck.gate.enter([&] { deck.orvanta->endOfSession(); });
    } else {
      host.processes.reap();
    }
  }
}

/// What second starts and the setup program ask of this deck. One that ends takes up nothing more: who goes without a
/// reply asks again, and becomes the next deck.
void serve(Host& host, Deck& deck) {
  while (const auto request = host.server.next()) {
    serveSignals(host, deck);
    if (deck.gate.ended()) return;
    auto start = secondStartOf(request->line);
    // One drive by two names is one drive.
    if (start && identityOf(start->drive) == identityOf(deck.drivePath)) start->drive.clear();
    SocketServer::reply(*request, start || request->line == kSettingsChanged ? "ok" : "no");
    deck.gate.enter([&] {
      if (start) deck.orvanta->secondStart(*start);
      if (request->line == kSettingsChanged) deck.orvanta->takeUpSettings();
    });
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

/// Listens for second starts. The deck that made way for this one may still do so for a moment.
class Listener {
 public:
  Listener(Host& host, Deck& deck) : host_(host), deck_(deck) {
    constexpr int kListenAgain = 100;  // milliseconds
    QObject::connect(&again_, &QTimer::timeout, [this] { listen(); });
    again_.start(kListenAgain);
  }

 private:
  void listen() {
    if (!host_.server.listen()) return;
    again_.stop();
    notifier_ = std::make_unique<QSocketNotifier>(host_.server.fd(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { serve(host_, deck_); });
    serve(host_, deck_);
  }

  Host& host_;
  Deck& deck_;
  QTimer again_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

std::string versionText() {
  std::string text = "Orvanta LX " ORVANTA_VERSION "\n";
  for (const Licence& licence : kLicences) text += nameAndUse(licence) + ": " + licence.licence + "\n";
  return text;
}

/// What is said instead of a start; nullopt for one.
std::optional<int> answered(const Options& options) {
  if (!options.error.empty()) {
    std::fprintf(stderr, "orvanlx: not understood: %s\n%s", options.error.c_str(), helpText().c_str());
    return 2;
  }
  if (options.help) return std::fputs(helpText().c_str(), stdout) < 0 ? 1 : 0;
  if (options.version) return std::fputs(versionText().c_str(), stdout) < 0 ? 1 : 0;
  return std::nullopt;
}

/// From the start-up form to the end of the loop.
int live(QApplication& application, const Options& options, Host& host, Drive& drive) {
  Deck deck(options, host, drive);
  QSocketNotifier signalled(host.wishes.fd(), QSocketNotifier::Read);
  QObject::connect(&signalled, &QSocketNotifier::activated, [&] { serveSignals(host, deck); });
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application, [&] { deck.gate.enter([&] { deck.orvanta->endOfSession(); }); },
      Qt::DirectConnection);

  // The start-up form first: it takes the hand-over file away, upon which a process that made way for
  // this one lets go of the drive.
  deck.gate.enter([&] { deck.orvanta->startUp(options.host); });
  if (!deck.gate.ended()) drive.takeUp(options.takeOver);
  deck.gate.enter([&] { deck.orvanta->showFaceplate(); });
  const Listener listener(host, deck);
  lastWill = [&] { deck.gate.enter([&] { deck.orvanta->displayGone(); }); };
  std::atexit([] {
    if (lastWill) lastWill();
  });
  const int code = deck.gate.ended() ? 0 : QApplication::exec();
  lastWill = nullptr;
  deck.volume.keep();
  // A drive that hangs must not hold up the end.
  if (!drive.leave(host)) std::_Exit(code);
  return code;
}

int run(int argc, char** argv) {
  const Options options = readOptions({argv + 1, argv + argc}, std::filesystem::current_path().string());
  if (const auto code = answered(options)) return *code;
  Host host(options);
  if (const auto code = handedToFirst(options, host)) return *code;
  Drive drive(options, host);
  prepareQt();
  Fonts::warmUp();
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Orvanta LX"));
  QApplication::setQuitOnLastWindowClosed(false);
  watchTurns();
  return live(application, options, host, drive);
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
