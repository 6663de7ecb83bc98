// What was typed in the CD Data window when the session ended under it.
#include <algorithm>

#include "base/log.h"
#include "base/text.h"
#include "library/cd_data.h"
#include "library/list_text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "state/data_folder.h"

namespace orvanta {

namespace {

bool holdsText(const forms::Control& control) { return control.kind() == forms::Kind::TextBox || control.kind() == forms::Kind::Combo; }

std::string rowName(const forms::ListBox& list, int row) { return list.name() + "(" + std::to_string(row) + ")"; }

}  // namespace

std::string CdData::draftPath() const { return DataFolder(ports_.files, state_.settings.appDir).draft(disc_.discKey); }

void CdData::keepDraft() {
  if (!openForPerson() || !visit_.draftDue) return;
  if (!ports_.files.write(draftPath(), draftBytes(draft()))) {
    logLine("disc", draftPath() + " could not be written: " + ports_.files.reason());
    draftWritten(false);
    return;
  }
  visit_.draftDue = visit_.draftLeft = false;
  draftWritten(true);
}

void CdData::dropDraft() {
  visit_.draftDue = false;
  if (!visit_.draftLeft && ports_.files.exists(draftPath())) ports_.files.remove(draftPath());
}

/// A save that fails is told once, in the window, and taken back by one that does not.
void CdData::draftWritten(bool written) {
  if (visit_.draftFailed != written) return;
  visit_.draftFailed = !written;
  const std::string line = "What is typed cannot be kept before OK: ";
  if (!written) {
    form_.Label25.caption = line + ports_.files.reason() + ".";
    form_.Label25.visible = true;
  } else if (form_.Label25.caption.get().rfind(line, 0) == 0) {
    form_.Label25.visible = false;
  }
}

/// The window as it would be if what stands in the entry fields were taken into its rows.
Draft CdData::draft() const {
  Draft draft;
  for (const forms::Control* control : form_.controls()) {
    const RowEntry* entry = control == &form_.Text1 ? &titles_ : control == &form_.Text8 ? &lyrics_ : nullptr;
    const bool ofNoRow = entry != nullptr && entry->typedAnything() && !entry->waits();
    if (holdsText(*control) && (entry == nullptr || ofNoRow)) draft.emplace_back(control->name(), control->caption.get());
  }
  const auto typedFor = [](const RowEntry& entry, int row) { return entry.waits() && entry.row() == row; };
  for (int row = 0; row < form_.List1.count(); ++row) {
    draft.emplace_back(rowName(form_.List1, row), typedFor(titles_, row) ? form_.Text1.caption.get() : rowTitle(form_.List1.row(row)));
  }
  for (int row = 0; row < form_.List2.count(); ++row) {
    draft.emplace_back(rowName(form_.List2, row),
                       typedFor(lyrics_, row) ? form_.Text8.caption.get() : state_.library.trackLyrics[static_cast<size_t>(row) + 1]);
  }
  return draft;
}

/// Once taken up it stays until OK or Cancel, so that an end in between loses nothing either. One that is not wanted now
/// is asked about again, until the disc is saved or typed for.
void CdData::offerDraft() {
  const auto bytes = ports_.files.read(draftPath());
  if (!bytes) return;
  const Draft draft = parseDraft(*bytes);
  if (draft.empty()) return;
  const bool wanted = ports_.dialogs.askYesNo(BoxStyle::Question, "Orvanta",
                                              "What was typed for this disc when the program ended was kept.\n\nGo on with it?");
  if (!form_.loaded()) return;
  visit_.draftLeft = !wanted;
  if (wanted) takeUp(draft);
}

void CdData::takeUp(const Draft& draft) {
  beginFill();
  for (const auto& [name, text] : draft) {
    if (takeUpRow(name, text)) continue;
    forms::Control* control = form_.find(name);
    if (control == nullptr || !holdsText(*control) || control->caption.get() == text) continue;
    control->caption = text;
    edited(*control);
  }
  state_.library.dataDirty = true;
  visit_.changed = true;
  updateSubmitKey();
}

bool CdData::takeUpRow(const std::string& name, const std::string& text) {
  for (forms::ListBox* list : {&form_.List1, &form_.List2}) {
    if (name.rfind(list->name() + "(", 0) != 0) continue;
    const auto row = static_cast<int>(std::clamp(leadingNumber(name.substr(list->name().size() + 1)), -1.0, 1000.0));
    if (row < 0 || row >= list->count()) return true;
    if (list == &form_.List1) {
      list->set(row, trackRow(disc_, row + 1, withoutControls(text)));
    } else {
      state_.library.trackLyrics[static_cast<size_t>(row) + 1] = withoutControls(withCrLf(text), true);
      list->set(row, lyricsRow(row + 1, withCrLf(text)));
    }
    // A row of the lists is one of those changes that Cancel asks about, since they were nearly lost once.
    state_.library.askOnCancel = true;
    return true;
  }
  return false;
}

}  // namespace orvanta
