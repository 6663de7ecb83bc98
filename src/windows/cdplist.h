// cdplist, the playlist editor: the disc's tracks, the playlist, and keys between them.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct cdplist : forms::Form {
  using Button = forms::Button;
  using Label = forms::Label;
  using ListBox = forms::ListBox;
  using Panel = forms::Panel;

  cdplist() : Form("cdplist") {}

  Label Label4{*this, "Label4"};
  ListBox List1{*this, "List1"};  ///< the disc's tracks
  Panel Middle{*this, "Middle"};
  Button Command5{*this, "Command5"};    ///< add what is selected
  Button Command11{*this, "Command11"};  ///< add all
  Button Command6{*this, "Command6"};    ///< remove what is selected
  Button Command7{*this, "Command7"};    ///< up
  Button Command8{*this, "Command8"};    ///< down
  Button Command3{*this, "Command3"};    ///< unselect the tracks
  Button Command9{*this, "Command9"};    ///< empty the playlist
  Label Label1{*this, "Label1"};
  ListBox List2{*this, "List2"};  ///< the playlist as shown
  Panel Keys{*this, "Keys"};
  Button Command12{*this, "Command12"};  ///< preview
  Button Command13{*this, "Command13"};  ///< stop
  Button Command2{*this, "Command2"};    ///< recall
  Button Command10{*this, "Command10"};  ///< delete
  Button Command1{*this, "Command1"};    ///< save
  Button Command4{*this, "Command4"};    ///< play
  ListBox List3{*this, "List3"};         ///< never shown: the track numbers of List2, row for row

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
