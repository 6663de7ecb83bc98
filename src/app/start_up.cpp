// The start in its order: screen, folders, ORVWIN.INI, the other settings, the command word.
#include "app/start_up.h"

#include <algorithm>

#include "app/command_line.h"
#include "base/text.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/processes.h"
#include "platform/ports/screen.h"
#include "platform/ports/system.h"
#include "state/data_folder.h"
#include "state/settings_files.h"

namespace orvanta {

namespace {

/// The folders of ORVWIN.INI. One that is cut short behind them serves as well as a whole one.
bool readPlaces(Files& files, const std::string& systemDir, Settings& settings) {
  readSettings(SettingsFile::Orvwin, files, systemDir, settings);
  return !settings.appDir.empty() && !settings.cdProbePath.empty();
}

}  // namespace

bool setUpFirstStart(Files& files, Processes& processes, const System& system) {
  if (files.exists(DataFolder(files, system.systemDir()).path(SettingsFile::Orvwin))) return true;
  const std::string helper = system.companion("lxinit");
  return files.exists(helper) && processes.runAndWait({{helper, system.defaultDataDir()}, "", WindowStyle::Normal}) == 0;
}

Places placesOf(const HostOptions& options, Files& files, const std::string& systemDir) {
  Settings settings;
  readPlaces(files, systemDir, settings);
  Places places{settings.appDir, settings.cdProbePath};
  if (!options.dataDir.empty()) {
    places.dataDir = options.dataDir;
    if (places.drive.empty()) places.drive = usualDrive(options.dataDir);
  }
  if (!options.drive.empty()) places.drive = options.drive;
  return places;
}

void StartUp::run(const HostOptions& options) {
  ports_.screen.setPointer(Pointer::Hourglass);
  runProgram(options.words);
  state_.process.osFamily = ports_.system.platformId();
  measureScreen();
  state_.process.systemDir = ports_.system.systemDir();
  state_.process.windowsDir = ports_.system.windowsDir();
  findData(options);
  DataFolder(ports_.files, state_.settings.appDir).unmark(DataFile::HandOver);
  readSettingsFiles();
  state_.process.menusEngine = options.engine;
  takeWord(options.words);
  if (options.play) state_.process.autoStartMode = true;
  ports_.screen.setPointer(Pointer::Normal);
}

/// A program named on the command line is run in its own folder, in our place. One that is not
/// there is a plain start.
void StartUp::runProgram(const std::string& words) {
  const std::string line(trim(words));
  if (classify(line).kind != CommandLine::Kind::Program || !ports_.files.exists(line)) return;
  const auto slash = line.rfind('/');
  const std::string folder = slash == std::string::npos ? "" : line.substr(0, slash);
  if (ports_.processes.start({{line}, folder, WindowStyle::Normal}) == 0) {
    ports_.dialogs.message(BoxStyle::Warning, "Orvanta", line + " could not be started.");
  }
  end();
}

void StartUp::measureScreen() {
  state_.process.smallFonts = ports_.screen.twipsPerPixel() > 14;
  state_.process.colourCount = (int64_t{1} << std::clamp(ports_.screen.bitsPerPixel(), 1, 62)) * ports_.screen.planes();
}

void StartUp::findData(const HostOptions& options) {
  dataFolderGiven_ = !options.dataDir.empty();
  if (options.dataDir.empty()) {
    const std::string& folder = state_.process.systemDir;
    bool known = readPlaces(ports_.files, folder, state_.settings);
    if (!known && setUpFirstStart(ports_.files, ports_.processes, ports_.system)) known = readPlaces(ports_.files, folder, state_.settings);
    if (!known) askForSetup();
  }
  const Places places = placesOf(options, ports_.files, state_.process.systemDir);
  state_.settings.appDir = places.dataDir;
  state_.settings.cdProbePath = places.drive;
  if (!options.dataDir.empty()) writeMissingSettings(ports_.files, defaultSettings(places.dataDir, places.drive));
}

/// Without ORVWIN.INI, or with one that cannot be read, nothing is known. The setup helper writes it, for the usual
/// folder or, where that cannot be had, for one that the user names; then a fresh start is needed.
void StartUp::askForSetup() {
  ports_.screen.setPointer(Pointer::Normal);
  const std::string usual = ports_.system.defaultDataDir();
  const std::string helper = ports_.system.companion("lxinit");
  if (ports_.files.exists(helper) && setUp(helper, usual)) end();
  const std::string other = ports_.system.companion("orvinit");
  for (int tries = 0; tries < 2; ++tries) {
    const auto answer =
        ports_.dialogs.askText("Orvanta LX", "Location of Orvanta LX Data File(s) Not Found, Please Enter Full Path:", usual);
    if (!answer || answer->empty() || answer->front() != '/') end();
    if (ports_.files.exists(other) && setUp(other, *answer)) end();
  }
  end();
}

/// True, and told, when the helper has set the folder up.
bool StartUp::setUp(const std::string& program, const std::string& folder) {
  if (ports_.processes.runAndWait({{program, folder}, "", WindowStyle::Normal}) == 0) {
    ports_.dialogs.message(BoxStyle::Information, "Orvanta LX Setup Wizard",
                           "Orvanta LX setup file successfully initialized; please restart Orvanta LX.");
    return true;
  }
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta LX Setup Wizard", "The folder " + folder + " could not be set up for Orvanta LX.");
  return false;
}

/// The settings have gone, with their folder or alone: the setup program makes them anew, in our place.
void StartUp::runSetup(const std::string& folder) {
  const std::string program = ports_.system.companion("orvsetup");
  if (ports_.processes.start({{program, "INITSETUPLX"}, folder, WindowStyle::Normal}) == 0) {
    ports_.dialogs.message(BoxStyle::Critical, "Orvanta LX Setup Wizard",
                           "The settings in " + folder + " have gone, and " + program + " could not be started.");
  }
  end();
}

void StartUp::readSettingsFiles() {
  Settings& settings = state_.settings;
  const std::string& folder = settings.appDir;
  if (!ports_.files.exists(DataFolder(ports_.files, folder).path(SettingsFile::Orvwin1))) runSetup(folder);
  for (const auto file :
       {SettingsFile::Orvwin1, SettingsFile::Orvwin7, SettingsFile::SettingsDat, SettingsFile::Orvwin3, SettingsFile::Orvwin4}) {
    readSettings(file, ports_.files, folder, settings);
  }
  // A mixer beside the programs, or in their subfolder, serves where none was chosen.
  std::string mixer = ports_.system.companion("sndvol32.exe");
  if (!ports_.files.exists(mixer)) mixer = ports_.system.companion("system32/sndvol32.exe");
  if (settings.mixerPath.empty()) settings.mixerPath = ports_.files.exists(mixer) ? mixer : ports_.system.mixerProgram();
}

void StartUp::takeWord(const std::string& line) {
  ProcessState& process = state_.process;
  const CommandLine command = classify(line);
  process.commandWord.clear();
  process.autoStartMode = process.autoStartDone = false;
  if (command.kind == CommandLine::Kind::TrackFile) {
    if (command.trackNumber > 0) process.commandWord = std::to_string(command.trackNumber);
  } else if (command.word == "RUNRIPPER" || command.word == "ORVLITE") {
    process.commandWord = command.word;
    process.autoStartMode = true;
  }
}

}  // namespace orvanta
