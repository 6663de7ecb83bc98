// cddbmain, the CDDB's window: search and results, its settings, and whom to thank, on three tabs.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct cddbmain : forms::Form {
  template <class T, size_t N>
  using ControlArray = forms::ControlArray<T, N>;
  using Button = forms::Button;
  using CheckBox = forms::CheckBox;
  using Combo = forms::Combo;
  using Label = forms::Label;
  using ListBox = forms::ListBox;
  using Panel = forms::Panel;
  using TextBox = forms::TextBox;

  cddbmain() : Form("cddbmain") {}

  // Tabs: the key of the tab that shows is hidden
  Panel TabPanel3{*this, "TabPanel3"};
  ControlArray<Button, 3> CommandT{*this, "CommandT"};

  // CDDB Online: the search,
  Panel Frame5{*this, "Frame5"};
  Label inetstatus{*this, "inetstatus"};
  Label busy{*this, "busy"};           ///< shown while a reply is due
  Button Command8{*this, "Command8"};  ///< start search
  // its matches,
  Panel Frame4{*this, "Frame4"};
  Label Label30{*this, "Label30"};
  Label Label29{*this, "Label29"};     ///< how many were found
  ListBox List2{*this, "List2"};       ///< rows that end in the matches' ids
  Button Command9{*this, "Command9"};  ///< retrieve the one that is chosen
  // and the record
  Panel Frame6{*this, "Frame6"};
  Label Label4{*this, "Label4"};
  Label Label24{*this, "Label24"};  ///< artist and title
  Label Label19{*this, "Label19"};
  Label Label27{*this, "Label27"};  ///< genre
  Label Label25{*this, "Label25"};
  ListBox List1{*this, "List1"};  ///< number, ":", TAB, title
  Label Label23{*this, "Label23"};
  ListBox List3{*this, "List3"};  ///< number, ":", TAB, extended text
  Label Label26{*this, "Label26"};
  TextBox linernote2{*this, "linernote2"};
  Button Command7{*this, "Command7"};  ///< save

  // Setup: the server,
  Panel Frame1{*this, "Frame1"};
  ControlArray<CheckBox, 2> Option2{*this, "Option2"};  ///< HTTP, CDDBP
  ControlArray<Label, 7> Captions{*this, "Captions"};   ///< of fields whose captions never change
  Combo Combo1{*this, "Combo1"};
  TextBox Text4{*this, "Text4"};         ///< port
  Button Command10{*this, "Command10"};  ///< update the list of servers
  CheckBox Check1{*this, "Check1"};      ///< look unknown discs up by itself
  Label Label2{*this, "Label2"};
  TextBox Text1{*this, "Text1"};     ///< proxy
  CheckBox Check2{*this, "Check2"};  ///< the proxy wants to know who we are
  TextBox Text3{*this, "Text3"};     ///< user name
  TextBox Text8{*this, "Text8"};     ///< password
  // and the user's address and mail
  Panel Frame8{*this, "Frame8"};
  TextBox Text5{*this, "Text5"};  ///< e-mail address
  Label Label9{*this, "Label9"};
  TextBox Text7{*this, "Text7"};  ///< SMTP server
  TextBox Text2{*this, "Text2"};  ///< its port
  Label Label32{*this, "Label32"};
  TextBox Text6{*this, "Text6"};         ///< where submissions go
  Button Command12{*this, "Command12"};  ///< back to the usual address

  // About
  Panel Frame9{*this, "Frame9"};
  Label Label22{*this, "Label22"};
  Panel Frame10{*this, "Frame10"};
  Button Label1{*this, "Label1"};        ///< a home page,
  Button Label13{*this, "Label13"};      ///< and another
  Button Command13{*this, "Command13"};  ///< help

  // Keys
  Panel Keys{*this, "Keys"};
  Button Command1{*this, "Command1"};  ///< OK
  Button Command3{*this, "Command3"};  ///< Cancel

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
