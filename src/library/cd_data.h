// Behaviour of acdtabs, the CD Data window.
#pragma once

#include <array>
#include <string>

#include "library/cd_records.h"
#include "library/genres.h"
#include "platform/forms/form.h"
#include "state/shared_state.h"
#include "windows/acdtabs.h"
#include "windows/cdform.h"

namespace orvanta {

class HtmlExport;
class LibraryUpward;
class RecordPrint;
struct Ports;

class CdData : public forms::FormEvents {
 public:
  CdData(Ports& ports, CdRecords& records, Genres& genres, HtmlExport& html, RecordPrint& print, acdtabs& form, CDForm& faceplate,
         SharedState& state, LibraryUpward& upward);

  /// By a person, from the faceplate; nothing without a disc.
  void openFromFaceplate();
  /// Unseen, to be filled and saved by program: LibraryState::cddbMode is 3.
  void openUnseen();
  /// OK: saves what was changed and closes.
  void Command1_Click();

  // Of what fills the window by program.
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
  void nextRow(forms::ListBox& list, forms::TextBox& box, int taken);
  void focusOn(forms::Control& control);
  void chosen(forms::ListBox& list);
  void enterCorrection();

  // Keys.
  void pressed(const std::string& name);
  void cancel();
  void clear();
  void addGenre();
  void submit();
  void close();

  // Saving.
  int16_t correction() const;
  void saveFields();
  void saveTracks();
  void updateFaceplate();

  Ports& ports_;
  CdRecords& records_;
  Genres& genres_;
  HtmlExport& html_;
  RecordPrint& print_;
  acdtabs& form_;
  CDForm& faceplate_;
  SharedState& state_;
  LibraryUpward& upward_;
  int16_t currentTab_ = MusicInfo;
  int currentRow_ = -1;         ///< zero-based, under edit in List1 or List2
  bool listMouseDown_ = false;  ///< the next focus of an input box leaves its text unselected
  std::array<std::string, 101> savedTitles_;
};

}  // namespace orvanta
