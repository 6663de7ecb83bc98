// Sounds lie in the data folder, where a user may put others in their place.
#include "faceplate/interface_sounds.h"

#include <array>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/processes.h"
#include "platform/ports/sounds.h"
#include "state/data_folder.h"

namespace orvanta {

namespace {

constexpr std::array<std::string_view, 6> kFiles = {"click.wav", "minimize.wav", "XXXXXXXX.wav", "click1.wav", "mixer.wav", "opendraw.wav"};

constexpr const char* kNoMixer =
    "NOTE: to use the Audio Mixer option, you must locate the mixer application written specifically for your sound board.\n\n"
    "This is usually a Windows application named something similar to JAZZPMIX.EXE, SB32WMIX.EXE or AUDIOMIX.EXE. Common subdirectory "
    "names "
    "in which the mixer application may be found include: JAZZ, SB32, SBPRO, VOYETRA, etc.\n\n"
    "Once the proper mixer application is located, it will be automatically used by Orvanta to allow you to change the Volume, Balance, "
    "Bass "
    "& Treble tone control settings, etc. "
    "You may also use the standard Windows Volume Control Application SNDVOL32.EXE located in your Windows directory.\n\n"
    "Note:  Access the Orvanta Setup Section to enter or change mixer settings.";

}  // namespace

void InterfaceSounds::play(Sound sound) {
  if (state_.process.osFamily > 1) return;
  if (state_.settings.soundsOff == kOn || state_.display.quietOnce || state_.settings.smallFaceplate == kOn) return;
  ports_.sounds.play(DataFolder(ports_.files, state_.settings.appDir).own(kFiles[static_cast<size_t>(sound)]));
}

void InterfaceSounds::beep() { ports_.sounds.beep(); }

std::vector<std::string> InterfaceSounds::mixer() const {
  const std::string& command = state_.settings.mixerPath;
  return splitCommand(command, ports_.files.exists(command));
}

void InterfaceSounds::runMixer() {
  const auto arguments = mixer();
  if (arguments.empty()) {
    ports_.dialogs.message(BoxStyle::Warning, "Orvanta", kNoMixer);
  } else if (!known_.runsAlready(arguments)) {
    start(arguments);
  }
}

void InterfaceSounds::runMixerAtStart() {
  const auto arguments = mixer();
  if (arguments.empty()) {
    runMixer();
  } else if (!known_.runs(arguments)) {
    start(arguments);
  }
}

void InterfaceSounds::start(const std::vector<std::string>& mixer) {
  play(Sound::Mixer);
  if (ports_.processes.start({mixer, "", WindowStyle::Normal}) != 0) return;
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The mixer " + mixer.front() + " could not be started.");
}

}  // namespace orvanta
