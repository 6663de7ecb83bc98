// Hand-over to the recorder: the user's own by its command line, else ours with audiocd.dat.
#include "app/recorder.h"

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/clock.h"
#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/files.h"
#include "platform/ports/system.h"
#include "records/recorder_texts.h"
#include "state/data_folder.h"
#include "state/not_written.h"
#include "state/settings_files.h"

namespace orvanta {

ProcessRequest Recorder::request() const {
  const Settings& settings = state_.settings;
  if (usersOwn())
    return {splitCommand(settings.recordCommand, ports_.files.exists(settings.recordCommand)), settings.appDir, WindowStyle::Normal};
  return {{ports_.system.companion("orvrec"), "2" + settings.appDir}, settings.appDir, WindowStyle::Normal};
}

void Recorder::tellNotStarted() {
  const auto arguments = request().arguments;
  ports_.dialogs.message(BoxStyle::Warning, "Orvanta",
                         "The recorder " + (arguments.empty() ? state_.settings.recordCommand : arguments.front()) +
                             " could not be started.\n\nAccess the Orvanta Setup Section to choose another one.");
}

bool Recorder::ready() {
  const auto arguments = request().arguments;
  const bool there = !arguments.empty() && ports_.processes.canStart(arguments.front());
  if (!there) tellNotStarted();
  return there && !known_.runsAlready(arguments);
}

void Recorder::run() {
  const DataFolder data(ports_.files, state_.settings.appDir);
  const FieldWriter texts = writtenFields(recorderTexts(state_.disc, state_.disc.trackCount));
  // Nothing is let go of before the recorder can have what it needs.
  if (!usersOwn() && !data.save(DataFile::RecorderTexts, texts)) {
    tellNotWritten(ports_.dialogs, ports_.files, data.path(DataFile::RecorderTexts));
    return;
  }
  letGo();
  if (!usersOwn()) ports_.clock.delaySeconds(1);
  if (ports_.processes.start(request()) != 0) end();
  tellNotStarted();
  restart_.forDisc();
}

void Recorder::letGo() {
  const Settings& settings = state_.settings;
  state_.transport.playingFlag = state_.transport.pausedFlag = false;
  looks_.show(DeckState::Leaving);
  looks_.flash(Record);
  keepModes(ports_.files, settings);
  place_.saveposn1();
  volume_.releaseMute();
  volume_.mixer().tidyUp();
  looks_.goingOff();
  ports_.device.command("Stop");
  ports_.device.command("Close");
  form_.minimised = true;
  DataFolder(ports_.files, settings.appDir).unmark(DataFile::Running);
}

}  // namespace orvanta
