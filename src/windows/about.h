// AboutBox: what the program is, what it runs on, whose work it is. Behaviour lies in shell/.
#pragma once

#include "base/licences.h"
#include "platform/forms/form.h"

namespace orvanta {

/// Lines of the display's upper pane.
enum AboutLine : size_t { AboutSystem, AboutToolkit, AboutSound, AboutDrive };
constexpr size_t kAboutLines = 4;

struct AboutBox : forms::Form {
  template <class T, size_t N>
  using ControlArray = forms::ControlArray<T, N>;
  using Image = forms::Image;
  using Label = forms::Label;
  using Panel = forms::Panel;

  AboutBox() : Form("AboutBox") {}

  Image AboutPlate{*this, "AboutPlate"};
  Label AboutMaker{*this, "AboutMaker"};
  Label AboutModel{*this, "AboutModel"};
  Panel AboutPanel{*this, "AboutPanel"};  ///< sunk metal with the disc on it
  Image AboutDisc{*this, "AboutDisc"};

  Panel AboutGlass{*this, "AboutGlass"};  ///< upper pane: name, version, what it runs on
  Label AboutName{*this, "AboutName"};
  Label AboutWords{*this, "AboutWords"};
  Label AboutVersionHead{*this, "AboutVersionHead"};
  Label AboutVersion{*this, "AboutVersion"};
  ControlArray<Label, kAboutLines> AboutHead{*this, "AboutHead"};
  ControlArray<Label, kAboutLines> AboutText{*this, "AboutText"};

  Panel AboutGlass2{*this, "AboutGlass2"};  ///< lower pane: licences
  Label AboutLicencesHead{*this, "AboutLicencesHead"};
  ControlArray<Label, std::size(kLicences)> AboutPart{*this, "AboutPart"};
  ControlArray<Label, std::size(kLicences)> AboutLicence{*this, "AboutLicence"};  ///< lead to the licences' texts

  Image AboutClose{*this, "AboutClose"};
  Label AboutCloseCaption{*this, "AboutCloseCaption"};
  Image AboutExit{*this, "AboutExit"};

 protected:
  std::span<const forms::DesignRow> design() const override;
  std::span<const forms::PartnerRow> partners() const override;
  std::span<const forms::AreaRow> areas() const override;
};

}  // namespace orvanta
