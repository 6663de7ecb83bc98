// Typing into the CD Data window: ENTER leads from field to field and through the rows of the lists.
#include <algorithm>

#include "base/text.h"
#include "library/cd_data.h"
#include "library/list_text.h"
#include "library/upward.h"

namespace orvanta {

namespace {

constexpr size_t kLongestTitle = 60;

struct Link {
  const char* from;
  const char* to;
};
/// Where ENTER goes.
constexpr Link kChain[] = {
    {"Text2", "cat"},       {"cat", "Text4"},     {"Text4", "Text24"},    {"Text24", "mediatype"}, {"mediatype", "Text6"},
    {"Text6", "Text18"},    {"Text18", "Text7"},  {"Text23", "stloc"},    {"Text10", "stloc"},     {"stloc", "Text16"},
    {"Text16", "recdtype"}, {"Text22", "Text15"}, {"Text15", "recdtype"}, {"recdtype", "mrat"},    {"mrat", "rrat"},
    {"rrat", "mcrat"},      {"mcrat", "pcrat"},   {"pcrat", "crat"},      {"crat", "Text13"},      {"Text13", "Text11"},
    {"Text11", "upcnum"},   {"upcnum", "cdcost"}, {"cdcost", "Text8"},    {"Text7", "cdcost"},     {"reccode", "Text8"},
};

/// Whose change makes Cancel ask.
constexpr std::string_view kAsking[] = {"Text2", "Text4", "Text7", "Text18", "cat", "reccode"};
/// The inputs of the rows: what stands in them is nothing before ENTER.
constexpr std::string_view kInputs[] = {"Text1", "Text8"};

bool oneOf(std::span<const std::string_view> names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

void CdData::edited(forms::Control& control) {
  changedByPerson();
  if (oneOf(kInputs, control.name())) {
    entryOf(control).typed();
    return;
  }
  state_.library.dataDirty = true;
  if (oneOf(kAsking, control.name())) state_.library.askOnCancel = true;
  if (&control == &form_.Text2 || &control == &form_.Text4) updateSubmitKey();
}

void CdData::gotFocus(forms::Control& control) {
  auto* box = dynamic_cast<forms::TextBox*>(&control);
  if (box == nullptr || !oneOf(kInputs, control.name())) return;
  // A press in the list has just put a title there: the mouse sets the cursor.
  if (!visit_.listMouseDown) box->selectAll();
  visit_.listMouseDown = false;
}

bool CdData::keyDown(const forms::KeyPress& key) {
  if (key.code == forms::key::kEscape) {
    cancel();
    return true;
  }
  if (key.code == forms::key::kF1 || key.code == forms::key::kHelp) {
    upward_.showHelp(kHelpTopic);
    return true;
  }
  const bool enterAlone = key.code == forms::key::kEnter && !key.shift && !key.control && !key.alt;
  return enterAlone && form_.activeControl() != nullptr && enter(*form_.activeControl());
}

bool CdData::enter(forms::Control& control) {
  if (enterInRow(control)) return true;
  const auto* link = std::find_if(std::begin(kChain), std::end(kChain), [&](const Link& each) { return control.name() == each.from; });
  if (link == std::end(kChain)) return false;
  control.caption = withoutControls(trim(control.caption.get()));
  if (&control == &form_.Text2 || &control == &form_.Text4) updateSubmitKey();
  focusOn(*form_.find(link->to));
  return true;
}

bool CdData::enterInRow(forms::Control& control) {
  if (&control == &form_.Text1) {
    textin();
    updateSubmitKey();
  } else if (&control == &form_.Text8) {
    textin2();
  } else if (&control == &form_.Text5) {
    enterCorrection();
  } else if (&control == &form_.List1 || &control == &form_.List2) {
    editRow(static_cast<forms::ListBox&>(control));
  } else {
    return false;
  }
  return true;
}

/// A field on another tab brings its tab up, so that the cursor is never out of sight.
void CdData::focusOn(forms::Control& control) {
  const int16_t tab = control.parent == &form_.SSFrame1 ? MusicInfo : control.parent == &form_.SSFrame4 ? AdditionalInfo : Advanced;
  if (control.parent != &form_.Keys && tab != visit_.tab) showTab(tab);
  form_.setFocus(control);
}

void CdData::showTab(int16_t tab) {
  forms::Panel* frames[] = {&form_.SSFrame1, &form_.SSFrame4, &form_.Frame3D1};
  frames[visit_.tab]->top = kTabAway;
  form_.CommandT[static_cast<size_t>(visit_.tab)].visible = true;
  form_.CommandT[static_cast<size_t>(tab)].visible = false;
  frames[tab]->top = kTabTop;
  visit_.tab = tab;
  if (tab != MusicInfo) return;
  // No row is under edit from here on; what was typed for one goes there first.
  for (RowEntry* entry : {&titles_, &lyrics_}) {
    takeEntry(*entry);
    if (entry->typedAnything()) continue;
    entry->list().setListIndex(-1);
    entry->reset();
  }
}

// ---- rows

void CdData::click(forms::Control& control) {
  if (auto* list = dynamic_cast<forms::ListBox*>(&control)) chosen(*list);
}

/// The row comes under edit, and its text to the input. What was typed for another one is taken for that.
void CdData::chosen(forms::ListBox& list) {
  const int row = list.listIndex();
  if (row < 0) return;
  RowEntry& entry = entryOf(list);
  if (row != entry.row()) takeEntry(entry);
  entry.edit(row, &list == &form_.List1 ? rowTitle(list.row(row)) : state_.library.trackLyrics[static_cast<size_t>(row) + 1]);
}

void CdData::doubleClick(forms::Control* control) {
  if (control == &form_.List1 || control == &form_.List2) editRow(static_cast<forms::ListBox&>(*control));
}

void CdData::editRow(forms::ListBox& list) {
  if (list.row(list.listIndex()).empty()) return;
  chosen(list);
  forms::TextBox& box = entryOf(list).box();
  visit_.listMouseDown = false;
  form_.setFocus(box);
  box.selectAll();
}

/// What a person typed goes to its row; neither row nor focus moves. A title that nobody touched is not cut.
void CdData::takeEntry(RowEntry& entry) {
  if (!entry.waits()) return;
  const int row = entry.row();
  const std::string text(trim(entry.box().caption.get()));
  entry.taken();
  state_.library.dataDirty = state_.library.askOnCancel = true;
  if (&entry == &titles_) {
    form_.List1.set(row, trackRow(disc_, row + 1, std::string(firstCharacters(withoutControls(text), kLongestTitle))));
    return;
  }
  state_.library.trackLyrics[static_cast<size_t>(row) + 1] = withoutControls(withCrLf(text), true);
  form_.List2.set(row, lyricsRow(row + 1, withCrLf(text)));
}

/// On to the next row, and after the last one to OK: a whole disc is typed with text and ENTER.
void CdData::nextRow(RowEntry& entry, int taken) {
  forms::ListBox& list = entry.list();
  if (taken + 1 >= list.count() || taken + 1 >= disc_.trackCount) {
    list.setListIndex(0);
    entry.reset();
    focusOn(form_.Command1);
    return;
  }
  list.setListIndex(taken + 1);
  form_.setFocus(entry.box());
  entry.box().selectAll();
}

void CdData::textin() {
  const int row = titles_.row();
  if (row < 0 || row >= form_.List1.count()) return;
  if (titles_.box().caption.get() != rowTitle(form_.List1.row(row))) titles_.typed();
  takeEntry(titles_);
  state_.library.dataDirty = true;
  nextRow(titles_, row);
}

void CdData::textin2() {
  const int row = lyrics_.row();
  if (row < 0 || row >= form_.List2.count()) return;
  if (lyrics_.box().caption.get() != state_.library.trackLyrics[static_cast<size_t>(row) + 1]) lyrics_.typed();
  takeEntry(lyrics_);
  state_.library.dataDirty = true;
  nextRow(lyrics_, row);
}

void CdData::enterCorrection() {
  state_.library.dataDirty = true;
  form_.Text5.caption = std::to_string(correction());
  form_.setFocus(form_.Command1);
}

}  // namespace orvanta
