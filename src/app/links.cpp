// From room to room.
#include "app/links.h"

#include <utility>

#include "app/orvanta.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/tray.h"

namespace orvanta {

// ---- the door, discs and processes

/// A lookup of the disc that goes is over, and so is the list of its tracks.
void Links::openDrawer() {
  core_.cddb_.window.cddbcanz();
  core_.faceplate_.drawer.opendrawer();
  core_.faceplate_.colours.prompt();
  closeTrackList();
}

void Links::closeDrawer() { core_.faceplate_.drawer.closedrawer(); }

void Links::showNoDisc() { core_.faceplate_.colours.disabledLook(); }

void Links::restartForDisc() {
  core_.life_.restart.forDisc([this] { core_.faceplate_.drawer.follow(); });
}

void Links::whenFree(Later& timer, int look, std::function<void()> act) {
  timer = clock_.makeTimer([this, &timer, act = std::move(act)] {
    if (restartWaits()) return;
    timer->setInterval(0);
    act();
  });
  timer->setInterval(look);
}

void Links::restartWhenFree() {
  constexpr int kLook = 500;  // milliseconds
  whenFree(restartLater_, kLook, [this] {
    // What plays would be handed on to be played to its end, by a drive that no deck has any more.
    core_.state.process.playNext = core_.state.transport.playingFlag == kOn;
    core_.playback_.engine.stopKey();
    restartForDisc();
  });
}

bool Links::restartWaits() const {
  return core_.library_.cdData.openForPerson() || core_.cddb_.window.openForPerson() || core_.mailForm.loaded() ||
         core_.categoryForm.loaded() || core_.playlistForm.loaded() || core_.web_.menu.open() || dialogs_.open() ||
         core_.ports_.systemTray.menuOpen();
}

void Links::runSetup() {
  core_.life_.setup.run();
  core_.shell_.wallpaper.settingsChanged();
  core_.strip_.window.takeUp();
}

void Links::record() {
  if (core_.life_.recorder.ready() && core_.library_.cdData.mayBeLost()) core_.life_.recorder.run();
}

bool Links::mayExit() {
  const std::string sending = "A submission to the CDDB is still being sent.\n\nEnd the program all the same?";
  if (core_.cddb_.mail.sending() && !dialogs_.askYesNo(BoxStyle::Question, "Orvanta", sending)) return false;
  return core_.library_.cdData.mayBeLost();
}

void Links::exitProgram() {
  if (mayExit()) core_.life_.exit.exitProgram();
}

void Links::exitStopped() {
  if (!mayExit()) return;
  core_.playback_.engine.stopKey();
  core_.life_.exit.exitProgram();
}

void Links::exitWhenFree() {
  constexpr int kLook = 100;  // milliseconds
  if (!restartWaits()) core_.life_.exit.exitProgram();
  whenFree(exitLater_, kLook, [this] { core_.life_.exit.exitProgram(); });
}

void Links::afterTick() { core_.strip_.mirror.follow(); }

// ---- windows

/// What has stood in its place gives it back; a faceplate that made room of its own comes when the user calls it.
void Links::showFaceplate() {
  if (!core_.strip_.window.out()) core_.showFaceplate();
}

void Links::minimise() { core_.strip_.window.minfp1(); }

void Links::comeBack() { core_.strip_.window.restore(); }

void Links::hideFaceplate() { core_.form.hide(); }

bool Links::mayShowCdData() const { return core_.state.disc.in() || core_.library_.cdData.openForPerson(); }

/// The track list's window makes room for the editor.
void Links::showCdData() {
  if (!mayShowCdData()) return;
  core_.cddb_.window.cddbcanz();
  closeTrackList();
  core_.library_.cdData.openFromFaceplate();
}

void Links::showPlaylist() {
  if (core_.state.disc.in()) core_.library_.playlist.open();
}

void Links::showTrackList() { core_.library_.info.open(); }

void Links::closeTrackList() { core_.library_.info.close(); }

void Links::closeDiscWindows() {
  core_.cddb_.window.cddbcanz();
  closeTrackList();
  if (!core_.library_.cdData.openForPerson()) core_.editor.unload();
}

/// It ends with the faceplate in sight.
void Links::switchWallpaper() {
  comeBack();
  core_.shell_.wallpaper.wpfp1();
}

void Links::hideWallpaper() { core_.shell_.wallpaper.hideWithDeck(); }

void Links::renewWallpaper() { core_.shell_.wallpaper.comeBackWithDeck(); }

bool Links::toTray() { return core_.shell_.tray.load(); }

void Links::leaveTray() { core_.shell_.tray.unload(); }

void Links::endAtOnce() { core_.endOfSession(); }

void Links::showHelp(int topic) { core_.shell_.help.show(topic); }

void Links::showAbout() { core_.shell_.about.show(); }

// ---- the CDDB

void Links::openCddb() { core_.cddb_.window.open(); }

void Links::automaticLookup() { core_.cddb_.lookup.discKnown(); }

void Links::submitToCddb() { core_.cddb_.submitter.open(); }

bool Links::mailSenderKnown() const { return storedCddbSettings(core_.ports_.files, core_.state.settings.appDir).senderKnown(); }

bool Links::lookupMayStart() const {
  return core_.state.disc.in() && !core_.mailForm.loaded() && !core_.playlistForm.loaded() && !core_.web_.menu.open() && !dialogs_.open();
}

void Links::showSearching(bool now) { core_.playback_.display.searching(now); }

void Links::readTextsAgain() { core_.playback_.load.readTextsAgain(); }

void Links::lookUpOnline() { core_.cddb_.lookup.cddbdnld(); }

bool Links::looksUp() const { return core_.cddb_.window.automatic() && core_.cddb_.window.loaded(); }

void Links::cancelLookUp() { core_.cddb_.window.cddbcanz(); }

// ---- menus, the web, other programs

void Links::showMenu(bool byKey) { core_.web_.menu.wwwdtop(byKey); }

void Links::showSearches(bool byKey) { core_.web_.menu.isrchopts(byKey); }

void Links::startLibrary() { core_.web_.library.arun5(); }

void Links::launchEnhancedDisc() { core_.web_.enhanced.launchEnhancedCd(); }

void Links::centreFaceplate() { core_.faceplate_.place.Form_DblClick(); }

/// Of the disc in CD Data, as it stands there now.
void Links::lookForLyrics() { core_.web_.search.lookForLyrics(core_.editor.Text2.caption, core_.editor.Text4.caption); }

void Links::showPage(const std::string& address) { core_.web_.search.showPage(address); }

}  // namespace orvanta
