// cdartext, the CD Info window: everything known of the disc in one list.
#pragma once

#include "platform/forms/form.h"

namespace orvanta {

struct cdartext : forms::Form {
  cdartext() : Form("cdartext") {}

  forms::Panel Heads{*this, "Heads"};
  forms::Label Label5{*this, "Label5"};
  forms::Label Label6{*this, "Label6"};
  forms::Label Label7{*this, "Label7"};
  forms::ListBox List1{*this, "List1"};

 protected:
  std::span<const forms::GridRow> grid() const override;
};

}  // namespace orvanta
