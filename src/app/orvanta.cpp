// The core's parts and who calls whom.
#include "app/orvanta.h"

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/processes.h"
#include "state/settings_files.h"

namespace orvanta {

Orvanta::Orvanta(Ports& ports)
    : ports_(ports),
      looks_(ports.clock, form, state.settings),
      layer_(ports.device, ports.dialogs, state.disc),
      discLoad_(ports.device, layer_, ports.files, ports.screen, display_, looks_, form, state, *this),
      engine_(ports, layer_, display_, looks_, form, state, *this),
      modes_(ports, engine_, display_, looks_, form, state, *this),
      buttons_(engine_, modes_, display_, looks_, form, state, *this),
      clock_(ports, layer_, discLoad_, engine_, modes_, buttons_, display_, looks_, form, state, *this),
      position_(ports.files, ports.screen, form, state),
      layout_(ports.screen, position_, form, state),
      sounds_(ports, state),
      mixer_(ports, form, state),
      volume_(ports, layout_, mixer_, sounds_, form, state),
      colours_(ports, layout_, form, state),
      genres_(ports.files, ports.dialogs, state),
      html_(ports, editor, state.settings),
      print_(ports, editor),
      cdData_(ports, genres_, html_, print_, display_, editor, form, state, *this),
      playlist_(ports, engine_, modes_, display_, playlistForm, form, state),
      info_(ports, engine_, modes_, infoForm, form, state, *this),
      drawer_(ports, engine_, sounds_, form, state, *this),
      exit_(ports, volume_, sounds_, form, state),
      restart_(ports, volume_, state),
      record_(ports, position_, volume_, restart_, form, state),
      faceplate_(ports, {discLoad_, layer_, looks_, engine_, modes_, clock_, buttons_, colours_, position_, layout_, volume_, sounds_},
                 form, state, *this) {
  form.setEvents(&faceplate_);
}

void Orvanta::startUp(const HostOptions& options) { startUp_.run(options); }

void Orvanta::showFaceplate() {
  form.smallFonts = state.process.smallFonts == kOn;
  form.show(ports_.desktop);
}

bool Orvanta::readCdRecord(const std::string& /*cdFilePath*/) {
  discFiles().readTexts(state.disc);
  // A record that knows fewer tracks than the drive takes the drive's count.
  if (leadingNumber(state.disc.discInfo[kTrackCount]) < state.disc.trackCount)
    state.disc.discInfo[kTrackCount] = std::to_string(state.disc.trackCount);
  return true;
}

/// The track list's window makes room for the editor.
void Orvanta::showCdData() {
  if (!discIn() && !cdData_.openForPerson()) return;
  info_.close();
  cdData_.openFromFaceplate();
}

void Orvanta::showPlaylist() {
  if (discIn()) playlist_.open();
}

void Orvanta::showTrackList() {
  if (discIn()) info_.open();
}

void Orvanta::closeDiscWindows() {
  info_.close();
  if (!cdData_.openForPerson()) editor.unload();
}

void Orvanta::exitProgram() {
  if (cdData_.mayBeLost()) exit_.exitProgram();
}

void Orvanta::exitWhenFree() {
  exitWanted_ = true;
  everyTick();
}

void Orvanta::everyTick() {
  cdData_.markPlaying();
  if (exitWanted_ && !restartWaits()) exit_.exitProgram();
}

/// Without sliders the keys for the level open the mixer.
void Orvanta::muteKey() {
  if (state.settings.soundMode == kNoSliders) {
    runMixer();
  } else {
    volume_.Image2_MouseUp(volume_.muted() ? 0 : 1);
  }
}

void Orvanta::volumeKey(bool up) {
  if (state.settings.soundMode == kNoSliders) {
    runMixer();
  } else {
    volume_.stepBoth(up ? 1 : -1);
  }
}

void Orvanta::record() {
  if (record_.ready() && cdData_.mayBeLost()) record_.run();
}

void Orvanta::runSetup() {
  form.minimised = true;
  ports_.processes.runAndWait({{joinPath(state.process.windowsDir, "orvsetup"), "ACTIVELX"}, state.settings.appDir, WindowStyle::Normal});
  for (const auto file : {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7}) {
    readSettings(file, ports_.files, state.settings.appDir, state.settings);
  }
  colours_.loadorvanta1();
  colours_.loadorvanta1b();
  if (state.settings.smallFaceplate != kOn) layout_.sizeLarge();
  volume_.activate();
  if (state.disc.noDiscState == 0 && state.disc.drawerOpen == kOff) colours_.loadorvanta1a();
  form.minimised = false;
}

}  // namespace orvanta
