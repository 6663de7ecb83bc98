// The CDDB Online tab: a search from its first question to the record on show.
#include "base/log.h"
#include "base/text.h"
#include "cddb/cddb_window.h"
#include "cddb/wire_text.h"
#include "library/cd_data.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr const char* kTitle = "Orvanta CDDB Online Retrieval";
constexpr const char* kNotFound =
    "Information for the Audio CD in your drive not found in the CDDB, this may be a great time to make a submission!";

std::string noHost(bool cddbp) {
  return std::string("Unable to communicate with host ") + (cddbp ? "CDDBP" : "HTTP") +
         " server; either you are not connected to the Internet or the host server is busy.";
}

}  // namespace

/// A reply is due, or not any more.
void CddbWindow::wait(bool due) {
  form_.busy.visible = due;
  ports_.screen.setPointer(due ? Pointer::Hourglass : Pointer::Normal);
}

/// Of the disc whose texts are asked for: CD Data keeps its own, whatever is in the drive by now.
TrackTable CddbWindow::trackTable() const {
  const DiscState& disc = cdData_.openForPerson() ? cdData_.disc() : state_.disc;
  return {disc.trackCount, disc.trackLengths, disc.trackFrames};
}

void CddbWindow::Command8_Click() {
  if (!setup_.settings().complete()) {
    wait(false);
    showBox(ports_, BoxStyle::Critical, "Orvanta CDDB Online Search", kIncomplete);
    if (byItself()) endSession();
    return;
  }
  logLine("cddb", "search");
  // Old matches are those of a connection that has gone.
  form_.List2.clear();
  form_.Command9.enabled = false;
  setup_.giveUpUpdate();
  session_.reset();
  wait(true);
  form_.inetstatus.caption = "Attempting to Connect to CDDB Server...";
  form_.inetstatus.refresh();
  session_ = startSession(ports_.net, setup_.settings(), trackTable(), submitting() ? Purpose::DiscId : Purpose::Lookup, *this);
}

void CddbWindow::sessionStatus(const std::string& text) {
  form_.inetstatus.caption = text;
  form_.inetstatus.refresh();
  if (!submitting() || text != kCheckingDiscId) return;
  editor_.Label25.caption = text;
  editor_.Label25.refresh();
}

/// The mail has its own window by now, which stays on top.
void CddbWindow::discIdKnown(const std::string& discId) {
  taker_->discIdArrived(discId);
  if (session_ != nullptr) session_->leave();
  endSession();
}

void CddbWindow::tableRefused(const std::string& serverLine) {
  wait(false);
  showBox(ports_, BoxStyle::Critical, "Orvanta", withReason("Unable to connect to the Internet", serverLine));
  if (byItself()) endSession();
}

void CddbWindow::discNotFound(const std::string& serverLine) {
  wait(false);
  showBox(ports_, BoxStyle::Information, kTitle, withReason(kNotFound, serverLine));
  form_.inetstatus.caption = "Audio CD not found in the CDDB";
  if (automatic()) endSession();
}

void CddbWindow::matchesFound(const QueryReply& reply) {
  const Road& road = session_->road();
  const bool single = reply.total == 1;
  const bool exact = reply.found == Found::Exact;
  form_.Label29.enabled = form_.Label30.enabled = true;
  form_.Label29.caption = exact    ? "Exact Match Found"
                          : single ? "Total Titles Found: 1"
                                   : "Total Titles Found:" + std::to_string(reply.total);
  form_.inetstatus.caption = single ? "Audio CD found in the CDDB" : "Matches found in the CDDB...";
  form_.List2.clear();
  for (const std::string& row : reply.rows) form_.List2.add(row);
  form_.Command8.enabled = !exact;
  form_.Command9.enabled = true;
  if (single) form_.List2.setListIndex(0);
  if (exact || (single && road.readsSingle)) {
    Command9_Click();
    return;
  }
  wait(false);
  if (automatic() && (!single || road.parksSingle)) {
    centre();
    form_.show(ports_.desktop);
  }
}

/// Extended texts stay: a second record's are added to them.
void CddbWindow::Command9_Click() {
  // The record of another match is still due: it would be taken for this one's.
  if (session_ != nullptr && session_->due()) return;
  form_.List1.clear();
  form_.Label24.caption = form_.Label27.caption = form_.linernote2.caption = "";
  const int row = form_.List2.listIndex();
  if (row < 0 || session_ == nullptr) return;
  const Match match = matchOfRow(form_.List2.row(row));
  matchCategory_ = match.category;
  wait(true);
  session_->retrieve(match);
}

void CddbWindow::recordArrived(const std::string& bytes) {
  readRecord(bytes, session_->road(), record_);
  const std::string first = lineAsText(std::string_view(bytes).substr(0, bytes.find('\n')));
  const std::string refusal = replyCode(first) >= kFirstRefusal ? first : "";
  if (automatic() && !record_.tellsAnything()) {
    discNotFound(refusal);
    return;
  }
  showRecord(refusal);
  wait(false);
  if (automatic()) Command7_Click();
}

void CddbWindow::showRecord(const std::string& serverLine) {
  constexpr size_t kLongestRow = 500;  // characters; the whole text is for CD Data
  for (size_t track = 1; track <= record_.count; ++track) {
    const std::string number = std::to_string(track) + ":\t";
    const std::string text = withoutControls(record_.extended[track]);
    form_.List1.add(number + std::string(trim(record_.titles[track])));
    if (record_.hasExtended && !trim(text).empty()) form_.List3.add(number + std::string(firstCharacters(trim(text), kLongestRow)));
  }
  form_.linernote2.caption = record_.notes;
  if (!trim(record_.title).empty()) {
    form_.Label24.caption = " " + record_.title;
    form_.Label27.caption = " " + capitalised(matchCategory_);
  }
  form_.Label4.enabled = form_.Label19.enabled = form_.Label25.enabled = form_.Label23.enabled = form_.Label26.enabled = true;
  form_.inetstatus.caption = serverLine.empty() ? "CDDB Online Search Complete" : "CDDB Online Search Complete: " + serverLine;
  form_.inetstatus.refresh();
  form_.Command9.enabled = false;
  form_.Command7.enabled = record_.tellsAnything();
}

/// An empty page: nothing to tell a person, but what nobody sees must not wait for ever.
void CddbWindow::nothingArrived() {
  wait(false);
  if (byItself()) sessionFailed("");
}

void CddbWindow::sessionFailed(const std::string& reason) {
  const bool cddbp = setup_.settings().useCddbp || setup_.updating();
  wait(false);
  if (!cddbp) form_.inetstatus.caption = "Unable to communicate with host";
  showBox(ports_, BoxStyle::Critical, kTitle, withReason(noHost(cddbp), reason));
  backToEditor();
}

// ---- the list of servers

void CddbWindow::Command10_Click() {
  showTab(Online);
  session_.reset();
  wait(true);
  form_.Command8.enabled = false;
  session_ = startSession(ports_.net, setup_.beginUpdate(), {}, Purpose::Sites, *this);
}

void CddbWindow::sitesArrived(const std::string& list) {
  wait(false);
  setup_.finishUpdate(list);
  form_.Command8.enabled = true;
  showTab(Setup);
}

}  // namespace orvanta
