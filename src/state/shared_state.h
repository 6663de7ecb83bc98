// The state that the whole core shares, in small structs by owner, made once and handed down as
// references. Numbers are 16-bit signed where the files and texts they come from are.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/colour.h"
#include "state/disc_texts.h"
#include "state/settings.h"

namespace orvanta {

enum PlayMode : int16_t { Pgm = 0, One = 1, Cont = 2 };
enum TimeMode : int16_t { Time = 0, Rem = 1, Total = 2, TotRem = 3 };
/// Values of trackGo: where the track of Pgm and One stands.
enum TrackGo : int16_t { kTrackOver = 0, kTrackRuns = 1, kEnteringOne = 99 };
/// Values of noDiscState: what the start found in the drive.
enum NoDiscState : int16_t { kDiscAtStart = 0, kNoDiscAtStart = 2 };
/// Values of cddbMode: why the CDDB's window, or CD Data without a person, runs.
enum CddbMode : int16_t { kFromFaceplate = 0, kResting = 1, kAutomatic = 3, kNoSubmission = 9, kSubmission = 33 };

/// Values of volDrag: what of a slider the mouse holds.
enum VolumeDrag : int16_t { kNoDrag = 0, kUpperBar = 1, kLowerBar = 2, kArea = 3 };

/// Two-state values of the tables below.
constexpr int16_t kOff = 0;
constexpr int16_t kOn = 1;

/// The disc in the drive and its texts. Tables are by track number, from 1.
struct DiscState : DiscTexts {
  int16_t trackCount = 0;                     ///< 0 with no disc or the drawer open
  int16_t lampCount = 0;                      ///< trackCount, at most 20: there are twenty lamps and number keys
  std::array<std::string, 102> trackLengths;  ///< "m:ss"; filled on the first tick after the load
  std::array<int32_t, 101> trackFrames{};     ///< [0]: start of the disc in frames; [t]: frames part of t's length
  std::array<bool, 101> dataTrack{};          ///< cannot be played; known from the load on
  int32_t discSum = 0;                        ///< what the key is made of
  std::string discKey;                        ///< eight digits, the name of the disc's files
  std::string cdFilePath;                     ///< of the ".CD" file
  std::string discLengthText;                 ///< "mm:ss" or "h:mm:ss"
  int16_t discMinutes = 0;                    ///< minutes of the disc's length, as the device reports them
  NoDiscState noDiscState = kDiscAtStart;
  bool drawerOpen = false;     ///< the faceplate shows the open drawer
  bool discLoaded = false;     ///< a disc with tracks was loaded, or eject was pressed
  bool discStarted = false;    ///< a track was selected or played; titles show only then
  int16_t timeCorrection = 0;  ///< seconds, -3 to 5, kept per disc
  bool trackTableDone = false;
  bool enhancedCd = false;
  bool clearDiscRequest = false;  ///< the clock clears the disc's texts
  bool searching = false;         ///< the CDDB is asked by itself: the header says so in place of the disc's name

  /// Without a disc at the start, or with the drawer open: no key of the play is heard.
  bool asleep() const { return noDiscState != kDiscAtStart || drawerOpen; }
  bool in() const { return !asleep() && trackCount > 0; }
};

struct TransportState {
  int16_t curTrack = 0;      ///< 0 after the end of the disc; may pass trackCount by one for a tick
  int16_t deviceTrack = 0;   ///< as the device last reported
  int16_t selTrack = 0;      ///< zero-based target of a jump
  PlayMode playMode = Cont;  ///< shuffle runs as Pgm, Intro as Cont with introTrack above 0
  bool playingFlag = false;
  bool pausedFlag = false;    ///< never both; both off when stopped
  int32_t pausePosition = 0;  ///< device position at pause; not 0: play must resume
  bool playEnded = false;     ///< after the end of program or disc: next does nothing until play
  TrackGo trackGo = kTrackOver;
  int16_t scanCount = 0;       ///< ticks of a scan, below 0 backwards
  double lastAdvanceTime = 0;  ///< seconds since midnight of the last automatic advance in Cont; 0 for none
  int64_t advanceDue = 0;      ///< the clock's millisecond of the advance that a correction holds back; 0 for none
  bool abSetA = false;         ///< the A-B loop's start is set; its place may be 0
  bool abSetB = false;         ///< its end too: it loops
  double abPointA = 0;         ///< places on the bar, in twips
  double abPointB = 0;
  int16_t abTrack = 0;
  int16_t introTrack = 0;
  double introStart = 0;
};

struct ProgramState {
  std::array<int16_t, 102> pgmList{};  ///< track numbers in 1..100, 0 ends the list
  int16_t pgmIndex = 0;                ///< entry that plays, 0 before the first
  int16_t pgmCount = 0;
  bool pgmStored = false;
  bool skipStep = false;  ///< a step asked for by next is pending
  bool shuffled = false;  ///< the list's order is one of chance

