// CDForm, the faceplate: its controls by name. Behaviour lies in playback/ and faceplate/.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

/// Indices of the transport row's arrays.
enum TransportKey : size_t { Previous, Next, Play, Pause, Stop, Record };
/// Of the scan row's, of the small keys, and of the mode keys.
enum ScanKey : size_t { ScanBack, TimeKey, AbKey, ScanForward };
enum SmallKey : size_t { Above20, Shuffle, Repeat, Rip, Info };
enum ModeKey : size_t { PgmKey, OneKey, ContKey, IntroKey };

struct CDForm : forms::Form {
  template <class T, size_t N>
  using ControlArray = forms::ControlArray<T, N>;
  using Bar = forms::Bar;
  using Button = forms::Button;
  using Image = forms::Image;
  using Label = forms::Label;
  using Line = forms::Line;
  using Panel = forms::Panel;
  using Shape = forms::Shape;
  using TextBox = forms::TextBox;

  CDForm() : Form("CDForm") {}

  // Window
  Image Image8{*this, "Image8"};  ///< background: brushed faceplate, bezels and engraved rules; replaced by the user picture
  Line Line2{*this, "Line2"};     ///< window border, top edge (2 px pen); only with faceplateBorder 1
  Line Line3{*this, "Line3"};     ///< window border, left edge; only with faceplateBorder 1
  Line Line4{*this, "Line4"};     ///< window border, bottom edge; only with faceplateBorder 1
  Line Line5{*this, "Line5"};     ///< window border, right edge; only with faceplateBorder 1

  // Title line
  Label Label1{*this, "Label1"};    ///< maker plate, the deck name at the top left
  Label Label41{*this, "Label41"};  ///< model line beside the maker plate
  Image Image12{*this, "Image12"};  ///< title button: start the Enhanced CD; shows only for a disc read as Enh-CD
  Image Image7{*this, "Image7"};    ///< title button: minimise to pop-up (left) or tray (right)
  Image Image11{*this, "Image11"};  ///< title button: to the small faceplate (large only)
  Image Image13{*this, "Image13"};  ///< title button: to the large faceplate (small only)
  Image Image6{*this, "Image6"};    ///< title button: exit
  Image Image5{*this, "Image5"};    ///< power button, round push button; its release is the exit

  // Power
  Panel SSPanel3{*this, "SSPanel3"};  ///< status lamp under the power button: green in use, yellow 65535 drawer open, red 255 at exit
  Label Label28{*this, "Label28"};    ///< legend on the status lamp; red 192 at exit and record

  // Volume panel
  Panel SSPanel1{*this, "SSPanel1"};              ///< volume panel, recessed; leaves to top 99999 when not wanted
  Label PctL{*this, "PctL"};                      ///< left percent, drawn in a small recessed display window; a click silences the channel
  Panel VolumeL{*this, "VolumeL"};                ///< left slider area; takes the drag
  Panel VbarbtmL{*this, "VbarbtmL"};              ///< slider slot, full travel
  Panel VbartopL{*this, "VbartopL"};              ///< dark cover of the channel above the thumb
  Shape ThumbL{*this, "ThumbL"};                  ///< fader cap, FillColor 0x00B8B8BA (0x007EFEDE while dragged); Top = y, 75..1070
  ControlArray<Line, 2> TlineL{*this, "TlineL"};  ///< highlight along the top edge of the thumb; Y1 = Y2 = y
  Label PctR{*this, "PctR"};                      ///< right percent, drawn in a small recessed display window; a click silences the channel
  Panel VolumeR{*this, "VolumeR"};                ///< right slider area; takes the drag
  Panel VbarbtmR{*this, "VbarbtmR"};              ///< slider slot, full travel
  Panel VbartopR{*this, "VbartopR"};              ///< dark cover of the channel above the thumb
  Shape ThumbR{*this, "ThumbR"};                  ///< fader cap, FillColor 0x00B8B8BA (0x007EFEDE while dragged); Top = y, 75..1070
  ControlArray<Line, 2> TlineR{*this, "TlineR"};  ///< highlight along the top edge of the thumb; Y1 = Y2 = y
  ControlArray<Shape, 12> Shape15{*this, "Shape15"};  ///< level lamps beside the sliders
  ControlArray<Label, 6> Label78{*this, "Label78"};   ///< legends of the volume panel
  Shape Shape4{*this, "Shape4"};  ///< dark hole shown at the rest place of a pressed picture in this panel (set to that picture first)
  ControlArray<Image, 2> Image9{*this, "Image9"};    ///< link: 0 apart, 1 linked
  ControlArray<Image, 2> Image19{*this, "Image19"};  ///< mixer: 0 at rest, 1 down
  ControlArray<Image, 2> Image20{*this, "Image20"};  ///< display size: 0 at rest, 1 down
  ControlArray<Image, 2> Image2{*this, "Image2"};    ///< mute: 0 muted, 1 sound on
  Button Command3D16{*this, "Command3D16"};          ///< mixer push button, stands in for the volume panel while soundMode is 0
  Label Label27{*this, "Label27"};                   ///< legend under Command3D16

