// acdtabs, the CD Data window: everything known of one disc, on three tabs. Until OK the controls hold the
// edited values, not the tables.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct acdtabs : forms::Form {
  template <class T, size_t N>
  using ControlArray = forms::ControlArray<T, N>;
  using Button = forms::Button;
  using Combo = forms::Combo;
  using Label = forms::Label;
  using ListBox = forms::ListBox;
  using Panel = forms::Panel;
  using TextBox = forms::TextBox;

  acdtabs() : Form("acdtabs") {}

  // Tabs: the key of the tab that shows is hidden
  Panel TabPanel0{*this, "TabPanel0"};
  ControlArray<Button, 3> CommandT{*this, "CommandT"};
  ControlArray<Label, 27> Captions{*this, "Captions"};  ///< of fields whose captions never change

  // Music Info
  Panel SSFrame1{*this, "SSFrame1"};
  TextBox Text2{*this, "Text2"};  ///< artist
  Combo cat{*this, "cat"};        ///< genre
  Button addGenreKey{*this, "addGenreKey"};
  TextBox Text4{*this, "Text4"};    ///< title
  TextBox Text24{*this, "Text24"};  ///< CD changer ID
  Combo mediatype{*this, "mediatype"};
  TextBox Text6{*this, "Text6"};    ///< label
  TextBox catnum{*this, "catnum"};  ///< catalog number
  TextBox Text18{*this, "Text18"};  ///< year released
  TextBox upcnum{*this, "upcnum"};
  TextBox Text3{*this, "Text3"};  ///< liner notes
  Panel Heads1{*this, "Heads1"};
  Label Label5{*this, "Label5"};
  Label Label6{*this, "Label6"};
  Label Label7{*this, "Label7"};
  ListBox List1{*this, "List1"};  ///< number, ":", TAB, title, TAB, time
  TextBox Text1{*this, "Text1"};  ///< the title of the row under edit

  // Additional Info
  Panel SSFrame4{*this, "SSFrame4"};
  TextBox Text10{*this, "Text10"};    ///< artist web site
  Combo stloc{*this, "stloc"};        ///< storage location
  TextBox Text23{*this, "Text23"};    ///< artist info
  TextBox Text16{*this, "Text16"};    ///< album credits
  TextBox Text22{*this, "Text22"};    ///< album info
  TextBox Text15{*this, "Text15"};    ///< recording info
  Combo recdtype{*this, "recdtype"};  ///< recording venue
  Combo mrat{*this, "mrat"};          ///< ratings: music,
  Combo rrat{*this, "rrat"};          ///< recording,
  Combo mcrat{*this, "mcrat"};        ///< condition of the media,
  Combo pcrat{*this, "pcrat"};        ///< of the packaging,
  Combo crat{*this, "crat"};          ///< contents
  Combo reccode{*this, "reccode"};
  Label Label37{*this, "Label37"};  ///< the user's caption of Text13
  TextBox Text13{*this, "Text13"};
  Label Label51{*this, "Label51"};  ///< and of Text11
  TextBox Text11{*this, "Text11"};
  TextBox Text7{*this, "Text7"};  ///< composer
  TextBox cdcost{*this, "cdcost"};
  Panel Heads2{*this, "Heads2"};
  Label Label39{*this, "Label39"};
  Label Label40{*this, "Label40"};
  ListBox List2{*this, "List2"};  ///< number, ":", TAB, lyrics on one line
  TextBox Text8{*this, "Text8"};  ///< the lyrics of the row under edit

  // Advanced
  Panel Frame3D1{*this, "Frame3D1"};
  Label Label18{*this, "Label18"};
  Label LabelCorrection{*this, "LabelCorrection"};
  TextBox Text5{*this, "Text5"};  ///< time correction, seconds
  Label Label16{*this, "Label16"};

  // Facts below the tabs
  Panel Facts{*this, "Facts"};
  Label Label24{*this, "Label24"};
  Label Label23{*this, "Label23"};  ///< when the record was last written
  Label Label10{*this, "Label10"};
  Label Label12{*this, "Label12"};  ///< track count
  Label Label11{*this, "Label11"};
  Label Label13{*this, "Label13"};  ///< total time
  Label Label25{*this, "Label25"};  ///< how far a submission is, or why it was refused; that what is typed cannot be kept

  // Keys
  Panel Keys{*this, "Keys"};
  Button Command4{*this, "Command4"};    ///< print
  Button Command7{*this, "Command7"};    ///< save as HTML
  Button Command13{*this, "Command13"};  ///< captions of the user's fields
  Button Command14{*this, "Command14"};  ///< lyrics online
  Button Command11{*this, "Command11"};  ///< look up in the CDDB
  Button Command12{*this, "Command12"};  ///< submit to the CDDB
  Button Command6{*this, "Command6"};    ///< starts the music library, whatever it says
  Button Command5{*this, "Command5"};    ///< clear
  Button Command3{*this, "Command3"};    ///< help
  Button Command10{*this, "Command10"};  ///< never shown here
  Button Command1{*this, "Command1"};    ///< OK
  Button Command2{*this, "Command2"};    ///< Cancel

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
