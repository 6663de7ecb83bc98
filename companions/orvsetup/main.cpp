// orvsetup INITSETUPLX | ACTIVELX [--defaults] [--data DIR]: the setup program. INITSETUPLX is a first set-up, ACTIVELX a
// change while the deck runs. Without a display, or with --defaults, it writes every settings file: what is
// set already stays, the rest gets good defaults. With a display it shows them all in a window. --data names a data
// folder that is not the one of ORVWIN.INI, which then stays as it is. A deck that runs takes the settings up at once.
#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstring>
#include <memory>

#include "base/text.h"
#include "platform/linux/host_files.h"
#include "platform/linux/host_processes.h"
#include "platform/linux/host_system.h"
#include "platform/linux/local_socket.h"
#include "settings_window.h"
#include "state/field_store.h"
#include "state/second_start.h"
#include "state/settings_files.h"

namespace orvanta {
namespace {

constexpr SettingsFile kFamily[] = {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7};

class Setup {
 public:
  /// `folder` is "" for the one of ORVWIN.INI.
  explicit Setup(const std::string& folder) : settings_(defaultSettings(system_.defaultDataDir(), usualDrive(system_.defaultDataDir()))) {
    read(SettingsFile::Orvwin, system_.systemDir());
    other_ = !folder.empty() && identityOf(folder) != identityOf(settings_.appDir);
    if (other_) settings_.appDir = folder;
    for (const auto file : kFamily) read(file, settings_.appDir);
  }

  Settings& settings() { return settings_; }
  /// The settings are those of a folder that ORVWIN.INI does not name: the drive there is not theirs.
  bool ofOtherFolder() const { return other_; }
  /// A file that is there and cannot be read; nothing is to be written over it. "" for none.
  const std::string& unreadable() const { return unreadable_; }

  bool write() {
    const std::string& folder = settings_.appDir;
    bool done = files_.makeFolder(folder) && writeMissingSettings(files_, settings_);
    for (const auto file : kFamily) done = done && writeSettings(file, files_, folder, settings_);
    if (!other_)
      done = done && files_.makeFolder(system_.systemDir()) && writeSettings(SettingsFile::Orvwin, files_, system_.systemDir(), settings_);
    done = done && (other_ || fill());
    if (done) ask(socketPath("deck", identityOf(HostFiles::actual(folder))), kSettingsChanged, kReply);
    return done;
  }
  std::string reason() const { return files_.reason(); }

 private:
  /// What a data folder needs besides its settings: tray, sounds, lists of servers. What is there is left alone.
  bool fill() const {
    HostProcesses processes;
    return processes.runAndWait(
               {{joinPath(system_.windowsDir(), "lxinit"), settings_.appDir, settings_.cdProbePath}, "", WindowStyle::Normal}) == 0;
  }

  static constexpr int kReply = 1000;  ///< milliseconds

  /// Read plainly: the display colours that the deck works out of them are not to be written back.
  void read(SettingsFile file, const std::string& folder) {
    const std::string path = DataFolder(files_, folder).path(file);
    const auto fields = readFieldFile(files_, path);
    if (fields) readFields(file, fields->reader(), settings_);
    if (!fields && files_.exists(path)) unreadable_ = path;
  }

  HostFiles files_;
  HostSystem system_{{}};
  Settings settings_;
  bool other_ = false;
  std::string unreadable_;
};

bool has(int argc, char** argv, const char* word) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], word) == 0) return true;
  }
  return false;
}

/// The value behind an option; "" without one.
std::string valueOf(int argc, char** argv, const char* option) {
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::strcmp(argv[i], option) == 0) return argv[i + 1];
  }
  return {};
}

int fail(bool display, const std::string& text) {
  std::fprintf(stderr, "orvsetup: %s\n", text.c_str());
  if (display) QMessageBox::warning(nullptr, "Orvanta LX Setup", QString::fromStdString(text));
  return 1;
}

int run(int argc, char** argv) {
  if (!has(argc, argv, "INITSETUPLX") && !has(argc, argv, "ACTIVELX")) {
    std::fprintf(stderr, "Usage: orvsetup INITSETUPLX|ACTIVELX [--defaults] [--data DIR]\n");
    return 2;
  }
  Setup setup(valueOf(argc, argv, "--data"));
  const bool screen = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
                      !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  const bool display = screen && !has(argc, argv, "--defaults");
  const auto application = display ? std::make_unique<QApplication>(argc, argv) : nullptr;
  if (!setup.unreadable().empty()) return fail(display, setup.unreadable() + " cannot be read, and is not written over.");
  if (display) {
    SettingsWindow window(setup.settings(), !setup.ofOtherFolder());
    // What was chosen is not lost when it cannot be saved: the window comes back with it.
    while (window.exec() == QDialog::Accepted || has(argc, argv, "INITSETUPLX")) {
      if (setup.write()) return 0;
      fail(display, "The settings in " + setup.settings().appDir + " could not be written: " + setup.reason() + ".");
      if (window.result() != QDialog::Accepted) return 1;
    }
    return 0;
  }
  return setup.write() ? 0 : fail(display, "The settings in " + setup.settings().appDir + " could not be written: " + setup.reason() + ".");
}

}  // namespace
}  // namespace orvanta

int main(int argc, char** argv) { return orvanta::run(argc, argv); }
