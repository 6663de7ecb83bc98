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
#include "state/marker_files.h"
#include "state/settings_files.h"

namespace orvanta {

Places placesOf(const HostOptions& options, Files& files, const std::string& systemDir) {
  Settings settings;
  readSettings(SettingsFile::Orvwin, files, systemDir, settings);
  Places places{settings.appDir, settings.cdProbePath};
  if (!options.dataDir.empty()) {
    places.dataDir = options.dataDir;
    if (places.drive.empty()) places.drive = joinPath(options.dataDir, "drive");
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
  clearMarker(ports_.files, state_.settings.appDir, kHandOverMarker);
  readSettingsFiles();
  takeWord(options.words);
  ports_.screen.setPointer(Pointer::Normal);
}

/// A program named on the command line is run in its own folder, in our place. One that is not
/// there is a plain start.
void StartUp::runProgram(const std::string& line) {
  if (classify(line).kind != CommandLine::Kind::Program || !ports_.files.exists(line)) return;
  const auto slash = line.rfind('/');
  ports_.processes.start({{line}, slash == std::string::npos ? "" : line.substr(0, slash), WindowStyle::Normal});
  end();
}

void StartUp::measureScreen() {
  const int width = ports_.screen.widthPixels();
  state_.process.screenClass = static_cast<int16_t>(width < 800 ? 1 : width < 1024 ? 2 : width < 1280 ? 3 : 4);
  state_.process.smallFonts = ports_.screen.twipsPerPixel() > 14 ? kOn : kOff;
  state_.process.colourCount = (int64_t{1} << std::clamp(ports_.screen.bitsPerPixel(), 1, 62)) * ports_.screen.planes();
}

void StartUp::findData(const HostOptions& options) {
  const bool known = readSettings(SettingsFile::Orvwin, ports_.files, state_.process.systemDir, state_.settings);
  if (!known && options.dataDir.empty()) askForSetup();
  const Places places = placesOf(options, ports_.files, state_.process.systemDir);
  state_.settings.appDir = places.dataDir;
  state_.settings.cdProbePath = places.drive;
  if (!options.dataDir.empty()) writeMissingSettings(ports_.files, defaultSettings(places.dataDir, places.drive));
}

/// Without ORVWIN.INI nothing is known. The setup helper writes it, for the usual folder or for one
/// that the user names; then a fresh start is needed.
void StartUp::askForSetup() {
  ports_.screen.setPointer(Pointer::Normal);
  const auto setUp = [&](const std::string& program, const std::string& folder) {
    ports_.processes.runAndWait({{program, folder}, "", WindowStyle::Normal});
    ports_.dialogs.message(BoxStyle::Information, "Orvanta LX Setup Wizard",
                           "Orvanta LX setup file successfully initialized; please restart Orvanta LX.");
    end();
  };
  const std::string usual = ports_.system.defaultDataDir();
  const std::string helper = joinPath(state_.process.windowsDir, "lxinit");
  if (ports_.files.exists(helper)) setUp(helper, usual);
  const std::string other = joinPath(state_.process.windowsDir, "orvinit");
  for (int tries = 0; tries < 2; ++tries) {
    const auto answer =
        ports_.dialogs.askText("Orvanta LX", "Location of Orvanta LX Data File(s) Not Found, Please Enter Full Path:", usual);
    if (!answer || answer->empty() || answer->front() != '/') end();
    if (ports_.files.exists(other)) setUp(other, *answer);
  }
  end();
}

void StartUp::readSettingsFiles() {
  Settings& settings = state_.settings;
  const std::string& folder = settings.appDir;
  if (!ports_.files.exists(joinPath(folder, "orvwin1.ini"))) {
    ports_.processes.start({{joinPath(state_.process.windowsDir, "orvsetup"), "INITSETUPLX"}, folder, WindowStyle::Normal});
    end();
  }
  for (const auto file :
       {SettingsFile::Orvwin1, SettingsFile::Orvwin7, SettingsFile::SettingsDat, SettingsFile::Orvwin3, SettingsFile::Orvwin4}) {
    readSettings(file, ports_.files, folder, settings);
  }
  // A mixer beside the programs, or in their subfolder, serves where none was chosen.
  std::string mixer = joinPath(state_.process.windowsDir, "sndvol32.exe");
  if (!ports_.files.exists(mixer)) mixer = joinPath(state_.process.windowsDir, "system32/sndvol32.exe");
  if (settings.mixerPath.empty()) settings.mixerPath = ports_.files.exists(mixer) ? mixer : ports_.system.mixerProgram();
}

void StartUp::takeWord(const std::string& line) {
  ProcessState& process = state_.process;
  const CommandLine command = classify(line);
  process.commandWord.clear();
  process.autoStartMode = process.autoStartDone = kOff;
  if (command.kind == CommandLine::Kind::TrackFile) {
    if (command.trackNumber > 0) process.commandWord = std::to_string(command.trackNumber);
  } else if (command.word == "RUNRIPPER" || command.word == "ORVLITE") {
    process.commandWord = command.word;
    process.autoStartMode = kOn;
  }
}

}  // namespace orvanta
