// "Submit to CDDB": from CD Data by the category dialog and the server's id for the disc to the mail. Behaviour of cddbcatg.
#pragma once

#include <string>

#include "cddb/cddb_window.h"
#include "cddb/mail_window.h"
#include "cddb/ports.h"
#include "cddb/record_writer.h"
#include "platform/forms/form.h"
#include "windows/acdtabs.h"
#include "windows/cddbcatg.h"

namespace orvanta {

class Submitter : public forms::FormEvents, private DiscIdTaker {
 public:
  Submitter(const CddbPorts& ports, CdData& cdData, CddbWindow& window, MailWindow& mail, acdtabs& editor, cddbcatg& form,
            const SharedState& state);

  /// Asks for the category of the disc in CD Data.
  void open();

  // Handlers by their given names.
  void Command1_Click();
  void Command3_Click();

  void load() override;
  void unload() override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  void doubleClick(forms::Control* control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override { Command3_Click(); }

 private:
  void discIdArrived(const std::string& discId) override;
  Submission submission(const std::string& discId) const;
  void showPlainLetters();
  Mail mail() const;

  CddbPorts ports_;
  CdData& cdData_;
  CddbWindow& window_;
  MailWindow& mail_;
  acdtabs& editor_;
  cddbcatg& form_;
  const SharedState& state_;
  std::string submitCategory_;
  Submission submission_;  ///< as it was when it was asked for
  TocFrames frames_;       ///< of its disc
};

/// The CDDB's category for a genre of the library; "" for none.
std::string categoryOf(const std::string& genre);

}  // namespace orvanta
