// cddbcatg: under which of the CDDB's categories a disc is submitted.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct cddbcatg : forms::Form {
  using Button = forms::Button;
  using Label = forms::Label;
  using ListBox = forms::ListBox;
  using Panel = forms::Panel;

  cddbcatg() : Form("cddbcatg") {}

  Label disc{*this, "disc"};        ///< artist and title
  Label heading{*this, "heading"};  ///< of the list
  ListBox catfind{*this, "catfind"};
  Label plain{*this, "plain"};  ///< shown where letters will be replaced
  Panel Keys{*this, "Keys"};
  Button Command1{*this, "Command1"};  ///< OK
  Button Command3{*this, "Command3"};  ///< Cancel

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
