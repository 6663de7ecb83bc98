// Asking for a disc.
#include "faceplate/disc_choice.h"

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"

namespace orvanta {

void DiscChoice::ask() {
  device_.command("Open");
  device_.command("Eject");
  device_.command("Close");
  if (!tray_.takesImages()) {
    tray_.close();
    return;
  }
  const auto chosen = dialogs_.askOpenFile({"Put a Disc in", tray_.imageFolder(), "", "Disc Images (*.cue)|*.cue"});
  if (chosen) tray_.offer(*chosen);
}

bool DiscChoice::takesFile(const std::string& path) const { return tray_.takesImages() && endsWithNoCase(path, ".cue"); }

void DiscChoice::offer(const std::string& path) { tray_.offer(path); }

}  // namespace orvanta
