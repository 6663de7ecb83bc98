// What the rooms ask of those above them, and who does it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "cddb/upward.h"
#include "faceplate/upward.h"
#include "library/upward.h"
#include "platform/ports/clock.h"
#include "playback/upward.h"
#include "shell/upward.h"
#include "strip/upward.h"
#include "web/upward.h"

namespace orvanta {

class Dialogs;
class Orvanta;

class Links : public PlaybackUpward,
              public FaceplateUpward,
              public StripUpward,
              public ShellUpward,
              public LibraryUpward,
              public CddbUpward,
              public WebUpward {
 public:
  Links(Orvanta& core, Clock& clock, Dialogs& dialogs) : core_(core), clock_(clock), dialogs_(dialogs) {}

  // The door, discs and processes.
  void openDrawer() override;
  void closeDrawer() override;
  void showNoDisc() override;
  void restartForDisc() override;
  /// A restart closes the window's data: it waits until the user has closed them.
  void restartWhenFree();
  bool restartWaits() const override;
  void runSetup() override;
  void record() override;
  void exitProgram() override;
  void exitWhenFree() override;
  void exitStopped() override;
  void afterTick() override;

  // Windows.
  void showFaceplate() override;
  void hideFaceplate() override;
  void minimise() override;
  void comeBack() override;
  void showCdData() override;
  bool mayShowCdData() const override;
  void showPlaylist() override;
  void showTrackList() override;
  void closeTrackList() override;
  void closeDiscWindows() override;
  void showAbout() override;

  // The CDDB.
  void openCddb() override;
  void automaticLookup() override;
  void submitToCddb() override;
  bool mailSenderKnown() const override;
  bool lookupMayStart() const override;
  void showSearching(bool now) override;
  void readTextsAgain() override;

  void showHelp(int topic) override;
  void switchWallpaper() override;
  void hideWallpaper() override;
  void renewWallpaper() override;
  bool toTray() override;
  void leaveTray() override;
  void endAtOnce() override;

  // Menus, the web, other programs.
  void showMenu(bool byKey) override;
  void showSearches(bool byKey) override;
  void startLibrary() override;
  void launchEnhancedDisc() override;
  void lookUpOnline() override;
  bool looksUp() const override;
  void cancelLookUp() override;
  void centreFaceplate() override;
  void lookForLyrics() override;
  void showPage(const std::string& address) override;

 private:
  using Later = std::unique_ptr<Timer>;

  bool mayExit();
  /// As soon as no window or box of the user's stands.
  void whenFree(Later& timer, int look, std::function<void()> act);

  Orvanta& core_;
  Clock& clock_;
  Dialogs& dialogs_;
  Later restartLater_;
  Later exitLater_;
};

}  // namespace orvanta