  void clearList() {
    pgmList.fill(0);
    pgmCount = 0;
    shuffled = false;
  }
};

struct DisplayState {
  double elapsedSec = 0;
  int16_t nearEndSec = 0;    ///< track length in seconds less 5; 4 more on the last lamp's track in Cont
  int16_t lastShownSec = 0;  ///< with lastShownTrack 0: the next display is taken as it comes
  int16_t lastShownTrack = 0;
  bool holdTrackLabel = false;  ///< right after a jump: the clock leaves the track label alone once
  bool positionKnown = false;   ///< the faceplate stands where the user put it
  bool quietOnce = false;       ///< no interface sound for now
  bool popupOpen = false;       ///< the strip is loaded
  int16_t popupLayout = 0;      ///< 1 while it is unfolded
  bool trayWanted = false;      ///< a person asked for the tray in the strip's place
};

/// The two sliders and the level they set. Attenuations are 0 (full volume) to 100.
struct VolumeState {
  int16_t auxDeviceId = 0;
  int16_t volBlocked = -1;  ///< -1 until the device was read: no slider reaches it; then 0
  int32_t leftRaw = 0;      ///< 0 to 65535, as the device has it
  int32_t rightRaw = 0;
  int16_t leftAtten = 0;
  int16_t rightAtten = 0;
  int16_t leftAttenPrev = 0;  ///< last applied to the raw value
  int16_t rightAttenPrev = 0;
  int32_t muteLeft = 0;          ///< raw values kept during mute
  int32_t muteRight = 0;         ///< with the mixer program instead: where its slider stands, 0 to 250
  VolumeDrag volDrag = kNoDrag;  ///< reading the device leaves kArea behind
  int16_t mixerBusy = 0;         ///< 3 while the mixer program is driven
};

/// What the windows of the disc's texts share.
struct LibraryState {
  bool dataDirty = false;            ///< something was changed; never cleared, so every later OK saves
  bool askOnCancel = false;          ///< a main field was changed
  bool editorFromFaceplate = false;  ///< CD Data was opened by a person
  CddbMode cddbMode = kFromFaceplate;
  std::array<std::string, 101> trackLyrics;  ///< [1]..[100]: the editor's working copy, with line breaks
  std::array<std::string, 2> userCaptions;   ///< of the two user defined fields; "" for the usual ones
};

/// Values of soundMode; 1 and 2 count as OwnVolume.
enum SoundMode : int16_t { kNoSliders = 0, kOwnVolume = 3, kMixerProgram = 4 };

/// How this process was started, and where its files are.
struct ProcessState {
  std::string commandWord;  ///< upper case; "" when none
  std::string nextWords;    ///< of a second start, for the process of the disc that comes next
  bool autoStartMode = false;
  bool autoStartDone = false;
  bool playNext = false;     ///< a person put a disc in while another played: it is played in its turn
  std::string menusEngine;   ///< search engine that was chosen in the menu, for as long as decks follow one another; "" for none
  bool setupWanted = false;  ///< the setup program is to run at the next tick of Timer3
  std::string systemDir;
  std::string windowsDir;
  int16_t osFamily = 1;
  bool smallFonts = true;  ///< metric variant: above 14 twips to a pixel
  int64_t colourCount = 0;
};

constexpr int64_t kFewColours = 257;  ///< a screen of fewer gets plain dark panels

struct SharedState {
  DiscState disc;
  TransportState transport;
  ProgramState program;
  DisplayState display;
  VolumeState volume;
  LibraryState library;
  ProcessState process;
  Settings settings;

  /// The menu's choice counts before that of the settings.
  const std::string& searchEngine() const { return process.menusEngine.empty() ? settings.searchEngine : process.menusEngine; }

  /// At the load of the faceplate: disc, transport, program and display start afresh. Settings,
  /// the start's word and auto-start stay, since they were just read.
  void clearForLoad() {
    disc = {};
    transport = {};
    program = {};
    display = {};
    volume = {};
  }
};

}  // namespace orvanta
