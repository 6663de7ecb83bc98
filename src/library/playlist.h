// Behaviour of cdplist, the playlist editor.
#pragma once

#include <vector>

#include "library/ports.h"
#include "platform/forms/form.h"
#include "playback/modes.h"
#include "records/disc_files.h"
#include "state/shared_state.h"
#include "windows/cdform.h"
#include "windows/cdplist.h"

namespace orvanta {

class Playlist : public forms::FormEvents {
 public:
  Playlist(const LibraryPorts& ports, Engine& engine, Modes& modes, Display& display, cdplist& form, CDForm& faceplate, SharedState& state);

  /// Nothing without tracks.
  void open();
  /// The disc's titles have changed: shown anew where the window stands. What is listed and chosen stays.
  void showTitles();

  void load() override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  void doubleClick(forms::Control* control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void rowMoved(forms::ListBox& list, int from, int to) override;
  void closeAsked() override { form_.unload(); }

 private:
  void place();
  void fill();
  void addRows(bool all);
  void remove();
  void moveRow(int from, int to);
  void unselect();
  void clearList();
  void save();
  void recall();
  void deleteProgram();
  void play();
  void prvcdt();
  void stop();
  void stopPreview();
  std::vector<int> numbers() const;
  std::string titleOf(int track) const { return form_.List1.row(track - 1); }
  std::string titleForList(int track) const;
  void append(int track);
  DiscFiles discFiles() const;

  LibraryPorts ports_;
  Engine& engine_;
  Modes& modes_;
  Display& display_;
  cdplist& form_;
  CDForm& faceplate_;
  SharedState& state_;
  int16_t previewRow_ = 101;  ///< zero-based; 101 for none
  bool previewing_ = false;
};

}  // namespace orvanta
