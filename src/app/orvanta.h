// The whole core, put together.
#pragma once

#include "app/exit.h"
#include "app/keeper.h"
#include "app/record.h"
#include "app/restart.h"
#include "app/second_start.h"
#include "app/start_up.h"
#include "cddb/cddb_window.h"
#include "cddb/mail_window.h"
#include "cddb/submitter.h"
#include "cddb/upward.h"
#include "faceplate/drawer.h"
#include "faceplate/faceplate.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/mixer_driver.h"
#include "faceplate/volume.h"
#include "library/cd_data.h"
#include "library/cd_info.h"
#include "library/genres.h"
#include "library/html_export.h"
#include "library/playlist.h"
#include "library/print_record.h"
#include "library/upward.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/ports.h"
#include "playback/upward.h"
#include "records/disc_files.h"

namespace orvanta {

class Orvanta : private PlaybackUpward, private LibraryUpward, private CddbUpward {
 public:
  explicit Orvanta(Ports& ports);

  // Both throw ProcessEnded: call them through the gate.
  /// The start-up form's work. From here on a process that hands over to this one lets go.
  void startUp(const HostOptions& options);
  void showFaceplate() override;
  /// A second start on the same data folder: the window comes to the front and does what that start asked for.
  void secondStart(const SecondStart& start);
  /// The settings were changed from outside: they are read and shown.
  void takeUpSettings();
  /// The session ends: what the exit does, without a question and without a sound.
  [[noreturn]] void endOfSession();
  /// The display has gone: what can be kept is kept.
  void displayGone();

  /// What fills and saves the disc's texts by program.
  CdData& cdData() { return cdData_; }

  /// The session ends: what was typed is kept for the next one.
  void keepDrafts() { cdData_.keepDraft(); }

  CDForm form;
  acdtabs editor;
  cdplist playlistForm;
  cdartext infoForm;
  cddbmain cddbForm;
  cddbcatg categoryForm;
  cddbmail mailForm;
  SharedState state;

 private:
  void openDrawer() override;
  void exitProgram() override;
  void exitWhenFree() override;
  bool restartWaits() const override {
    return cdData_.openForPerson() || cddb_.openForPerson() || mailForm.loaded() || playlistForm.loaded() || ports_.dialogs.open();
  }
  void everyTick() override;
  void closeDrawer() override { drawer_.closedrawer(); }
  void showNoDisc() override { colours_.disabledLook(); }
  void restartForDisc() override {
    restart_.forDisc([this] { drawer_.follow(); });
  }
  void runSetup() override;
  void record() override;
  void runMixer() override { sounds_.runMixer(); }
  void muteKey() override;
  void volumeKey(bool up) override;
  bool readCdRecord(const std::string& cdFilePath) override;
  void readUserCaptions() override { genres_.readUserCaptions(); }
  int16_t readTimeCorrection() override { return discFiles().timeCorrection(); }
  std::optional<std::vector<int>> readProgram() override { return discFiles().program(); }

  void showCdData() override;
  void showPlaylist() override;
  void showTrackList() override;
  void closeTrackList() override { info_.close(); }
  void closeDiscWindows() override;
  void openCddb() override { cddb_.open(); }
  void submitToCddb() override { submitter_.open(); }
  bool mailSenderKnown() const override { return storedCddbSettings(ports_.files, state.settings.appDir).senderKnown(); }
  void automaticLookup() override { cddb_.discKnown(); }
  bool lookupMayStart() const override { return discIn() && !mailForm.loaded() && !playlistForm.loaded() && !ports_.dialogs.open(); }
  void readTextsAgain() override;
  void hideFaceplate() override { form.hide(); }

  DiscFiles discFiles() { return {ports_.files, state.disc.cdFilePath}; }
  bool discIn() const { return state.disc.noDiscState == 0 && state.disc.drawerOpen == kOff && state.disc.trackCount > 0; }

  // Windows and programs that are still to come aboard; their keys do nothing yet.
  void showHelp(int /*topic*/) override {}
  void showMenu() override {}
  void launchEnhancedDisc() override {}
  void lookForLyrics() override {}
  void showPage(const std::string& /*address*/) override {}

  void restartWhenFree();

  Ports& ports_;
  bool exitWanted_ = false;
  std::unique_ptr<Timer> restartLater_;
  Keeper keeper_{ports_, state};
  StartUp startUp_{ports_, state};
  Display display_{form, state};
  KeyLooks looks_;
  DeviceLayer layer_;
  DiscLoad discLoad_;
  Engine engine_;
  Modes modes_;
  Buttons buttons_;
  PlaybackClock clock_;
  Position position_;
  Layout layout_;
  InterfaceSounds sounds_;
  MixerDriver mixer_;
  Volume volume_;
  DisplayColours colours_;
  Genres genres_;
  HtmlExport html_;
  RecordPrint print_;
  CdData cdData_;
  CddbWindow cddb_;
  MailWindow mail_;
  Submitter submitter_;
  Playlist playlist_;
  CdInfo info_;
  Drawer drawer_;
  Exit exit_;
  Restart restart_;
  RecorderLaunch record_;
  Faceplate faceplate_;
};

}  // namespace orvanta
