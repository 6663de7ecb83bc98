// The keys of the CD Data window.
#include "base/text.h"
#include "library/cd_data.h"
#include "library/disc_print.h"
#include "library/html_export.h"
#include "library/upward.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/processes.h"
#include "platform/ports/screen.h"
#include "platform/ports/system.h"

namespace orvanta {

namespace {

constexpr int kMostToSubmit = 100;
constexpr int kClearedRows = 50;
constexpr const char* kLoseChanges = "Lose Changes?";

}  // namespace

void CdData::mouseDown(forms::Control* control, const forms::Mouse& /*mouse*/) {
  if (control == &form_.List1 || control == &form_.List2) visit_.listMouseDown = true;
}

void CdData::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == nullptr || mouse.button != forms::MouseButton::Left) return;
  if (control->name() == "CommandT") {
    showTab(static_cast<int16_t>(control->index()));
  } else {
    pressed(control->name());
  }
}

void CdData::pressed(const std::string& name) {
  if (name == "Command1") {
    ok();
  } else if (name == "Command2") {
    cancel();
  } else if (name == "Command3") {
    upward_.showHelp(kHelpTopic);
  } else if (name == "Command4") {
    if (takeEntries()) on_.print.run(disc_);
  } else if (name == "Command5") {
    clear();
  } else if (name == "Command6") {
    startLibrary();
  } else if (name == "Command7") {
    if (takeEntries()) on_.html.run(disc_);
  } else if (name == "Command11") {
    disc_.trackLengths[101] = trim(form_.Label13.caption.get());
    upward_.openCddb();
  } else if (name == "Command12") {
    submit();
  } else if (name == "Command13") {
    askCaptions();
  } else if (name == "Command14") {
    upward_.lookForLyrics();
    ports_.screen.setPointer(Pointer::Normal);
  } else if (name == "addGenreKey") {
    addGenre();
  }
}

void CdData::addGenre() {
  const auto genre = on_.genres.addGenre();
  if (!genre) return;
  state_.library.askOnCancel = state_.library.dataDirty = true;
  changedByPerson();
  on_.genres.fillGenres(form_.cat);
  form_.cat.caption = *genre;
}

void CdData::startLibrary() {
  const std::string program = ports_.system.companion("orvlib");
  if (ports_.processes.start({{program, "LX"}, state_.settings.appDir, WindowStyle::Normal}) != 0) return;
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta", "The library " + program + " could not be started.");
}

void CdData::askCaptions() {
  on_.genres.askUserCaptions();
  showUserCaptions();
}

bool CdData::ask(const std::string& question) {
  // Under another window of its own it takes no input afterwards either.
  const bool before = form_.enabled;
  form_.enabled = false;
  const bool yes = ports_.dialogs.askYesNo(BoxStyle::Warning, "Orvanta", question);
  form_.enabled = before;
  return yes;
}

/// By a person. What is typed for a row is taken for it; what is typed for none cannot be, and is not dropped unasked.
void CdData::ok() {
  if (!takeEntries()) return;
  Command1_Click();
}

bool CdData::takeEntries() {
  takeEntry(titles_);
  takeEntry(lyrics_);
  return !entryWaits() || ask("What was typed below the list belongs to no track.\n\nGo on without it?");
}

void CdData::cancel() {
  if ((state_.library.askOnCancel || entryWaits()) && !ask(kLoseChanges)) return;
  state_.library.askOnCancel = false;
  close();
}

bool CdData::mayBeLost() {
  if (!openForPerson() || !visit_.changed) return true;
  if (!ask(kLoseChanges)) return false;
  dropDraft();
  return true;
}

void CdData::clear() {
  beginFill();
  form_.Command12.enabled = false;
  for (forms::TextBox* box : {&form_.Text2, &form_.Text3, &form_.Text4, &form_.Text6, &form_.Text7, &form_.Text10, &form_.Text11,
                              &form_.Text13, &form_.Text15, &form_.Text16, &form_.Text18, &form_.upcnum, &form_.cdcost}) {
    box->caption = "";
  }
  for (forms::Combo* combo :
       {&form_.cat, &form_.mediatype, &form_.stloc, &form_.recdtype, &form_.mrat, &form_.rrat, &form_.mcrat, &form_.pcrat, &form_.crat}) {
    combo->caption = "";
  }
  for (int row = 0; row < kClearedRows; ++row) {
    disc_.trackTitles[static_cast<size_t>(row) + 1].clear();
    form_.List1.set(row, "");
    form_.List2.set(row, "");
  }
  for (auto& field : disc_.extraInfo) field.clear();
  state_.library.trackLyrics.fill("");
  state_.library.dataDirty = state_.library.askOnCancel = true;
  changedByPerson();
}

void CdData::submit() {
  if (disc_.trackCount > kMostToSubmit) {
    ports_.dialogs.message(BoxStyle::Critical, "Orvanta", "Unable To Submit - Track Limit Exceeded For CDDB Submission From Orvanta");
    return;
  }
  if (!takeEntries()) return;
  for (forms::TextBox* box : {&form_.Text2, &form_.Text4}) box->caption = withoutControls(trim(box->caption.get()));
  upward_.submitToCddb();
}

}  // namespace orvanta
