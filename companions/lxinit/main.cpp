// lxinit FOLDER [DRIVE]: sets up a data folder. Writes ORVWIN.INI, which names it, and every other
// settings file that it lacks, with good defaults. What is there already is left alone.
#include <cstdio>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_system.h"
#include "state/settings_files.h"

namespace orvanta {
namespace {

/// Records of discs that come with the drive, as that of the demo disc, where the user has none.
void takeRecords(HostFiles& files, const Settings& settings) {
  for (const std::string& name : files.list(settings.cdProbePath)) {
    const std::string own = joinPath(joinPath(settings.appDir, "datacd"), name);
    if (!endsWithNoCase(name, ".CD") || files.exists(own)) continue;
    if (const auto bytes = files.read(joinPath(settings.cdProbePath, name))) files.write(own, *bytes);
  }
}

/// The deck's sounds, where the user has none of that name.
void takeSounds(HostFiles& files, const std::string& from, const Settings& settings) {
  const std::string folder = joinPath(settings.appDir, "system");
  if (!files.makeFolder(folder)) return;
  for (const std::string& name : files.list(from)) {
    const std::string own = joinPath(folder, name);
    if (!endsWithNoCase(name, ".WAV") || files.exists(own)) continue;
    if (const auto bytes = files.read(joinPath(from, name))) files.write(own, *bytes);
  }
}

int run(int argc, char** argv) {
  const HostSystem system({});
  if (argc < 2 || argv[1][0] != '/') {
    std::fprintf(stderr, "Usage: lxinit FOLDER [DRIVE]\nThe folder for settings and disc data, as a full path.\n");
    return 2;
  }
  const std::string folder = argv[1];
  HostFiles files;
  const Settings settings = defaultSettings(folder, argc > 2 ? argv[2] : system.usualDrive(folder));
  const std::string home = joinPath(system.systemDir(), fileName(SettingsFile::Orvwin));
  bool done = writeMissingSettings(files, settings) && files.makeFolder(system.systemDir());
  if (done && !files.exists(home)) done = writeSettings(SettingsFile::Orvwin, files, system.systemDir(), settings);
  if (done) takeRecords(files, settings);
  if (done) takeSounds(files, joinPath(system.windowsDir(), "../share/orvanta/system"), settings);
  if (!done) std::fprintf(stderr, "lxinit: %s cannot be written\n", folder.c_str());
  return done ? 0 : 1;
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
