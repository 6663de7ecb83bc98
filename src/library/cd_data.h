// Behaviour of acdtabs, the CD Data window. What it was opened for stays its disc until OK or Cancel, whatever is in the
// drive meanwhile: it works on a copy of the disc's state.
#pragma once

#include <string>

#include "library/genres.h"
#include "library/ports.h"
#include "library/row_entry.h"
#include "platform/forms/form.h"
#include "playback/display.h"
#include "records/draft.h"
#include "records/file_set.h"
#include "state/shared_state.h"
#include "windows/acdtabs.h"
#include "windows/cdform.h"

namespace orvanta {

class CdInfo;
class HtmlExport;
class LibraryUpward;
class DiscPrint;
class Playlist;

/// Whom the window's keys reach, and who shows the disc's texts beside it.
struct CdDataParts {
  Genres& genres;
  HtmlExport& html;
  DiscPrint& print;
  Display& display;
  Playlist& playlist;
  CdInfo& info;
};

class CdData : public forms::FormEvents {
 public:
  CdData(const LibraryPorts& ports, const CdDataParts& parts, acdtabs& form, const CDForm& faceplate, SharedState& state,
         LibraryUpward& upward);

  /// By a person, from the faceplate; nothing without a disc.
  void openFromFaceplate();
  /// Unseen, to be filled and saved by program: LibraryState::cddbMode is kAutomatic.
  void openUnseen();
  /// OK: saves what was changed and closes. A person's window stays open when something could not be saved: false.
  bool Command1_Click();

  /// It stands, and a person opened it.
  bool openForPerson() const { return form_.loaded() && visit_.byPerson; }
  /// Before an exit by the user: asks where something was typed. True when nothing, or nothing of worth, would be lost.
  bool mayBeLost();
  /// What was typed since the last time is kept in the data folder, and offered when the disc's window opens next, unless
  /// OK or Cancel was pressed before: for an end that cannot wait, or does not tell.
  void keepDraft();
  /// The track that plays stands out.
  void markPlaying();

  /// The disc of the window: its key, path, lengths and frames, and the texts of its load.
  DiscState& disc() { return disc_; }

  // Of what fills the window by program.
  /// First of all: no row is under edit.
  void beginFill();
  /// Takes the text of Text1 into the row under edit; the next row follows.
  void textin();
  /// The same with the lyrics in Text8.
  void textin2();
  /// Total and track times into the record.
  void savetimes();
  /// Whether the CDDB can be told of the disc.
  void updateSubmitKey();

  void load() override;
  void activate() override;
  void unload() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  void doubleClick(forms::Control* control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void gotFocus(forms::Control& control) override;
  void edited(forms::Control& control) override;
  void closeAsked() override { cancel(); }

 private:
  enum Tab : int16_t { MusicInfo, AdditionalInfo, Advanced };
  /// From one load to the next.
  struct Visit {
    bool byPerson = false;
    bool tookPlace = false;    ///< the faceplate is hidden for it
    bool fresh = true;         ///< loaded, and not yet activated
    bool changed = false;      ///< by a person since the load
    bool draftDue = false;     ///< changed since the draft was kept
    bool draftFailed = false;  ///< it could not be written, as the window says
    bool draftLeft = false;    ///< an earlier draft lies there still, not taken up
    int16_t tab = MusicInfo;
    bool listMouseDown = false;  ///< the next focus of an input box leaves its text unselected
  };
  // Tops of the tab that shows and of the others.
  static constexpr int kTabTop = 96;
  static constexpr int kTabAway = 100000;
  static constexpr int kHelpTopic = 17;

  // Filling and placing.
  void place();
  void fillFields();
  void fillProposals();
  std::string totalTime() const;
  void showUserCaptions();

  // Entry.
  void showTab(int16_t tab);
  bool enter(forms::Control& control);
  bool enterInRow(forms::Control& control);
  void editRow(forms::ListBox& list);
  void nextRow(RowEntry& entry, int taken);
  void focusOn(forms::Control& control);
  void chosen(forms::ListBox& list);
  void enterCorrection();
  RowEntry& entryOf(const forms::Control& control) { return &control == &form_.List2 || &control == &form_.Text8 ? lyrics_ : titles_; }
  void takeEntry(RowEntry& entry);
  bool entryWaits() const { return titles_.typedAnything() || lyrics_.typedAnything(); }

  // Keys.
  void pressed(const std::string& name);
  void ok();
  void cancel();
  void clear();
  void addGenre();
  void askCaptions();
  void submit();
  void close();
  void startLibrary();
  /// What stands in the entry fields goes to its rows. False: it belongs to none, and a person thought better of it.
  bool takeEntries();
  bool ask(const std::string& question);
  void changedByPerson() { visit_.changed = visit_.draftDue = true; }

  // Saving.
  int16_t correction() const;
  Unwritten save();
  void saveFields();
  void saveTracks();
  void showTexts();
  bool onDeck() const;

  // A draft of an earlier session.
  std::string draftPath() const;
  Draft draft() const;
  /// What was typed is saved, or given up.
  void dropDraft();
  void draftWritten(bool written);
  void offerDraft();
  void takeUp(const Draft& draft);
  bool takeUpRow(const std::string& name, const std::string& text);

  LibraryPorts ports_;
  CdDataParts on_;
  acdtabs& form_;
  const CDForm& faceplate_;
  SharedState& state_;
  LibraryUpward& upward_;
  DiscState disc_;
  Visit visit_;
  RowEntry titles_{form_.List1, form_.Text1};
  RowEntry lyrics_{form_.List2, form_.Text8};
};

}  // namespace orvanta
