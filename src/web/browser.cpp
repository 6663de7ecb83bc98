// The order of looks: what the settings say, what the desktop opens pages with, browsers that are commonly there, the user.
#include "web/browser.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/system.h"
#include "state/not_written.h"
#include "state/settings_files.h"

namespace orvanta {

namespace {

constexpr std::string_view kPlace = "%u";  ///< of the address, in a stored command

/// By their names in PATH, the user's own choice first where the system keeps one.
constexpr std::string_view kCommon[] = {
    "x-www-browser", "firefox",        "chromium", "chromium-browser", "google-chrome", "firefox-esr", "brave-browser", "vivaldi",
    "opera",         "microsoft-edge", "epiphany", "falkon",           "konqueror",     "midori",      "netsurf",       "dillo",
};

const std::string kAnother = "\n\nAccess the Orvanta Setup Section to choose another one.";

constexpr int kLook = 250;    ///< milliseconds
constexpr int kTrial = 3000;  ///< one that ends within this time with an error has shown nothing

}  // namespace

bool takesAddress(const std::vector<std::string>& command) {
  constexpr std::array<std::string_view, 7> kShells = {"sh", "bash", "dash", "zsh", "ksh", "fish", "busybox"};
  if (command.empty() || command.front().empty()) return false;
  const std::string_view file = std::string_view(command.front()).substr(command.front().rfind('/') + 1);
  const bool shell = std::find(kShells.begin(), kShells.end(), file) != kShells.end();
  return std::none_of(command.begin(), command.end(), [&](const std::string& word) {
    const size_t at = word.find(kPlace);
    const bool option = word.starts_with("--") && word.find('=') + 1 == at && at + kPlace.size() == word.size();
    return (shell && word.starts_with("-c")) || (at != std::string::npos && word != kPlace && !option);
  });
}

std::vector<std::string> browserArguments(std::vector<std::string> command, const std::string& address) {
  if (!takesAddress(command)) return {};
  bool placed = false;
  for (auto each = command.begin() + 1; each != command.end();) {
    const size_t at = each->find(kPlace);
    if (at != std::string::npos) placed = true;
    if (at != std::string::npos && address.empty()) {
      each = command.erase(each);
      continue;
    }
    if (at != std::string::npos) each->replace(at, kPlace.size(), address);
    ++each;
  }
  if (!placed && !address.empty()) command.push_back(address);
  return command;
}

Browser::Browser(const WebPorts& ports, SharedState& state)
    : ports_(ports), state_(state), timer_(ports.clock.makeTimer([this] { look(); })) {}

bool Browser::there(const std::string& command) const {
  const auto arguments = splitCommand(command, ports_.files.exists(command));
  return takesAddress(arguments) && ports_.processes.canStart(arguments.front());
}

bool Browser::launch(const std::string& address) {
  std::string& path = state_.settings.browserPath;
  if (!trim(path).empty() && there(path)) return start(address);
  // What was stored and has gone is the user's to replace.
  const std::string found = trim(path).empty() ? detected() : "";
  if (found.empty()) return ask() && start(address);
  path = found;
  const bool started = start(address);
  // One that cannot be started is looked for anew the next time.
  started ? remember(found) : path.clear();
  return started;
}

std::string Browser::ofDesktop() const {
  const std::string command = ports_.system.programFor({"text/html", "x-scheme-handler/http"});
  return there(command) ? command : "";
}

std::string Browser::detected() const {
  if (const std::string command = ofDesktop(); !command.empty()) return command;
  for (const std::string_view name : kCommon) {
    if (const std::string path = ports_.processes.pathOf(std::string(name)); !path.empty()) return path;
  }
  return {};
}

/// True when there is one now.
bool Browser::ask() {
  if (asking_) return false;
  asking_ = true;
  const bool wanted = ports_.dialogs.askYesNo(
      BoxStyle::Question, "Orvanta",
      "Unable to identify Web Browser or more than one Web Browser detected on your system! Do you wish to enter it now?");
  const std::string command = wanted ? chosenByUser() : "";
  asking_ = false;
  if (trim(command).empty()) return false;
  remember(command);
  return true;
}

std::string Browser::chosenByUser() {
  if (const std::string command = ofDesktop(); !command.empty()) return command;
  const auto file = ports_.dialogs.askOpenFile({"Select Web Browser", "/usr/bin", "", "All Executable Files (*)|*"});
  if (!file || ports_.processes.canStart(*file)) return file.value_or("");
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The Web Browser " + *file + " could not be started: it is no program.");
  return {};
}

/// The file may have been written by the setup meanwhile: all but the browser stays as it is there.
void Browser::remember(const std::string& command) {
  state_.settings.browserPath = command;
  const std::string& folder = state_.settings.appDir;
  const std::string path = joinPath(folder, fileName(SettingsFile::Orvwin4));
  // One that is there and cannot be read is not written over.
  if (ports_.files.exists(path) && !ports_.files.read(path)) return;
  Settings stored = state_.settings;
  readSettings(SettingsFile::Orvwin4, ports_.files, folder, stored);
  stored.browserPath = command;
  if (!writeSettings(SettingsFile::Orvwin4, ports_.files, folder, stored)) tellNotWritten(ports_.dialogs, ports_.files, path);
}

bool Browser::start(const std::string& address) {
  const std::string& command = state_.settings.browserPath;
  const auto arguments = browserArguments(splitCommand(command, ports_.files.exists(command)), address);
  const std::string& program = arguments.front();
  const size_t slash = program.rfind('/');
  ProcessRequest request{arguments, slash == std::string::npos ? "" : program.substr(0, slash + 1), WindowStyle::Normal};
  request.detached = true;
  const Processes::Id id = ports_.processes.start(request);
  if (id != 0) {
    watch(id);
    return true;
  }
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The Web Browser " + program + " could not be started." + kAnother);
  return false;
}

void Browser::watch(Processes::Id id) {
  started_ = id;
  until_ = ports_.clock.milliseconds() + kTrial;
  timer_->setInterval(kLook);
}

/// A browser that hands the page to one that runs ends at once, too, but without an error.
void Browser::look() {
  const auto ended = ports_.processes.result(started_);
  if (!ended && ports_.clock.milliseconds() < until_) return;
  timer_->setInterval(0);
  if (!ended || *ended == 0) return;
  const std::string& command = state_.settings.browserPath;
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta",
                         "The Web Browser " + splitCommand(command, ports_.files.exists(command)).front() +
                             " ended at once and may have shown nothing." + kAnother);
}

}  // namespace orvanta
