// To the setup and back.
#include "app/setup_program.h"

#include <string>

#include "launch/how_ended.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"
#include "state/settings_files.h"

namespace orvanta {

void SetupProgram::run() {
  form_.minimised = true;
  const Settings& settings = state_.settings;
  ProcessRequest request{{ports_.system.companion("orvsetup"), "ACTIVELX"}, settings.appDir, WindowStyle::Normal};
  if (startUp_.dataFolderGiven()) request.arguments.insert(request.arguments.end(), {"--data", settings.appDir});
  const auto how = ports_.processes.runAndWait(request);
  takeUp();
  form_.minimised = false;
  tellHowEnded(ports_.dialogs, "The setup program " + request.arguments[0], how);
}

void SetupProgram::takeUp() {
  Settings& settings = state_.settings;
  const Display::Lit lit = display_.lit();
  const std::string engine = settings.searchEngine;
  for (const auto file : {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7}) {
    readSettings(file, ports_.files, settings.appDir, settings);
  }
  // What was chosen last counts.
  if (settings.searchEngine != engine) state_.process.menusEngine.clear();
  faceplate_.colours.loadorvanta1();
  faceplate_.colours.loadorvanta1b();
  if (settings.smallFaceplate != kOn) faceplate_.layout.sizeLarge();
  faceplate_.volume.activate();
  if (!state_.disc.asleep()) faceplate_.colours.loadorvanta1a();
  // What loops, pauses, is still to come or stands open goes on doing so.
  display_.relight(lit);
}

}  // namespace orvanta
