// lxinit FOLDER [DRIVE]: sets up a data folder. Writes ORVWIN.INI, which names it, and every other settings file
// that it lacks, with good defaults; without DRIVE the tray is a folder of its own, with the demo disc in it. What is
// there already is left alone.
#include <cstdio>
#include <filesystem>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_system.h"
#include "state/cddb_settings.h"
#include "state/settings_files.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// The files of that ending that a folder has and another lacks.
void takeFiles(HostFiles& files, const std::string& from, const std::string& to, const char* ending) {
  for (const std::string& name : files.list(from)) {
    const std::string own = joinPath(to, name);
    if (!endsWithNoCase(name, ending) || files.exists(own)) continue;
    if (const auto bytes = files.read(joinPath(from, name))) files.write(own, *bytes);
  }
}

/// The sheets of the demo disc, as links: its sound stays where it is installed. A link whose disc has moved is renewed.
void linkDemo(const HostFiles& files, const std::string& demo, const std::string& drive) {
  for (const std::string& name : files.list(demo)) {
    const std::string own = joinPath(drive, name);
    if (!endsWithNoCase(name, ".CUE") || files.exists(own)) continue;
    std::error_code error;
    if (fs::is_symlink(own, error)) fs::remove(own, error);
    fs::create_symlink(joinPath(demo, name), own, error);
  }
}

/// ORVWIN.INI with its folders: a whole one is left alone, of a short one what it says is kept.
bool nameFolder(HostFiles& files, const HostSystem& system, const Settings& settings) {
  const std::string path = DataFolder(files, system.systemDir()).path(SettingsFile::Orvwin);
  if (files.exists(path) && !files.read(path)) return false;
  Settings held = settings;
  if (readSettings(SettingsFile::Orvwin, files, system.systemDir(), held)) return true;
  if (held.appDir.empty()) held.appDir = settings.appDir;
  if (held.cdProbePath.empty()) held.cdProbePath = settings.cdProbePath;
  return files.makeFolder(system.systemDir()) && writeSettings(SettingsFile::Orvwin, files, system.systemDir(), held);
}

bool setUp(HostFiles& files, const HostSystem& system, const Settings& settings) {
  const std::string& folder = settings.appDir;
  const DataFolder data(files, folder);
  if (!writeMissingSettings(files, settings) || !writeMissingCddbFiles(files, folder) || !nameFolder(files, system, settings)) return false;
  if (settings.cdProbePath == usualDrive(folder) && files.makeFolder(settings.cdProbePath)) {
    linkDemo(files, system.demoFolder(), settings.cdProbePath);
    takeFiles(files, system.demoFolder(), data.discs(), ".CD");
  }
  // Records of discs that come with the drive, and the deck's sounds.
  takeFiles(files, settings.cdProbePath, data.discs(), ".CD");
  if (files.makeFolder(data.ownFiles())) {
    takeFiles(files, joinPath(system.windowsDir(), "../share/orvanta/system"), data.ownFiles(), ".WAV");
  }
  return true;
}

int run(int argc, char** argv) {
  const HostSystem system({});
  if (argc < 2 || argv[1][0] != '/') {
    std::fprintf(stderr, "Usage: lxinit FOLDER [DRIVE]\nThe folder for settings and disc data, as a full path.\n");
    return 2;
  }
  const std::string folder = argv[1];
  HostFiles files;
  if (setUp(files, system, defaultSettings(folder, argc > 2 ? argv[2] : usualDrive(folder)))) return 0;
  std::fprintf(stderr, "lxinit: %s cannot be set up: %s\n", folder.c_str(), files.reason().c_str());
  return 1;
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