  // Display, right pane
  Panel Panel3D1{*this, "Panel3D1"};      ///< display glass: titles, track number, time, progress
  Label Label12{*this, "Label12"};        ///< disc line: artist and title; two lines (sf0: height 440 when wider than 2300)
  Label Label13{*this, "Label13"};        ///< track line: track title or state word (sf0: 384 high under a wide Label12)
  Label Label7{*this, "Label7"};          ///< legend over the track number
  Label Label11{*this, "Label11"};        ///< legend over the time
  Label Label9{*this, "Label9"};          ///< time mode word Time, Rem, TOTAL, Totrem; a click steps it
  Label Label6{*this, "Label6"};          ///< play mode word PGM, One, Cont, Intro; a click steps it
  Label Label8{*this, "Label8"};          ///< track number, display digits over an unlit 88
  Label Label10{*this, "Label10"};        ///< time, display digits over an unlit -88:88, same base line as Label8
  Image Image14{*this, "Image14"};        ///< online lamp: shows while the disc is looked up
  Label Label43{*this, "Label43"};        ///< length of the current track
  Bar CDStatusBar{*this, "CDStatusBar"};  ///< progress bar, 48 segments; a click seeks

  // Display, left pane and calendar
  Panel Panel3D5{*this, "Panel3D5"};  ///< display glass: disc type, indicators and the track calendar; in front of Panel3D1
  Line Line1{*this, "Line1"};         ///< covers the top edge of Panel3D5 where it lies over Panel3D1 (2 px, glass colour)
  Line Line8{*this, "Line8"};         ///< covers the right edge of Panel3D5 where it lies over Panel3D1 (2 px, glass colour)
  Label Label14{*this, "Label14"};    ///< disc type DISC or Enh-CD; a click starts the Enhanced CD
  Label Label33{*this, "Label33"};    ///< display-font emblem printed on the glass, never lit
  Label Label32{*this, "Label32"};    ///< small legend under the emblem, never lit
  Line Line11{*this, "Line11"};       ///< upright hairline between the disc type and the calendar
  Line Line10{*this, "Line10"};       ///< hairline above the calendar
  Line Line12{*this, "Line12"};       ///< hairline below the calendar
  Label Label23{*this, "Label23"};    ///< heading of the calendar
  Label Label16{*this, "Label16"};    ///< A-B indicator
  Label Label21{*this, "Label21"};    ///< Repeat or PAUSE indicator
  Label Label30{*this, "Label30"};    ///< program indicator Pgm Stored or Intro Play; a click recalls the program
  ControlArray<Label, 26> Label22{*this, "Label22"};  ///< track numbers 1..20 by index 0..19; 20 is the mark ">", 21..25 spare

  // Door and drawer
  Panel Panel3D2{*this, "Panel3D2"};                 ///< disc door while raised
  ControlArray<Image, 2> Image77{*this, "Image77"};  ///< disc emblem: 0 on the door, 1 on the moving door
  ControlArray<Label, 2> Label77{*this, "Label77"};  ///< logo: 0 on the door, 1 on the moving door
  Line Line7{*this, "Line7"};                        ///< finger groove along the bottom of the closed door
  Panel Panel3D6{*this, "Panel3D6"};                 ///< drawer frame 1: the door a little open
  Line Line6{*this, "Line6"};                        ///< finger groove along the bottom of the moving door
  Panel Panel3D8{*this, "Panel3D8"};                 ///< drawer frame 2: the tray half out
  Panel Panel3D7{*this, "Panel3D7"};    ///< open tray, main slice; parked hidden at a top that is not 600; a click ejects again
  Panel Panel3D9{*this, "Panel3D9"};    ///< open tray, right slice; parked hidden; together with Panel3D7 and Panel3D10 one picture
  Panel Panel3D10{*this, "Panel3D10"};  ///< open tray, lower slice with the drawer front; parked hidden at a top that is not 1570

