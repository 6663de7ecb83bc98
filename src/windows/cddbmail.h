// cddbmail: a submission on its way, and the one key that stops it.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct cddbmail : forms::Form {
  using Button = forms::Button;
  using Label = forms::Label;
  using Panel = forms::Panel;

  cddbmail() : Form("cddbmail") {}

  Label heading{*this, "heading"};
  Label address{*this, "address"};  ///< where the mail goes
  Label status{*this, "status"};    ///< how far it is, or what the server says against it
  Panel Keys{*this, "Keys"};
  Button Command3{*this, "Command3"};  ///< Cancel

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
