// orvsetup INITSETUPLX | ACTIVELX [--defaults]: the setup program. INITSETUPLX is a first set-up, ACTIVELX a
// change while the deck runs. Without a display, or with --defaults, it writes every settings file: what is
// set already stays, the rest gets good defaults. With a display it shows them all in a window.
#include <QApplication>
#include <cstdio>
#include <cstring>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_system.h"
#include "settings_window.h"
#include "state/record_file.h"
#include "state/settings_files.h"

namespace orvanta {
namespace {

constexpr SettingsFile kFamily[] = {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7};

bool writeAll(HostFiles& files, const HostSystem& system, const Settings& settings) {
  bool done = files.makeFolder(settings.appDir) && files.makeFolder(system.systemDir()) && writeMissingSettings(files, settings);
  for (const auto file : kFamily) done = writeSettings(file, files, settings.appDir, settings) && done;
  return writeSettings(SettingsFile::Orvwin, files, system.systemDir(), settings) && done;
}

/// What is set so far, defaults for the rest. Read plainly: the display colours that the deck works
/// out of them are not to be written back.
Settings presentSettings(const HostFiles& files, const HostSystem& system) {
  Settings settings = defaultSettings(system.defaultDataDir(), system.usualDrive(system.defaultDataDir()));
  const auto read = [&](SettingsFile file, const std::string& folder) {
    if (const auto record = readRecordFile(files, joinPath(folder, fileName(file)))) readFields(file, record->reader(), settings);
  };
  read(SettingsFile::Orvwin, system.systemDir());
  for (const auto file : kFamily) read(file, settings.appDir);
  return settings;
}

bool has(int argc, char** argv, const char* word) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], word) == 0) return true;
  }
  return false;
}

int run(int argc, char** argv) {
  if (!has(argc, argv, "INITSETUPLX") && !has(argc, argv, "ACTIVELX")) {
    std::fprintf(stderr, "Usage: orvsetup INITSETUPLX|ACTIVELX [--defaults]\n");
    return 2;
  }
  HostFiles files;
  const HostSystem system({});
  Settings settings = presentSettings(files, system);
  const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
                       !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  if (display && !has(argc, argv, "--defaults")) {
    const QApplication application(argc, argv);
    SettingsWindow window(settings);
    if (window.exec() != QDialog::Accepted && has(argc, argv, "ACTIVELX")) return 0;
  }
  if (writeAll(files, system, settings)) return 0;
  std::fprintf(stderr, "orvsetup: %s cannot be written\n", settings.appDir.c_str());
  return 1;
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
