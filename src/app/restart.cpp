// Hand-over between two processes by the file ejcd.tmp: it stands until the new one has started.
#include "app/restart.h"

#include "base/text.h"
#include "platform/ports/aux_volume.h"
#include "platform/ports/clock.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/files.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"
#include "state/data_folder.h"
#include "state/settings_files.h"

namespace orvanta {

/// What this process was told to do and had no disc for.
std::string Restart::wordsForNext() const {
  const ProcessState& process = state_.process;
  if (!process.nextWords.empty()) return process.nextWords;
  const bool track = leadingNumber(process.commandWord) > 0;
  return track ? "Track" + process.commandWord + ".cda" : process.commandWord;
}

void Restart::forDisc(const std::function<void()>& meanwhile) {
  const std::string& folder = state_.settings.appDir;
  const DataFolder data(ports_.files, folder);
  volume_.releaseMute();
  ports_.auxVolume.keep();
  keepModes(ports_.files, state_.settings);
  data.mark(DataFile::HandOver);
  ProcessRequest request{{ports_.system.companion("orvanlx")}, folder, WindowStyle::Normal};
  for (const std::string& argument : ports_.system.handedOn()) request.arguments.push_back(argument);
  const std::string& engine = state_.process.menusEngine;
  if (!engine.empty()) request.arguments.insert(request.arguments.end(), {"--search-engine", engine});
  const std::string words = wordsForNext();
  if (!words.empty()) {
    request.arguments.push_back(words);
  } else if (state_.process.playNext) {
    request.arguments.emplace_back("--play");
  }
  const Processes::Id started = ports_.processes.start(request);
  while (started != 0 && data.marked(DataFile::HandOver)) {
    if (!ports_.processes.running(started)) return;
    if (meanwhile) meanwhile();
    ports_.clock.delaySeconds(0.02);
  }
  // No unload: the marker of the running player is the new one's by now.
  if (started != 0) end();
}

}  // namespace orvanta
