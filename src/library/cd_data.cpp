// Opening, filling and closing the CD Data window, and its keys.
#include "library/cd_data.h"

#include "base/text.h"
#include "base/times.h"
#include "library/cd_data_fields.h"
#include "library/html_export.h"
#include "library/list_text.h"
#include "library/print_record.h"
#include "library/upward.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/ports.h"
#include "platform/ports/processes.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kOutOfSight = 100;  ///< twips past the screen's right edge
constexpr int16_t kUnseen = 3;    ///< cddbMode of a save without a person
constexpr int kMostToSubmit = 100;
constexpr size_t kFileName = 11;  ///< of a disc's file, with its suffix
constexpr int kClearedRows = 50;

std::vector<std::string> ratings() {
  std::vector<std::string> all;
  for (int rating = 1; rating <= 10; ++rating) all.push_back(std::to_string(rating));
  return all;
}

/// "Nov 21, 2026 3:05 PM"; "" for a file that is not there.
std::string enteredText(const std::optional<FileTime>& time) {
  static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  if (!time) return {};
  const int hour = time->hour % 12 == 0 ? 12 : time->hour % 12;
  return std::string(kMonths[time->month - 1]) + " " + std::to_string(time->day) + ", " + std::to_string(time->year) + " " +
         std::to_string(hour) + ":" + padded(time->minute, 2) + (time->hour < 12 ? " AM" : " PM");
}

}  // namespace

CdData::CdData(Ports& ports, CdRecords& records, Genres& genres, HtmlExport& html, RecordPrint& print, acdtabs& form, CDForm& faceplate,
               SharedState& state, LibraryUpward& upward)
    : ports_(ports),
      records_(records),
      genres_(genres),
      html_(html),
      print_(print),
      form_(form),
      faceplate_(faceplate),
      state_(state),
      upward_(upward) {
  form.setEvents(this);
}

void CdData::openFromFaceplate() {
  if (state_.disc.discKey.empty()) return;
  state_.library.cddbMode = 0;
  state_.settings.editorFromFaceplate = kOn;
  ports_.screen.setPointer(Pointer::Hourglass);
  state_.disc.discInfo[2] = std::to_string(state_.disc.trackCount);
  form_.show(ports_.desktop);
}

void CdData::openUnseen() {
  if (state_.disc.discKey.empty()) return;
  state_.library.cddbMode = kUnseen;
  state_.settings.editorFromFaceplate = kOff;
  form_.load(ports_.desktop);
}

// ---- load

void CdData::load() {
  const bool byPerson = state_.settings.editorFromFaceplate == kOn;
  if (byPerson) {
    upward_.hideFaceplate();
  } else {
    form_.Command11.visible = form_.Command12.visible = false;
  }
  savedTitles_ = state_.disc.trackTitles;
  state_.library.trackLyrics.fill("");
  const std::string path(trim(state_.disc.cdFilePath));
  form_.caption = "CD Data [" + path.substr(path.size() < kFileName ? 0 : path.size() - kFileName) + "]";
  form_.Label23.caption = enteredText(ports_.files.modified(path));
  if (trim(state_.disc.extraInfo[kMediaType]).empty()) state_.disc.extraInfo[kMediaType] = "Audio CD";
  place();
  form_.Text5.caption = std::to_string(state_.disc.timeCorrection);
  currentTab_ = MusicInfo;
  form_.SSFrame1.top = kTabTop;
  form_.SSFrame4.top = form_.Frame3D1.top = kTabAway;
  records_.readCdRecord();
  form_.Label13.caption = totalTime();
  fillProposals();
  fillFields();
  fillTrackList(form_.List1, state_.disc);
  fillLyricsList(form_.List2, state_.disc, state_.library);
  genres_.readUserCaptions();
  showUserCaptions();
}

void CdData::place() {
  if (state_.library.cddbMode == kUnseen) {
    form_.left = ports_.screen.widthTwips() + kOutOfSight;
    return;
  }
  form_.left = std::max(0, (ports_.screen.widthTwips() - form_.width) / 2);
  form_.top = std::max(0, (ports_.screen.heightTwips() - form_.height) / 2);
}

