// Opening, tabs and closing of the CDDB's window, and its keys.
#include "cddb/cddb_window.h"

#include <algorithm>

#include "base/text.h"
#include "cddb/upward.h"
#include "library/cd_data.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kLookInterval = 100;  ///< milliseconds
constexpr int kOutOfSight = 100;    ///< twips past the screen's right edge
constexpr const char* kReadyText =
    "Establish your Internet Connection, then select \"Start Search\" below to find the Audio CD in the CDDB Online.";

bool ready(const cddbmain& form) { return form.inetstatus.caption.get().rfind("Establish", 0) == 0; }

}  // namespace

CddbWindow::CddbWindow(const CddbPorts& ports, CdData& cdData, acdtabs& editor, cddbmain& form, CDForm& faceplate, SharedState& state,
                       CddbUpward& upward)
    : ports_(ports),
      cdData_(cdData),
      editor_(editor),
      form_(form),
      faceplate_(faceplate),
      state_(state),
      upward_(upward),
      Timer1_(ports.clock.makeTimer([this] { timer1_timer(); })) {
  form.setEvents(this);
}

void CddbWindow::open() {
  if (byItself()) endSession();
  form_.show(ports_.desktop);
}

void CddbWindow::checkDiscId(DiscIdTaker& taker) {
  endSession();
  taker_ = &taker;
  state_.library.cddbMode = kSubmission;
  form_.load(ports_.desktop);
  Command8_Click();
}

void CddbWindow::giveUpDiscId() {
  if (submitting()) endSession();
}

// ---- the automatic lookup

void CddbWindow::discKnown() {
  discKnown_ = true;
  Timer1_->setInterval(kLookInterval);
}

void CddbWindow::timer1_timer() {
  if (!form_.loaded()) {
    lookUpWhenFree();
  } else if (automatic() && !boxOpen_ && session_ == nullptr && ready(form_)) {
    form_.Command8.enabled = true;
    Command8_Click();
  }
}

void CddbWindow::lookUpWhenFree() {
  if (!discKnown_ || (lookedUp_ && !lookupWanted_)) {
    Timer1_->setInterval(0);
    return;
  }
  if (cdData_.openForPerson() || !upward_.lookupMayStart()) return;
  lookedUp_ = true;
  const bool wanted = std::exchange(lookupWanted_, false);
  readSettings();
  const bool unknown = trim(faceplate_.Label12.caption.get()).empty() && state_.disc.trackTitles[1].empty();
  const bool able = settings_.cddbPort > 0 && !trim(settings_.cddbSiteName).empty() && !trim(settings_.emailUser).empty();
  if (!able && wanted) {
    state_.library.cddbMode = kResting;
    open();
  }
  if (!able || !(wanted || (unknown && settings_.autoConnect))) return;
  upward_.closeTrackList();
  state_.disc.searching = true;
  upward_.showSearching(true);
  state_.library.cddbMode = kAutomatic;
  form_.show(ports_.desktop);
}

/// With CD Data open it is that window's disc that is looked up, where its user sees it.
void CddbWindow::cddbdnld() {
  if (openForPerson() || automatic()) return;
  if (cdData_.openForPerson()) {
    open();
  } else {
    lookupWanted_ = true;
    Timer1_->setInterval(kLookInterval);
  }
}

void CddbWindow::cddbcanz() {
  if (automatic() && form_.loaded()) Command3_Click();
}

// ---- load and close

void CddbWindow::load() {
  unseen_ = byItself();
  sitesUpdate_ = false;
  record_ = {};
  readSettings();
  if (settings_.useCddbp) listener_ = ports_.net.listen(kListenPort);
  form_.Command12.visible = form_.Text6.visible = form_.Label32.visible = false;
  clrcon();
  wait(false);
  showSettings();
  form_.parked = unseen_;
  if (unseen_) {
    form_.left = ports_.screen.widthTwips() + kOutOfSight;
  } else {
    centre();
    editor_.enabled = false;
  }
  // Without settings that are complete there is nothing to search with.
  const bool known = settings_.complete();
  form_.CommandT[Online].enabled = known || unseen_;
  form_.Command10.visible = known;
  showTab(known || unseen_ ? Online : Setup);
  Timer1_->setInterval(kLookInterval);
}

void CddbWindow::activate() {
  if (activeTab_ == Setup && form_.activeControl() == nullptr) form_.setFocus(form_.Text5);
}

void CddbWindow::unload() {
  session_.reset();
  listener_.reset();
  editor_.enabled = true;
}

/// Where a lookup out of sight finds something to choose, it comes into sight.
void CddbWindow::centre() {
  form_.parked = unseen_ = false;
  form_.left = std::max(0, (ports_.screen.widthTwips() - form_.width) / 2);
  form_.top = std::max(0, (ports_.screen.heightTwips() - form_.height) / 2);
}

/// Every end of a lookup: nothing of it stays, and the next one starts afresh.
void CddbWindow::endSession() {
  if (sitesUpdate_) lists().giveUpUpdate();
  sitesUpdate_ = false;
  session_.reset();
  const bool wasAutomatic = automatic();
  if (submitting()) editor_.Label25.visible = false;
  state_.library.cddbMode = kResting;
  form_.unload();
  ports_.screen.setPointer(Pointer::Normal);
  upward_.showSearching(false);
  if (wasAutomatic && std::exchange(state_.disc.searching, false)) upward_.readTextsAgain();
}

