// Opening, tabs and closing of the CDDB's window, and its keys.
#include "cddb/cddb_window.h"

#include <algorithm>
#include <utility>

#include "cddb/upward.h"
#include "library/cd_data.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kStartInterval = 100;  ///< milliseconds
constexpr int kOutOfSight = 100;     ///< twips past the screen's right edge
constexpr const char* kReadyText =
    "Establish your Internet Connection, then select \"Start Search\" below to find the Audio CD in the CDDB Online.";

bool ready(const cddbmain& form) { return form.inetstatus.caption.get().rfind("Establish", 0) == 0; }

}  // namespace

CddbWindow::CddbWindow(const CddbPorts& ports, CdData& cdData, acdtabs& editor, cddbmain& form, SharedState& state, CddbUpward& upward)
    : ports_(ports),
      cdData_(cdData),
      editor_(editor),
      form_(form),
      state_(state),
      upward_(upward),
      setup_(ports, form, state.settings),
      Timer1_(ports.clock.makeTimer([this] { timer1_timer(); })) {
  form.setEvents(this);
}

void CddbWindow::open() {
  if (byItself()) endSession();
  form_.show(ports_.desktop);
}

void CddbWindow::setUp() {
  state_.library.cddbMode = kResting;
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

void CddbWindow::lookUp() {
  upward_.closeTrackList();
  state_.disc.searching = true;
  upward_.showSearching(true);
  state_.library.cddbMode = kAutomatic;
  form_.show(ports_.desktop);
}

/// The search begins once the window stands, and no box is in its way.
void CddbWindow::timer1_timer() {
  if (!automatic() || ports_.dialogs.open() || session_ != nullptr || !ready(form_)) return;
  form_.Command8.enabled = true;
  Command8_Click();
}

void CddbWindow::cddbcanz() {
  if (automatic() && form_.loaded()) Command3_Click();
}

// ---- load and close

void CddbWindow::load() {
  unseen_ = byItself();
  record_ = {};
  setup_.load();
  if (setup_.settings().useCddbp) listener_ = ports_.net.listen(kListenPort);
  clrcon();
  wait(false);
  form_.parked = unseen_;
  if (unseen_) {
    form_.left = ports_.screen.widthTwips() + kOutOfSight;
  } else {
    centre();
    editor_.enabled = false;
  }
  // Without settings that are complete there is nothing to search with.
  const bool known = setup_.settings().complete();
  form_.CommandT[Online].enabled = known || unseen_;
  showTab(known || unseen_ ? Online : Setup);
  if (automatic()) Timer1_->setInterval(kStartInterval);
}

void CddbWindow::activate() {
  if (activeTab_ == Setup && form_.activeControl() == nullptr) form_.setFocus(form_.Text5);
}

void CddbWindow::unload() {
  Timer1_->setInterval(0);
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
  setup_.giveUpUpdate();
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
  forms::Control* const missing = setup_.take();
  if (missing == nullptr) {
    // A file that cannot be written leaves the window with what was typed.
    if (setup_.write()) backToEditor();
    return;
  }
  if (activeTab_ != Setup) showTab(Setup);
  form_.setFocus(*missing);
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
  if (session_ != nullptr && !setup_.updating()) {
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
    setup_.chooseProtocol(control->index() == 1);
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
  if (name == "Command13") {
    upward_.showHelp(kHelpTopic);
  } else if (name == "Label1") {
    upward_.showPage("https://gnudb.org");
  } else if (name == "Label13") {
    upward_.showPage("https://en.wikipedia.org/wiki/CDDB");
  } else {
    setup_.pressed(name);
  }
}

void CddbWindow::click(forms::Control& control) {
  if (&control == &form_.List2 && form_.List2.listIndex() >= 0) form_.Command9.enabled = true;
}

void CddbWindow::edited(forms::Control& control) {
  if (&control == &form_.Combo1) setup_.serverEdited();
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
    return enterAlone && form_.activeControl() != nullptr && setup_.enter(*form_.activeControl());
  }
  return true;
}

}  // namespace orvanta
