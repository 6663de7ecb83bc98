// What the box tells, its looks, the ways out of it.
#include "shell/about.h"

#include "base/text.h"
#include "faceplate/display_colours.h"
#include "platform/ports/facts.h"
#include "platform/ports/screen.h"
#include "shell/upward.h"
#include "state/settings.h"
#include "windows/about.h"
#include "windows/cdform.h"

namespace orvanta {

About::About(const ShellPorts& ports, AboutBox& form, const CDForm& faceplate, const Settings& settings, ShellUpward& upward)
    : ports_(ports), form_(form), faceplate_(faceplate), settings_(settings), upward_(upward) {
  form_.setEvents(this);
}

/// One that is open comes to the front, where it stands.
void About::show() {
  if (!form_.loaded()) form_.smallFonts = faceplate_.smallFonts;
  form_.show(ports_.desktop);
}

/// ENTER closes it as it opened.
void About::load() {
  grip_.drop();
  place();
  colour();
  tellFacts();
  form_.firstStop = &form_.AboutClose;
  form_.setFocus(form_.AboutClose);
}

/// In the middle of the screen that the deck stands on.
void About::place() {
  const WorkArea on =
      ports_.screen.workAreaOf({faceplate_.left, faceplate_.top, faceplate_.left + faceplate_.width, faceplate_.top + faceplate_.height});
  form_.left = on.twips.left + (on.width() - form_.width) / 2;
  form_.top = on.twips.top + (on.height() - form_.height) / 2;
}

/// The deck's metal and panels, and its display.
void About::colour() {
  form_.backColor = faceplate_.backColor;
  form_.AboutMaker.foreColor = faceplate_.Label1.foreColor;
  form_.AboutMaker.backColor = faceplate_.Label1.backColor;
  form_.AboutModel.foreColor = faceplate_.Label41.foreColor;
  form_.AboutPanel.backColor = faceplate_.Panel3D3.backColor;
  for (auto& licence : form_.AboutLicence) {
    forms::Font font = licence.font;
    font.underline = true;
    licence.font = font;
  }
  if (!lcdFont(ports_.screen, settings_)) form_.AboutVersion.font = forms::Font{"Arial", 16, true};
  if (settings_.lcdCustom != 1) return;
  for (forms::Panel* pane : {&form_.AboutGlass, &form_.AboutGlass2}) tintGlass(*pane, settings_);
  for (forms::Control* control : form_.controls()) {
    if (control->kind() == forms::Kind::Label && (control->parent == &form_.AboutGlass || control->parent == &form_.AboutGlass2))
      control->foreColor = settings_.lcdFore;
  }
}

void About::tellFacts() {
  const Facts facts = ports_.facts.facts();
  form_.AboutVersion.caption = facts.version;
  const auto line = [this](AboutLine which, const std::string& text) {
    forms::Label& label = form_.AboutText[which];
    label.caption = fitted(text, label);
    label.toolTip = text;
  };
  line(AboutSystem, facts.system);
  line(AboutToolkit, facts.toolkit);
  line(AboutSound, facts.sound);
  line(AboutDrive, facts.drive);
  for (size_t i = 0; i < std::size(kLicences); ++i) {
    form_.AboutPart[i].caption = nameAndUse(kLicences[i]);
    form_.AboutLicence[i].caption = kLicences[i].licence;
    form_.AboutLicence[i].toolTip = kLicences[i].address;
  }
}

/// A path too long for its line keeps its end, which tells more than its beginning: whole words of it, if one fits.
std::string About::fitted(const std::string& text, const forms::Label& label) const {
  const forms::Font& font = label.font;
  const auto fits = [&](const std::string& line) {
    return ports_.screen.textWidthTwips(line, font.family, font.points, font.bold) <= label.width;
  };
  if (fits(text)) return text;
  for (size_t at = text.find_first_of(" /", 1); at != std::string::npos; at = text.find_first_of(" /", at + 1)) {
    const std::string line = "..." + text.substr(at);
    if (fits(line)) return line;
  }
  std::string end = text;
  while (!end.empty() && !fits("..." + end)) end.erase(0, firstCharacters(end, 1).size());
  return "..." + end;
}

/// Taken by its ground it can be dragged, as the deck can.
void About::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  const bool ground = control == nullptr || !control->tabStop;
  if (ground && mouse.button == forms::MouseButton::Left) grip_.take(mouse);
}

void About::mouseMove(forms::Control* /*control*/, const forms::Mouse& mouse) { grip_.drags(form_, mouse); }

void About::mouseUp(forms::Control* /*control*/, const forms::Mouse& /*mouse*/) { grip_.drop(); }

void About::click(forms::Control& control) {
  for (size_t i = 0; i < std::size(kLicences); ++i) {
    if (&control == &form_.AboutLicence[i]) upward_.showPage(kLicences[i].address);
  }
  if (&control == &form_.AboutClose || &control == &form_.AboutExit) form_.unload();
}

bool About::keyDown(const forms::KeyPress& key) {
  if (key.code != forms::key::kEscape) return false;
  form_.unload();
  return true;
}

void About::closeAsked() { form_.unload(); }

}  // namespace orvanta
