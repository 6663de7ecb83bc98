// The core's parts and who calls whom.
#include "app/orvanta.h"

#include "base/text.h"
#include "platform/ports/aux_volume.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/files.h"
#include "platform/ports/processes.h"
#include "platform/ports/system.h"
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
      layout_(ports.screen, position_, looks_, form, state),
      sounds_(ports, state),
      mixer_(ports, form, state),
      volume_(ports, layout_, mixer_, sounds_, form, state),
      colours_(ports, display_, looks_, layout_, form, state),
      genres_(ports.files, ports.dialogs, state),
      html_(ports, editor, state.settings),
      print_(ports, editor),
      cdData_(ports, genres_, html_, print_, display_, editor, form, state, *this),
      cddb_(ports, cdData_, editor, cddbForm, form, state, *this),
      mail_(ports, editor, mailForm),
      submitter_(ports, cdData_, cddb_, mail_, editor, categoryForm, state),
      playlist_(ports, engine_, modes_, display_, playlistForm, form, state),
      info_(ports, engine_, modes_, infoForm, form, state, *this),
      drawer_(ports, engine_, looks_, sounds_, form, state, *this),
      exit_(ports, looks_, volume_, sounds_, form, state),
      restart_(ports, volume_, state),
      record_(ports, looks_, position_, volume_, restart_, form, state),
      faceplate_(ports, {discLoad_, layer_, looks_, engine_, modes_, clock_, buttons_, colours_, position_, layout_, volume_, sounds_},
                 form, state, *this) {
  form.setEvents(&faceplate_);
}

void Orvanta::startUp(const HostOptions& options) { startUp_.run(options); }

void Orvanta::showFaceplate() {
  form.smallFonts = state.process.smallFonts == kOn;
  form.show(ports_.desktop);
  keeper_.start();
}

void Orvanta::secondStart(const SecondStart& start) {
  form.minimised = false;
  if (form.view() != nullptr) form.view()->raise();
  if (!start.drive.empty() && start.drive != state.settings.cdProbePath) {
    // A process has one drive: the next one has the other.
    ports_.system.changeDrive(start.drive, start.disc);
    restartWhenFree();
    return;
  }
  if (!start.disc.empty()) ports_.tray.offer(start.disc);
  if (start.words.empty()) return;
  startUp_.takeWord(start.words);
  if (discIn() && leadingNumber(state.process.commandWord) > 0) faceplate_.playTrackOfCommandLine();
}

/// A restart closes the window's data: it waits until the user has closed them.
void Orvanta::restartWhenFree() {
  constexpr int kLook = 500;  // milliseconds
  restartLater_ = ports_.clock.makeTimer([this] {
    if (restartWaits()) return;
    restartLater_->setInterval(0);
    restartForDisc();
  });
  restartLater_->setInterval(kLook);
}

void Orvanta::endOfSession() {
  if (!form.loaded()) end();
  keepDrafts();
  exit_.endOfSession();
}

void Orvanta::displayGone() {
  if (!form.loaded()) return;
  keepDrafts();
  exit_.save();
  ports_.auxVolume.keep();
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
  cddb_.cddbcanz();
  info_.close();
  cdData_.openFromFaceplate();
}

void Orvanta::showPlaylist() {
  if (discIn()) playlist_.open();
}

void Orvanta::showTrackList() {
  if (discIn()) info_.open();
}

/// A lookup of the disc that goes is over.
void Orvanta::openDrawer() {
  cddb_.cddbcanz();
  drawer_.opendrawer();
}

void Orvanta::readTextsAgain() {
  if (ports_.files.exists(state.disc.cdFilePath)) readCdRecord(state.disc.cdFilePath);
  display_.showHeader();
}

void Orvanta::closeDiscWindows() {
  cddb_.cddbcanz();
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
  ProcessRequest request{{joinPath(state.process.windowsDir, "orvsetup"), "ACTIVELX"}, state.settings.appDir, WindowStyle::Normal};
  if (startUp_.dataFolderGiven()) request.arguments.insert(request.arguments.end(), {"--data", state.settings.appDir});
  const int how = ports_.processes.runAndWait(request);
  takeUpSettings();
  form.minimised = false;
  if (how < 0) ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The setup program " + request.arguments[0] + " could not be run.");
}

void Orvanta::takeUpSettings() {
  for (const auto file : {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7}) {
    readSettings(file, ports_.files, state.settings.appDir, state.settings);
  }
  colours_.loadorvanta1();
  colours_.loadorvanta1b();
  if (state.settings.smallFaceplate != kOn) layout_.sizeLarge();
  volume_.activate();
  if (state.disc.noDiscState == 0 && state.disc.drawerOpen == kOff) colours_.loadorvanta1a();
}

}  // namespace orvanta