void CddbWindow::backToEditor() {
  endSession();
  if (!cdData_.openForPerson()) return;
  cdData_.updateSubmitKey();
  editor_.show(ports_.desktop);
}

void CddbWindow::Command3_Click() {
  if (session_ != nullptr) session_->leave();
  backToEditor();
}

void CddbWindow::Command1_Click() {
  if (session_ != nullptr) session_->leave();
  session_.reset();
  wait(false);
  if (takeSetup() && writeSetup()) backToEditor();
}

/// The lookup's timer stays quiet while a box is open.
void CddbWindow::box(BoxStyle style, const char* title, const std::string& text) {
  boxOpen_ = true;
  ports_.screen.setPointer(Pointer::Normal);
  ports_.dialogs.message(style, title, text);
  boxOpen_ = false;
}

// ---- tabs

void CddbWindow::showTab(int16_t tab) {
  const std::vector<forms::Panel*> frames[] = {
      {&form_.Frame5, &form_.Frame4, &form_.Frame6}, {&form_.Frame1, &form_.Frame8}, {&form_.Frame9, &form_.Frame10}};
  for (int16_t each = Online; each <= About; ++each) {
    for (forms::Panel* frame : frames[each]) frame->left = each == tab ? kFrameShown : kFrameAway;
    form_.CommandT[static_cast<size_t>(each)].visible = each != tab;
  }
  activeTab_ = tab;
  if (tab != Online) return;
  form_.Command8.enabled = true;
  if (ready(form_)) return;
  if (session_ != nullptr && !sitesUpdate_) {
    session_->leave();
    session_.reset();
    wait(false);
  }
  clrcon();
}

void CddbWindow::clrcon() {
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&form_.Command7, &form_.Command9, &form_.Label19, &form_.Label25, &form_.Label23,
                                              &form_.Label26, &form_.Label29, &form_.Label30, &form_.Label4}) {
    control->enabled = false;
  }
  for (forms::ListBox* list : {&form_.List1, &form_.List2, &form_.List3}) list->clear();
  form_.linernote2.caption = form_.Label24.caption = form_.Label27.caption = "";
  form_.inetstatus.caption = kReadyText;
  form_.Label29.caption = "Total Titles Found:";
}

// ---- keys

void CddbWindow::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == nullptr || mouse.button != forms::MouseButton::Left || !mouse.over) return;
  if (control->name() == "CommandT") {
    showTab(static_cast<int16_t>(control->index()));
  } else if (control->name() == "Option2") {
    chooseProtocol(control->index() == 1);
  } else {
    pressed(control->name());
  }
}

void CddbWindow::pressed(const std::string& name) {
  static const std::pair<const char*, void (CddbWindow::*)()> kKeys[] = {
      {"Command1", &CddbWindow::Command1_Click}, {"Command3", &CddbWindow::Command3_Click}, {"Command7", &CddbWindow::Command7_Click},
      {"Command8", &CddbWindow::Command8_Click}, {"Command9", &CddbWindow::Command9_Click}, {"Command10", &CddbWindow::Command10_Click}};
  for (const auto& [key, handler] : kKeys) {
    if (name == key) return (this->*handler)();
  }
  if (name == "Command12") {
    form_.Text6.caption = cddb_defaults::kSubmissions;
  } else if (name == "Command13") {
    upward_.showHelp(kHelpTopic);
  } else if (name == "Label1") {
    upward_.showPage("https://gnudb.org");
  } else if (name == "Label13") {
    upward_.showPage("https://en.wikipedia.org/wiki/CDDB");
  } else if (name == "Check1") {
    form_.Check1.value = !form_.Check1.value;
  } else if (name == "Check2") {
    form_.Check2.value = !form_.Check2.value;
    showProtocol();
  }
}

void CddbWindow::click(forms::Control& control) {
  if (&control == &form_.List2 && form_.List2.listIndex() >= 0) form_.Command9.enabled = true;
}

bool CddbWindow::keyDown(const forms::KeyPress& key) {
  constexpr int kF5 = forms::key::kF1 + 4;
  constexpr int kF6 = forms::key::kF1 + 5;
  if (key.code == forms::key::kEscape) {
    Command3_Click();
  } else if (key.code == forms::key::kF1 || key.code == forms::key::kHelp) {
    upward_.showHelp(kHelpTopic);
  } else if (key.control && key.code == kF5) {
    form_.Label32.visible = form_.Text6.visible = form_.Command12.visible = true;
  } else if (key.control && key.code == kF6 && form_.Text6.visible) {
    form_.Text6.caption = cddb_defaults::kTestSubmissions;
  } else {
    const bool enterAlone = key.code == forms::key::kEnter && !key.shift && !key.control && !key.alt;
    return enterAlone && form_.activeControl() != nullptr && enter(*form_.activeControl());
  }
  return true;
}

}  // namespace orvanta
