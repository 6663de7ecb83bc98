// From the record on show into CD Data's controls, and, without a person, on into the disc's files.
#include "base/log.h"
#include "base/text.h"
#include "cddb/cddb_window.h"
#include "library/cd_data.h"
#include "library/list_text.h"

namespace orvanta {

void CddbWindow::Command7_Click() {
  if (automatic()) cdData_.openUnseen();
  if (!editor_.loaded()) return;
  fillEditor();
  fillEditorRows();
  cdData_.updateSubmitKey();
  if (!automatic()) {
    Command1_Click();
    return;
  }
  state_.disc.searching = false;
  // Told of or not, a file that cannot be written leaves the texts on the display.
  cdData_.Command1_Click();
  logLine("cddb", "named");
  endSession();
}

void CddbWindow::fillEditor() {
  state_.library.dataDirty = state_.library.askOnCancel = true;
  cdData_.beginFill();
  const Naming naming = namingOf(form_.Label24.caption.get());
  editor_.Text2.caption = naming.artist;
  editor_.Text4.caption = naming.title;
  editor_.Text6.caption = editor_.Text7.caption = "";
  const std::string notes(trim(form_.linernote2.caption.get()));
  if (!notes.empty()) {
    form_.linernote2.caption = notes;
    editor_.Text3.caption = notes;
    const std::string year = yearIn(notes, ports_.clock.year());
    if (!year.empty()) editor_.Text18.caption = year;
  }
  editor_.cat.caption = std::string(trim(form_.Label27.caption.get()));
}

/// A track without a text keeps what it had.
void CddbWindow::fillEditorRows() {
  DiscState& disc = cdData_.disc();
  auto& lyrics = state_.library.trackLyrics;
  for (size_t track = 1; track <= record_.count; ++track) {
    disc.trackTitles[track] = trim(record_.titles[track]);
    if (const std::string_view text = trim(record_.extended[track]); !text.empty()) lyrics[track] = text;
  }
  form_.Label29.caption = "Total Titles Found:";
  fillTrackList(editor_.List1, disc);
  editor_.List2.clear();
  for (int track = 1; track <= listedTracks(disc); ++track) editor_.List2.add(lyricsRow(track, lyrics[static_cast<size_t>(track)]));
}

}  // namespace orvanta
