// VolCntl, the strip that stands in for the faceplate: transport keys, mute and a small display; unfolded, displays, track
// numbers and sliders as well. It holds no state of play: its behaviour lies in strip/.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct VolCntl : forms::Form {
  template <class T, size_t N>
  using ControlArray = forms::ControlArray<T, N>;
  using Bar = forms::Bar;
  using Image = forms::Image;
  using Label = forms::Label;
  using Line = forms::Line;
  using Panel = forms::Panel;
  using Shape = forms::Shape;

  VolCntl() : Form("VolCntl") {}

  // Body
  Panel frame{*this, "frame"};        ///< metal rim round the body; only with faceplateBorder 1
  Panel SSPanel2{*this, "SSPanel2"};  ///< body of strip and unfolded window; at 0, 0 without border
  Image Image10{*this, "Image10"};    ///< background, always as large as SSPanel2; replaced by the user picture

  // Keys
  ControlArray<Image, 6> Image1{*this, "Image1"};  ///< transport keys at rest: previous, next, play, pause, stop, eject
  ControlArray<Image, 6> Image2{*this, "Image2"};  ///< the same keys lit
  ControlArray<Image, 6> Image4{*this, "Image4"};  ///< and unavailable
  Image Image5{*this, "Image5"};                   ///< mute, while the sound is on; opens the mixer while there are no sliders
  Image Image7{*this, "Image7"};                   ///< the same key while muted
  Image Image6{*this, "Image6"};                   ///< unfolds
  Image Image8{*this, "Image8"};                   ///< folds
  Label Label10{*this, "Label10"};                 ///< legend of the mute key
  Label Label1{*this, "Label1"};                   ///< legend of the unfold key
  Image Image13{*this, "Image13"};                 ///< title button: to the tray
  Image Image3{*this, "Image3"};                   ///< title button: back to the faceplate
  Image Image12{*this, "Image12"};                 ///< title button: exit
  Shape Shape7{*this, "Shape7"};                   ///< dark hole at the rest place of a pressed picture, behind it
  Bar vcntlstatusbar{*this, "vcntlstatusbar"};     ///< progress, under the keys; folded and unfolded

  // The strip's display
  Panel MiniBay{*this, "MiniBay"};  ///< unpainted carrier of SSPanel1, which hangs above the window so that its told top lies in the strip
  Panel SSPanel1{*this, "SSPanel1"};  ///< mini display; leaves to top 99999 when unfolded
  Label Label3{*this, "Label3"};      ///< track number of the strip
  Label Label4{*this, "Label4"};      ///< time of the strip

  // The unfolded window's displays
  Panel Panel3D1{*this, "Panel3D1"};  ///< display glass: titles, track number, time; unfolded only
  Label Label12{*this, "Label12"};    ///< disc line; a click makes both title lines a point smaller, the right button larger
  Label Label13{*this, "Label13"};    ///< track line
  Label Label7{*this, "Label7"};      ///< legend over the track number
  Label Label11{*this, "Label11"};    ///< legend over the time
  Label Label9{*this, "Label9"};      ///< time mode word; a click steps it
  Label Label8{*this, "Label8"};      ///< track number of the unfolded window; a click opens the track list
  Label Label5{*this, "Label5"};      ///< its time
  Label Label14{*this, "Label14"};    ///< disc type DISC or Enh-CD
  Label Label21{*this, "Label21"};    ///< Repeat or PAUSE; a click switches Repeat
  Label Label30{*this, "Label30"};    ///< Pgm Stored or Intro Play
  Panel Panel3D5{*this, "Panel3D5"};  ///< display glass: the track calendar; unfolded only
  Label Label23{*this, "Label23"};    ///< heading of the calendar
  ControlArray<Label, 20> Label22{*this, "Label22"};  ///< track numbers 1..20 by index 0..19, keys of their own

  // Volume panel
  Panel SSPanel3{*this, "SSPanel3"};               ///< volume panel; right button: mixer; away while there are no sliders
  Label PctL{*this, "PctL"};                       ///< left percent; a click silences the channel
  Panel VolumeL{*this, "VolumeL"};                 ///< left slider area; takes the drag
  Panel VbarbtmL{*this, "VbarbtmL"};               ///< slider slot, red while muted
  Panel VbartopL{*this, "VbartopL"};               ///< dark cover of the channel above the thumb
  Shape ThumbL{*this, "ThumbL"};                   ///< fader cap; Top 75..1070
  ControlArray<Line, 2> TlineL{*this, "TlineL"};   ///< highlights along the thumb's top and left edge
  Label PctR{*this, "PctR"};                       ///< right percent; a click silences the channel
  Panel VolumeR{*this, "VolumeR"};                 ///< right slider area; takes the drag
  Panel VbarbtmR{*this, "VbarbtmR"};               ///< slider slot, red while muted
  Panel VbartopR{*this, "VbartopR"};               ///< dark cover of the channel above the thumb
  Shape ThumbR{*this, "ThumbR"};                   ///< fader cap; Top 75..1070
  ControlArray<Line, 2> TlineR{*this, "TlineR"};   ///< highlights along the thumb's top and left edge
  ControlArray<Image, 2> Image9{*this, "Image9"};  ///< link: 0 apart, 1 linked

  forms::WindowTraits traits() const override { return {.onTop = true, .inTaskbar = false, .bodyless = false, .behind = false}; }

 protected:
  std::span<const forms::DesignRow> design() const override;
  std::span<const forms::PartnerRow> partners() const override;
  std::span<const forms::AreaRow> areas() const override;
};

}  // namespace orvanta