/// A device that gives no length: the sum of the tracks, and three seconds for what lies between.
std::string CdData::totalTime() const {
  constexpr int kBetween = 3;
  const DiscState& disc = state_.disc;
  if (leadingNumber(disc.discLengthText) >= 1 || disc.trackLengths[2].empty()) return disc.discLengthText;
  int sum = kBetween;
  for (int track = 1; track <= listedTracks(disc); ++track) sum += secondsOf(disc.trackLengths[static_cast<size_t>(track)]);
  const std::string hour = sum >= 3600 ? "1:" : "";
  if (sum >= 3600) sum -= 3600;
  return hour + padded(sum / 60, 2) + ":" + padded(sum % 60, 2);
}

void CdData::fillProposals() {
  // Genres are typed freely; their list comes with the first one added.
  form_.stloc.setItems({"Home", "Car", "On Loan", "Computer", "Other"});
  form_.mediatype.setItems({"Audio CD", "Enhanced Audio CD", "DVD", "MD", "DCC", "CD-R", "LD", "LP", "Cassette", "DAT", "Tape", "VHS Tape",
                            "Beta Tape", "Other"});
  form_.recdtype.setItems({"Live", "Remastered", "Studio"});
  form_.reccode.setItems({"AAD", "ADD", "DAD", "DDD"});
  for (auto* combo : {&form_.mrat, &form_.rrat, &form_.mcrat, &form_.pcrat, &form_.crat}) combo->setItems(ratings());
}

void CdData::fillFields() {
  const DiscState& disc = state_.disc;
  const bool counted = disc.trackCount >= 1 && disc.trackCount <= 99;
  form_.Label12.caption = std::to_string(disc.trackCount);
  form_.Label10.visible = form_.Label12.visible = counted;
  form_.Text4.caption = disc.discTitle;
  form_.Text2.caption = disc.discArtist;
  form_.Text3.caption = disc.linerNotes;
  form_.Text7.caption = disc.discInfo[3];
  form_.Text6.caption = disc.discInfo[4];
  form_.cat.caption = disc.discInfo[5];
  for (const ExtraField& field : extraFields(form_)) field.control.caption = extraField(disc, field.index);
  if (disc.enhancedCd > 0) {
    form_.mediatype.choose(disc.enhancedCd);
  } else {
    form_.mediatype.caption = extraField(disc, kMediaType);
    if (trim(form_.mediatype.caption.get()).empty()) form_.mediatype.choose(0);
  }
}

void CdData::showUserCaptions() {
  const auto& captions = state_.library.userCaptions;
  form_.Label37.caption = captions[0].empty() ? "User Defined 1:" : captions[0];
  form_.Label51.caption = captions[1].empty() ? "User Defined 2:" : captions[1];
}

void CdData::activate() {
  currentRow_ = -1;
  listMouseDown_ = false;
  ports_.screen.setPointer(Pointer::Normal);
  updateSubmitKey();
  if (form_.activeControl() == nullptr) form_.setFocus(form_.Text2);
}

/// It wants artist, title, and a first row with something in it.
void CdData::updateSubmitKey() {
  constexpr size_t kLeast = 4;
  const std::string title(trim(form_.Text4.caption.get()));
  const bool named = !title.empty() && !trim(form_.Text2.caption.get()).empty() && title != "Please Wait...";
  const bool tracks = characterCount(form_.List1.row(0)) > kLeast;
  form_.Command12.enabled = named && tracks && upward_.mailSenderKnown() && state_.library.cddbMode != 9;
}

void CdData::unload() {
  if (state_.settings.editorFromFaceplate == kOn) upward_.showFaceplate();
}

void CdData::close() {
  form_.unload();
  ports_.screen.setPointer(Pointer::Normal);
}

// ---- keys

