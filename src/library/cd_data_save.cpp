// OK: from the CD Data window's controls to the disc's tables and files.
#include "base/text.h"
#include "library/cd_data.h"
#include "library/cd_data_fields.h"
#include "library/cd_info.h"
#include "library/list_text.h"
#include "library/playlist.h"
#include "platform/ports/screen.h"
#include "records/disc_files.h"
#include "state/not_written.h"

namespace orvanta {

namespace {

constexpr int kLeastCorrection = -3;
constexpr int kMostCorrection = 5;
constexpr int kMostWritten = 99;  ///< a count of three digits never went into the record

}  // namespace

/// The number in Text5; one out of range counts as 0.
int16_t CdData::correction() const {
  const double number = leadingNumber(form_.Text5.caption.get());
  return number < kLeastCorrection || number > kMostCorrection ? int16_t{0} : static_cast<int16_t>(number);
}

bool CdData::Command1_Click() {
  ports_.screen.setPointer(Pointer::Hourglass);
  const Unwritten failed = state_.library.dataDirty ? save() : Unwritten{};
  if (failed.any()) {
    ports_.screen.setPointer(Pointer::Normal);
    tellNotWritten(ports_.dialogs, ports_.files, failed.path, failed.reason);
    if (visit_.byPerson) return false;
  }
  // The deck takes the texts up even when they could not be kept.
  static_cast<DiscTexts&>(state_.disc) = disc_;
  state_.disc.timeCorrection = disc_.timeCorrection;
  if (onDeck()) showTexts();
  state_.library.askOnCancel = false;
  visit_.draftLeft = false;
  close();
  return !failed.any();
}

Unwritten CdData::save() {
  disc_.timeCorrection = correction();
  saveFields();
  saveTracks();
  return DiscFiles(ports_.files, disc_.cdFilePath).writeTexts(disc_, disc_.trackCount, disc_.timeCorrection);
}

void CdData::saveFields() {
  DiscState& disc = disc_;
  for (const FieldControl& field : extraFields(form_)) disc.extraInfo[field.index] = field.control.caption;
  disc.extraInfo[kMediaType] = disc.enhancedCd ? "Enhanced Audio CD" : form_.mediatype.caption.get();
  for (int track = 1; track <= listedTracks(disc); ++track) setLyrics(disc, track, state_.library.trackLyrics[static_cast<size_t>(track)]);
  disc.discTitle = form_.Text4.caption;
  disc.discArtist = form_.Text2.caption;
  disc.linerNotes = withCrLf(form_.Text3.caption.get());
}

void CdData::saveTracks() {
  DiscState& disc = disc_;
  for (int row = 0; row < form_.List1.count(); ++row) {
    if (!form_.List1.row(row).empty()) disc.trackTitles[static_cast<size_t>(row) + 1] = rowTitle(form_.List1.row(row));
  }
  if (!trim(form_.Label13.caption.get()).empty()) savetimes();
  if (disc.trackCount >= 1 && disc.trackCount <= kMostWritten) disc.discInfo[kTrackCount] = std::to_string(disc.trackCount);
  disc.discInfo[kComposer] = form_.Text7.caption;
  disc.discInfo[kLabel] = form_.Text6.caption;
  disc.discInfo[kGenre] = form_.cat.caption.get().empty() ? "General" : form_.cat.caption.get();
}

void CdData::savetimes() {
  DiscState& disc = disc_;
  std::string times = std::string(trim(form_.Label13.caption.get())) + ",";
  for (int track = 1; track <= listedTracks(disc); ++track) times += std::string(trim(disc.trackLengths[static_cast<size_t>(track)])) + ",";
  disc.discInfo[kTimeList] = times;
}

/// The new texts show at once: on the deck the disc's and that of the track on display, and in what stands open beside it.
void CdData::showTexts() {
  on_.display.showHeader();
  on_.playlist.showTitles();
  on_.info.showTexts();
}

}  // namespace orvanta
