// Opening, filling and closing the CD Data window.
#include "library/cd_data.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "base/times.h"
#include "library/cd_data_fields.h"
#include "library/list_text.h"
#include "library/placing.h"
#include "library/upward.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "records/disc_files.h"
#include "records/sheet.h"

namespace orvanta {

namespace {

constexpr int kOutOfSight = 100;  ///< twips past the screen's right edge
constexpr size_t kFileName = 11;  ///< of a disc's file, with its suffix

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

/// Where the transport keys lie on the screen.
forms::Place transportOf(const CDForm& deck) {
  const forms::Image& first = deck.icntla[Previous];
  const forms::Image& last = deck.icntla[Record];
  return {deck.left + first.left, deck.top + first.top, last.left + last.width - first.left, first.height};
}

}  // namespace

CdData::CdData(const LibraryPorts& ports, const CdDataParts& parts, acdtabs& form, const CDForm& faceplate, SharedState& state,
               LibraryUpward& upward)
    : ports_(ports), on_(parts), form_(form), faceplate_(faceplate), state_(state), upward_(upward) {
  form.setEvents(this);
}

void CdData::openFromFaceplate() {
  if (openForPerson()) {
    form_.show(ports_.desktop);
    return;
  }
  if (state_.disc.discKey.empty()) return;
  state_.library.cddbMode = kFromFaceplate;
  state_.library.editorFromFaceplate = true;
  ports_.screen.setPointer(Pointer::Hourglass);
  state_.disc.discInfo[kTrackCount] = std::to_string(state_.disc.trackCount);
  form_.show(ports_.desktop);
  offerDraft();
}

void CdData::openUnseen() {
  if (state_.disc.discKey.empty()) return;
  state_.library.cddbMode = kAutomatic;
  state_.library.editorFromFaceplate = false;
  form_.load(ports_.desktop);
}

// ---- load

void CdData::load() {
  visit_ = {};
  visit_.byPerson = state_.library.editorFromFaceplate && state_.library.cddbMode != kAutomatic;
  visit_.tookPlace = visit_.byPerson && state_.settings.editorFromFaceplate == kOn;
  if (visit_.tookPlace) upward_.hideFaceplate();
  if (!visit_.byPerson) form_.Command11.visible = form_.Command12.visible = false;
  disc_ = state_.disc;
  state_.library.trackLyrics.fill("");
  const std::string path(trim(disc_.cdFilePath));
  form_.caption = "CD Data [" + path.substr(path.size() < kFileName ? 0 : path.size() - kFileName) + "]";
  form_.Label23.caption = enteredText(ports_.files.modified(path));
  if (trim(disc_.extraInfo[kMediaType]).empty()) disc_.extraInfo[kMediaType] = "Audio CD";
  place();
  form_.Text5.caption = std::to_string(disc_.timeCorrection);
  form_.SSFrame1.top = kTabTop;
  form_.SSFrame4.top = form_.Frame3D1.top = kTabAway;
  DiscFiles(ports_.files, disc_.cdFilePath).readTexts(disc_);
  // OK makes the texts that came with the disc the user's own.
  if (!ports_.files.exists(disc_.cdFilePath) && fillFromSheet(disc_, ports_.device.texts())) state_.library.dataDirty = true;
  form_.Label13.caption = totalTime();
  fillProposals();
  fillFields();
  titles_.reset();
  lyrics_.reset();
  fillTrackList(form_.List1, disc_);
  fillLyricsList(form_.List2, disc_, state_.library);
  on_.genres.readUserCaptions();
  showUserCaptions();
  markPlaying();
}

void CdData::beginFill() {
  titles_.reset();
  lyrics_.reset();
}

void CdData::place() {
  form_.parked = state_.library.cddbMode == kAutomatic;
  if (form_.parked) {
    form_.left = ports_.screen.widthTwips() + kOutOfSight;
    return;
  }
  const forms::Place screen{0, 0, ports_.screen.widthTwips(), ports_.screen.heightTwips()};
  forms::Place window = placeOf(form_);
  if (visit_.tookPlace) {
    window.left = (screen.width - window.width) / 2;
    window.top = (screen.height - window.height) / 2;
    window = ontoScreen(window, screen);
  } else {
    window = besideDeck(window, placeOf(faceplate_), screen, {Side::Below, Side::Above, Side::Right, Side::Left}, transportOf(faceplate_));
  }
  form_.left = window.left;
  form_.top = window.top;
}

/// A device that gives no length: the sum of the tracks, and three seconds for what lies between.
std::string CdData::totalTime() const {
  constexpr int kBetween = 3;
  const DiscState& disc = disc_;
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
  const DiscState& disc = disc_;
  const bool counted = disc.trackCount >= 1 && disc.trackCount <= 99;
  form_.Label12.caption = std::to_string(disc.trackCount);
  form_.Label10.visible = form_.Label12.visible = counted;
  form_.Text4.caption = disc.discTitle;
  form_.Text2.caption = disc.discArtist;
  form_.Text3.caption = disc.linerNotes;
  form_.Text7.caption = disc.discInfo[kComposer];
  form_.Text6.caption = disc.discInfo[kLabel];
  form_.cat.caption = disc.discInfo[kGenre];
  for (const FieldControl& field : extraFields(form_)) field.control.caption = extraField(disc, field.index);
  if (disc.enhancedCd) {
    form_.mediatype.choose(1);
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

/// What a first sight resets is reset once: a person who comes back from the deck finds all as it was.
void CdData::activate() {
  if (!std::exchange(visit_.fresh, false)) return;
  visit_.listMouseDown = false;
  ports_.screen.setPointer(Pointer::Normal);
  updateSubmitKey();
  if (form_.activeControl() == nullptr) form_.setFocus(form_.Text2);
}

void CdData::markPlaying() {
  if (!form_.loaded()) return;
  const int16_t track = state_.transport.curTrack;
  form_.List1.markedRow = onDeck() && state_.transport.playingFlag && track >= 1 ? track - 1 : -1;
}

/// Its disc is the one that the deck shows.
bool CdData::onDeck() const {
  const DiscState& disc = state_.disc;
  return disc.discKey == disc_.discKey && disc.in();
}

/// It wants artist, title, and a first row with something in it.
void CdData::updateSubmitKey() {
  constexpr size_t kLeast = 4;
  const bool named = !trim(form_.Text4.caption.get()).empty() && !trim(form_.Text2.caption.get()).empty();
  const bool tracks = characterCount(form_.List1.row(0)) > kLeast;
  form_.Command12.enabled = named && tracks && upward_.mailSenderKnown() && state_.library.cddbMode != kNoSubmission;
}

void CdData::unload() {
  if (visit_.tookPlace) upward_.showFaceplate();
}

void CdData::close() {
  if (visit_.byPerson) dropDraft();
  form_.unload();
  ports_.screen.setPointer(Pointer::Normal);
}

}  // namespace orvanta
