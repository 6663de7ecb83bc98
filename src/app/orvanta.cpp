// The rooms, and what the host asks of the deck.
#include "app/orvanta.h"

#include "app/command_line.h"
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

namespace orvanta {

namespace {

PlaybackPorts forPlayback(const Ports& all) { return {all.device, all.tray, all.clock, all.dialogs, all.files, all.screen}; }

FaceplatePorts forFaceplate(const Ports& all) {
  return {all.device, all.tray, all.clock, all.dialogs, all.files, all.processes, all.screen, all.auxVolume, all.mixer, all.sounds};
}

StripPorts forStrip(const Ports& all) { return {all.files, all.screen, all.desktop}; }

LibraryPorts forLibrary(const Ports& all) {
  return {all.device, all.dialogs, all.files, all.processes, all.screen, all.system, all.printer, all.desktop};
}

CddbPorts forCddb(const Ports& all) { return {all.clock, all.dialogs, all.files, all.net, all.screen, all.desktop}; }

ShellPorts forShell(const Ports& all) {
  return {all.dialogs, all.files, all.processes, all.screen, all.system, all.systemTray, all.facts, all.desktop};
}

WebPorts forWeb(const Ports& all) {
  return {all.clock, all.dialogs, all.discData, all.files, all.menus, all.processes, all.screen, all.system};
}

LifePorts forLife(const Ports& all) {
  return {all.device, all.auxVolume, all.clock, all.dialogs, all.files, all.processes, all.screen, all.system};
}

}  // namespace

Orvanta::Orvanta(Ports& ports)
    : ports_(ports),
      links_(*this, ports.clock, ports.dialogs),
      playback_(forPlayback(ports), form, state, links_),
      faceplate_(forFaceplate(ports), playback_, form, state, links_),
      strip_(forStrip(ports), playback_, faceplate_, {stripForm, iconForm}, form, state, links_),
      library_(forLibrary(ports), playback_, {editor, playlistForm, infoForm}, form, state, links_),
      cddb_(forCddb(ports), library_.cdData, editor, {cddbForm, categoryForm, mailForm}, form, state, links_),
      shell_(forShell(ports), strip_, faceplate_.drawer, playback_.status, {wallpaperForm, aboutForm}, form, state, links_),
      web_(forWeb(ports), faceplate_.actions, form, state, links_),
      life_(forLife(ports), playback_, faceplate_, form, state) {
  playback_.status.watch([this](const DeckStatus& /*now*/) { library_.cdData.markPlaying(); });
}

void Orvanta::startUp(const HostOptions& options) { life_.startUp.run(options); }

void Orvanta::showFaceplate() {
  form.smallFonts = state.process.smallFonts;
  library_.genres.readUserCaptions();
  const bool first = !form.loaded();
  if (first) shell_.wallpaper.beforeDeck();
  form.show(ports_.desktop);
  if (first) shell_.wallpaper.behindDeck();
  life_.keeper.start([this] { keepDrafts(); });
}

void Orvanta::secondStart(const SecondStart& start) {
  // Words that mean nothing must not stand in the way of play.
  const std::string words = classify(start.words).kind == CommandLine::Kind::Plain ? "" : start.words;
  strip_.window.restore();
  form.minimised = false;
  if (form.view() != nullptr) form.view()->raise();
  if (!start.drive.empty() && start.drive != state.settings.cdProbePath) {
    // A process has one drive: the next one has the other.
    ports_.system.changeDrive(start.drive, start.disc);
    state.process.nextWords = words;
    links_.restartWhenFree();
    return;
  }
  if (!start.disc.empty()) ports_.tray.offer(start.disc);
  if (words.empty()) return;
  if (!start.disc.empty() || !state.disc.in()) {
    state.process.nextWords = words;
    return;
  }
  life_.startUp.takeWord(words);
  if (leadingNumber(state.process.commandWord) > 0) faceplate_.load.playTrackOfCommandLine();
}

void Orvanta::takeUpSettings() {
  life_.setup.takeUp();
  shell_.wallpaper.settingsChanged();
  strip_.window.takeUp();
}

void Orvanta::endOfSession() {
  if (!form.loaded()) end();
  keepDrafts();
  life_.exit.endOfSession();
}

void Orvanta::displayGone() {
  if (!form.loaded()) return;
  keepDrafts();
  life_.exit.save();
  ports_.auxVolume.keep();
}

}  // namespace orvanta