  // Function and scan rows
  Shape Shape6{*this, "Shape6"};                     ///< drop shadow of the function row, 10 right and 10 down of the keys
  Shape Shape7{*this, "Shape7"};                     ///< drop shadow of the scan row
  ControlArray<Image, 4> Image10{*this, "Image10"};  ///< Library, CD Data, Playlist, Internet
  Label Label18{*this, "Label18"};                   ///< caption of function key 0
  Label Label19{*this, "Label19"};                   ///< caption of function key 1
  Label Label20{*this, "Label20"};                   ///< caption of function key 2
  Label Label25{*this, "Label25"};                   ///< caption of function key 3
  ControlArray<Image, 4> scntla{*this, "scntla"};    ///< scan back, time mode, A-B, scan forward
  ControlArray<Image, 4> scntlb{*this, "scntlb"};    ///< masks of the scan keys
  ControlArray<Image, 4> scntlc{*this, "scntlc"};    ///< lit symbols of the scan keys
  Label Label24{*this, "Label24"};                   ///< caption of the time key
  Label Label17{*this, "Label17"};                   ///< caption of the A-B key; follows the A-B state

  // Transport row: previous, next, play, pause, stop, record
  Shape Shape3{*this, "Shape3"};                   ///< black floor under the transport keys, seen in the gaps between them
  ControlArray<Image, 6> icntla{*this, "icntla"};  ///< faces
  ControlArray<Image, 6> icntlb{*this, "icntlb"};  ///< masks: shown = key dead
  ControlArray<Image, 6> icntlc{*this, "icntlc"};  ///< lit symbols
  Shape Shape2{*this, "Shape2"};                   ///< sunk plateau drawn on a pressed transport key, over the face and under the symbol

  // Number keys
  Panel Panel3D3{*this, "Panel3D3"};                  ///< number keypad panel
  ControlArray<Image, 20> Image17{*this, "Image17"};  ///< number keys 1..20
  ControlArray<Label, 20> Label34{*this, "Label34"};  ///< captions of the number keys; grey = key dead

  // Small keys: >20, shuffle, repeat, rip, info
  Shape Shape8{*this, "Shape8"};                     ///< black floor of the small key row
  ControlArray<Image, 5> Image16{*this, "Image16"};  ///< key faces
  Label Label44{*this, "Label44"};                   ///< caption of the small key: track above 20
  Label Label38{*this, "Label38"};                   ///< caption of the small key: shuffle
  Label Label39{*this, "Label39"};                   ///< caption of the small key: repeat
  Label Label40{*this, "Label40"};                   ///< caption of the small key: record
  Label Label35{*this, "Label35"};                   ///< caption of the small key: track list
  TextBox Text1{*this, "Text1"};                     ///< entry field for a track above 20; takes the place of the first small key

  // Mode keys: Pgm, One, Cont, Intro
  Label Label2{*this, "Label2"};    ///< heading of the mode keys
  Label Label3{*this, "Label3"};    ///< legend over mode key 0
  Label Label4{*this, "Label4"};    ///< legend over mode key 1
  Label Label5{*this, "Label5"};    ///< legend over mode key 2
  Label Label15{*this, "Label15"};  ///< legend over mode key 3
  Shape Shape5{*this,
               "Shape5"};  ///< dark hole shown at the rest place of a pressed mode key, behind it (companion of Shape4 on the window)
  ControlArray<Image, 4> Image4{*this, "Image4"};  ///< lamp dark
  ControlArray<Image, 4> Image3{*this, "Image3"};  ///< lamp lit

 protected:
  std::span<const forms::DesignRow> design() const override;
  std::span<const forms::PartnerRow> partners() const override;
  std::span<const forms::AreaRow> areas() const override;
};

}  // namespace orvanta
