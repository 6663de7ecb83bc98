// Which text a topic has, where it lies, and what shows it.
#include "shell/help.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"

namespace orvanta {

namespace {

struct Topic {
  int number;
  const char* file;  ///< beside the data, or in the installation
};

constexpr Topic kTopics[] = {
    {0, "ORVANLX.TXT"},          {1, "ORVANLX.TXT"},           {6, "orvhelp/PLAYWAVE.TXT"},  {7, "orvhelp/RECOPTS.TXT"},
    {15, "orvhelp/CDPUSE.TXT"},  {17, "orvhelp/CDLIBF.TXT"},   {18, "orvhelp/CDJKOPTS.TXT"}, {19, "orvhelp/CDJKIMGS.TXT"},
    {21, "orvhelp/CDBGRND.TXT"}, {25, "orvhelp/COMPWINA.TXT"},
};

/// What desktops show a text with, the plain ones first, where none was chosen.
constexpr const char* kEditors[] = {"gnome-text-editor", "gedit",   "kwrite", "kate", "mousepad", "xed", "pluma",
                                    "featherpad",        "l3afpad", "geany",  "gvim", "xedit"};

/// Where the command has a place for it, else at its end.
std::vector<std::string> withPath(std::vector<std::string> command, const std::string& path) {
  constexpr std::string_view kPlace = "%u";
  for (std::string& argument : command) {
    const size_t at = argument.find(kPlace);
    if (at == std::string::npos) continue;
    argument.replace(at, kPlace.size(), path);
    return command;
  }
  command.push_back(path);
  return command;
}

}  // namespace

void Help::show(int topic) {
  if (showByCompanion(topic)) return;
  const auto* found = std::find_if(std::begin(kTopics), std::end(kTopics), [&](const Topic& each) { return each.number == topic; });
  if (found != std::end(kTopics)) showText(pathOf(found->file));
}

/// True also where it runs already, upon which the user was told so.
bool Help::showByCompanion(int topic) {
  const std::string program = ports_.system.companion("orvhelp");
  if (!ports_.files.exists(program)) return false;
  if (known_.checkAlreadyRunning(program)) return true;
  return ports_.processes.start({{program, std::to_string(topic)}, state_.settings.appDir, WindowStyle::Normal}) != 0;
}

/// The user's own text before that of the installation.
std::string Help::pathOf(const std::string& name) const {
  std::string own = joinPath(state_.settings.appDir, name);
  return ports_.files.exists(own) ? own : ports_.system.shared(name);
}

void Help::showText(const std::string& path) {
  const auto tell = [&](const std::string& text) { ports_.dialogs.message(BoxStyle::Warning, "Orvanta", text); };
  if (!ports_.files.exists(path)) return tell("The help text " + path + " is missing.");
  std::vector<std::string> commands{ports_.system.programFor({"text/plain"})};
  commands.insert(commands.end(), std::begin(kEditors), std::end(kEditors));
  for (const std::string& command : commands) {
    const auto arguments = withPath(splitCommand(command, ports_.files.exists(command)), path);
    if (arguments.size() < 2 || !ports_.processes.canStart(arguments.front())) continue;
    if (ports_.processes.start({arguments, state_.settings.appDir, WindowStyle::Normal}) != 0) return;
  }
  tell("No program to show a text with was found. The help text is " + path);
}

}  // namespace orvanta
