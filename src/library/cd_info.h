// Behaviour of cdartext, the CD Info window.
#pragma once

#include "library/ports.h"
#include "platform/forms/form.h"
#include "playback/modes.h"
#include "state/shared_state.h"
#include "windows/cdartext.h"
#include "windows/cdform.h"

namespace orvanta {

class LibraryUpward;

class CdInfo : public forms::FormEvents {
 public:
  CdInfo(const LibraryPorts& ports, Engine& engine, Modes& modes, cdartext& form, CDForm& faceplate, SharedState& state,
         LibraryUpward& upward);

  void open();
  void close() { form_.unload(); }
  /// What is known of the disc has changed: shown anew where the window stands.
  void showTexts();

  void load() override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override { close(); }

 private:
  void place();
  void fill();

  LibraryPorts ports_;
  Engine& engine_;
  Modes& modes_;
  cdartext& form_;
  CDForm& faceplate_;
  SharedState& state_;
  LibraryUpward& upward_;
};

}  // namespace orvanta
