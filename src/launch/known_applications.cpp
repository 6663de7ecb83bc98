// The table by file names: the host knows its programs by these, not by window classes and titles.
#include "launch/known_applications.h"

#include <algorithm>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/processes.h"

namespace orvanta {

namespace {

struct Known {
  std::string_view file;
  std::string_view shown = file;  ///< in the message
};

// clang-format off: one long list.
constexpr Known kKnown[] = {
    {"CALC.EXE"},
    {"CALENDAR.EXE"},
    {"CARDFILE.EXE"},
    {"CLIPBOARD.EXE"},
    {"CLOCK.EXE"},
    {"CONTROL.EXE"},
    {"EXCEL.EXE"},
    {"MS-DOS.EXE"},
    {"NOTEPAD.EXE"},
    {"PBRUSH.EXE"},
    {"PIFEDIT.EXE"},
    {"PRINTMAN.EXE"},
    {"PROGMAN.EXE"},
    {"RECORDER.EXE"},
    {"REVERSI.EXE"},
    {"SETUP.EXE"},
    {"SOL.EXE"},
    {"TERMINAL.EXE"},
    {"WINFILE.EXE"},
    {"WINHELP.EXE"},
    {"WINVER.EXE"},
    {"WINWORD.EXE"},
    {"WRITE.EXE"},
    {"ORVANTA.EXE"},
    {"PAWIN.EXE"},
    {"SB16WMIX.EXE"},
    {"JAZZPMIX.EXE"},
    {"PW2.EXE"},
    {"ORVHELP.EXE"},
    {"ORVLIB.EXE"},
    {"ORVREC.EXE"},
    {"SNDVOL32.EXE"},
    {"SNDREC32.EXE", "Sound - Sound Recorder"},
    // The mixers that a desktop of today has.
    {"PAVUCONTROL"},
    {"PAVUCONTROL-QT"},
    {"KMIX"},
    {"MATE-VOLUME-CONTROL"},
    {"XFCE4-MIXER"},
    {"ALSAMIXERGUI"},
};
// clang-format on

std::string withoutExe(std::string_view name) { return std::string(endsWithNoCase(name, ".EXE") ? name.substr(0, name.size() - 4) : name); }

/// Without its folder: "/usr/bin/kmix" is "kmix".
std::string fileOf(const std::string& launchName) {
  const std::string name(trim(launchName));
  return name.substr(name.rfind('/') + 1);
}

const Known* knownAs(const std::string& file) {
  const auto* found = std::find_if(std::begin(kKnown), std::end(kKnown),
                                   [&](const Known& known) { return equalsNoCase(withoutExe(known.file), withoutExe(file)); });
  return found == std::end(kKnown) ? nullptr : found;
}

}  // namespace

bool KnownApplications::checkAlreadyRunning(const std::string& launchName) {
  return knownAs(fileOf(launchName)) != nullptr && runsAlready(std::vector{launchName});
}

bool KnownApplications::runs(const std::vector<std::string>& command) const {
  const std::string file = fileOf(command.front());
  if (command.size() > 1 && knownAs(file) == nullptr) return false;
  return !file.empty() && (processes_.nameRuns(file) || processes_.nameRuns(withoutExe(file)));
}

bool KnownApplications::runsAlready(const std::vector<std::string>& command) {
  if (!runs(command)) return false;
  tell(fileOf(command.front()));
  return true;
}

void KnownApplications::tell(const std::string& file) {
  const Known* known = knownAs(file);
  const std::string shown = known != nullptr ? std::string(known->shown) : upper(file);
  dialogs_.message(BoxStyle::Warning, "Orvanta",
                   shown +
                       " Application Already Running! Use the Taskbar to Activate.\n\nPress Ctrl + Esc to access Taskbar, then click on " +
                       shown + ", or press Alt + Esc to change window displayed.");
}

}  // namespace orvanta
