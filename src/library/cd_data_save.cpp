// OK: from the CD Data window's controls to the disc's tables and files.
#include "base/text.h"
#include "library/cd_data.h"
#include "library/cd_data_fields.h"
#include "library/list_text.h"
#include "platform/ports/ports.h"
#include "platform/ports/screen.h"

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

void CdData::Command1_Click() {
  ports_.screen.setPointer(Pointer::Hourglass);
  if (state_.library.dataDirty == kOn) {
    state_.disc.timeCorrection = correction();
    records_.writeTimeCorrection();
    saveFields();
    saveTracks();
    records_.writeCdRecord();
  }
  updateFaceplate();
  state_.library.askOnCancel = kOff;
  close();
}

void CdData::saveFields() {
  DiscState& disc = state_.disc;
  for (const ExtraField& field : extraFields(form_)) disc.extraInfo[field.index] = field.control.caption;
  disc.extraInfo[kMediaType] = disc.enhancedCd == 1 ? "Enhanced Audio CD" : form_.mediatype.caption.get();
  for (int track = 1; track <= listedTracks(disc); ++track) setLyrics(disc, track, state_.library.trackLyrics[static_cast<size_t>(track)]);
  disc.discTitle = form_.Text4.caption;
  disc.discArtist = form_.Text2.caption;
  disc.linerNotes = withCrLf(form_.Text3.caption.get());
}

void CdData::saveTracks() {
  DiscState& disc = state_.disc;
  for (int row = 0; row < form_.List1.count(); ++row) {
    if (!form_.List1.row(row).empty()) disc.trackTitles[static_cast<size_t>(row) + 1] = rowTitle(form_.List1.row(row));
  }
  if (!trim(form_.Label13.caption.get()).empty()) savetimes();
  if (disc.trackCount >= 1 && disc.trackCount <= kMostWritten) disc.discInfo[2] = std::to_string(disc.trackCount);
  disc.discInfo[3] = form_.Text7.caption;
  disc.discInfo[4] = form_.Text6.caption;
  disc.discInfo[5] = form_.cat.caption.get().empty() ? "General" : form_.cat.caption.get();
}

void CdData::savetimes() {
  DiscState& disc = state_.disc;
  std::string times = std::string(trim(form_.Label13.caption.get())) + ",";
  for (int track = 1; track <= listedTracks(disc); ++track) times += std::string(trim(disc.trackLengths[static_cast<size_t>(track)])) + ",";
  disc.discInfo[1] = times;
}

void CdData::updateFaceplate() {
  const std::string artist = state_.disc.discArtist;
  const std::string title = state_.disc.discTitle;
  const bool both = !trim(artist).empty() && !trim(title).empty();
  faceplate_.Label12.caption = trim(artist).empty() && trim(title).empty() ? std::string() : artist + (both ? " - " : "") + title;
  faceplate_.Label13.caption = "";
}

}  // namespace orvanta