void CdData::mouseDown(forms::Control* control, const forms::Mouse& /*mouse*/) {
  if (control == &form_.List1 || control == &form_.List2) listMouseDown_ = true;
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
    Command1_Click();
  } else if (name == "Command2") {
    cancel();
  } else if (name == "Command3") {
    upward_.showHelp(kHelpTopic);
  } else if (name == "Command4") {
    print_.run();
  } else if (name == "Command5") {
    clear();
  } else if (name == "Command6") {
    ports_.processes.start({{joinPath(state_.process.windowsDir, "orvlib"), "LX"}, state_.settings.appDir, WindowStyle::Normal});
  } else if (name == "Command7") {
    html_.run();
  } else if (name == "Command11") {
    state_.disc.trackLengths[101] = trim(form_.Label13.caption.get());
    upward_.openCddb();
  } else if (name == "Command12") {
    submit();
  } else if (name == "Command13") {
    genres_.askUserCaptions();
    showUserCaptions();
  } else if (name == "Command14") {
    upward_.lookForLyrics();
    ports_.screen.setPointer(Pointer::Normal);
  } else if (name == "addGenreKey") {
    addGenre();
  }
}

void CdData::addGenre() {
  const auto genre = genres_.addGenre();
  if (!genre) return;
  currentRow_ = -1;
  state_.library.askOnCancel = state_.library.dataDirty = kOn;
  genres_.fillGenres(form_.cat);
  form_.cat.caption = *genre;
}

/// The titles are put back first, so that what stays open after a No still has what was typed in its rows.
void CdData::cancel() {
  for (size_t track = 1; track <= 50; ++track) state_.disc.trackTitles[track] = savedTitles_[track];
  if (state_.library.askOnCancel == kOn || currentRow_ > 0) {
    form_.enabled = false;
    const bool lose = ports_.dialogs.askYesNo("Orvanta", "Lose Changes?");
    form_.enabled = true;
    if (!lose) return;
  }
  state_.library.askOnCancel = kOff;
  close();
}

void CdData::clear() {
  form_.Command12.enabled = false;
  for (forms::TextBox* box :
       {&form_.Text1, &form_.Text2, &form_.Text3, &form_.Text4, &form_.Text6, &form_.Text7, &form_.Text8, &form_.Text10, &form_.Text11,
        &form_.Text13, &form_.Text15, &form_.Text16, &form_.Text18, &form_.upcnum, &form_.cdcost}) {
    box->caption = "";
  }
  for (forms::Combo* combo :
       {&form_.cat, &form_.mediatype, &form_.stloc, &form_.recdtype, &form_.mrat, &form_.rrat, &form_.mcrat, &form_.pcrat, &form_.crat}) {
    combo->caption = "";
  }
  for (int row = 0; row < kClearedRows; ++row) {
    state_.disc.trackTitles[static_cast<size_t>(row) + 1].clear();
    form_.List1.set(row, "");
    form_.List2.set(row, "");
  }
  for (auto& field : state_.disc.extraInfo) field.clear();
  state_.library.trackLyrics.fill("");
  state_.library.dataDirty = state_.library.askOnCancel = kOn;
}

/// Lyrics go along from their rows' fourth character on; from row 10 on that is the TAB, which receivers know.
void CdData::submit() {
  if (state_.disc.trackCount > kMostToSubmit) {
    ports_.dialogs.message(BoxStyle::Critical, "Orvanta", "Unable To Submit - Track Limit Exceeded For CDDB Submission From Orvanta");
    return;
  }
  for (forms::TextBox* box : {&form_.Text2, &form_.Text4}) box->caption = withoutControls(box->caption.get());
  ports_.screen.setPointer(Pointer::Hourglass);
  for (int row = 0; row < form_.List2.count() && row < 50; ++row) {
    const std::string& text = form_.List2.row(row);
    if (!text.empty()) state_.disc.extraInfo[static_cast<size_t>(row) + 13] = trim(text.size() > 3 ? text.substr(3) : "");
  }
  upward_.submitToCddb();
}

}  // namespace orvanta
