// Everything that the deck can be told, by whatever road: a face, a key of the keyboard, an entry of a menu.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

enum class Action : uint8_t {
  Previous,  ///< the transport row, in its order
  Next,
  Play,
  Pause,
  Stop,
  Record,
  ScanBack,  ///< held; so is the next
  ScanForward,
  TimeMode,
  AbLoop,
  Track,  ///< argument: its number, 1 to 20
  Above20,
  Shuffle,
  Repeat,
  TrackList,
  CloseTrackList,
  Pgm,
  One,
  Cont,
  Intro,
  NextMode,
  Recall,       ///< the stored program
  TrackBefore,  ///< of the tray, where a step is to be had from a pause and from rest as well
  TrackAfter,
  Seek,   ///< argument: twips along the bar
  Eject,  ///< an open or empty deck asks for a disc instead
  PutIn,
  Mute,
  Louder,
  Softer,
  Link,
  SilenceLeft,
  SilenceRight,
  SlidersAway,
  SlidersBack,
  Mixer,
  DisplaySize,
  Small,
  Large,
  MinimiseToStrip,
  MinimiseToTray,
  CdData,
  Playlist,
  EnhancedDisc,
  Menu,      ///< argument: kByMouse where the mouse asks for it; so for the next
  Internet,  ///< what can be looked for of the disc
  Library,
  Wallpaper,
  Help,
  About,
  Exit,
};
constexpr size_t kActions = static_cast<size_t>(Action::Exit) + 1;

/// A menu that the mouse asks for lies under it.
constexpr int kByMouse = 1;

/// A person may be refused, and is answered with a click and with the windows that go with an act.
enum class By : uint8_t { Person, Program };

}  // namespace orvanta
