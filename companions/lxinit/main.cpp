// lxinit FOLDER [DRIVE]: sets up a data folder. Writes ORVWIN.INI, which names it, and every other
// settings file that it lacks, with good defaults. What is there already is left alone.
#include <cstdio>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_system.h"
#include "state/settings_files.h"

namespace orvanta {
namespace {

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
  if (!done) std::fprintf(stderr, "lxinit: %s cannot be written\n", folder.c_str());
  return done ? 0 : 1;
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
