// The whole core: its windows, its state, its rooms.
#pragma once

#include "app/life.h"
#include "app/links.h"
#include "cddb/cddb.h"
#include "faceplate/faceplate.h"
#include "library/library.h"
#include "platform/ports/ports.h"
#include "playback/playback.h"
#include "shell/shell.h"
#include "state/second_start.h"
#include "strip/strip.h"
#include "web/web.h"

namespace orvanta {

class Orvanta {
 public:
  explicit Orvanta(Ports& ports);

  // Both throw ProcessEnded: call them through the gate.
  /// The start-up form's work. From here on a process that hands over to this one lets go.
  void startUp(const HostOptions& options);
  void showFaceplate();
  /// A second start on the same data folder: the window comes to the front and does what that start asked for.
  void secondStart(const SecondStart& start);
  /// The settings were changed from outside: they are read and shown.
  void takeUpSettings();
  /// The session ends: what the exit does, without a question and without a sound.
  [[noreturn]] void endOfSession();
  /// The display has gone: what can be kept is kept.
  void displayGone();

  /// What fills and saves the disc's texts by program.
  CdData& cdData() { return library_.cdData; }
  /// Every act of the deck, for those who give orders.
  Actions& actions() { return faceplate_.actions; }
  /// What the deck is doing, for those who show it.
  StatusBoard& status() { return playback_.status; }

  /// The session ends: what was typed is kept for the next one.
  void keepDrafts() { library_.cdData.keepDraft(); }

  CDForm form;
  acdtabs editor;
  cdplist playlistForm;
  cdartext infoForm;
  cddbmain cddbForm;
  cddbcatg categoryForm;
  cddbmail mailForm;
  Form26 wallpaperForm;
  VolCntl stripForm;
  ICONmin iconForm;
  AboutBox aboutForm;
  SharedState state;

 private:
  friend class Links;

  Ports& ports_;
  Links links_;
  Playback playback_;
  Faceplate faceplate_;
  Strip strip_;
  Library library_;
  Cddb cddb_;
  Shell shell_;
  Web web_;
  Life life_;
};

}  // namespace orvanta
