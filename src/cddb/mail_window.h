// Behaviour of cddbmail: a submission is mailed, and its user sees how far it is, that it went, or why not.
#pragma once

#include <memory>
#include <string>

#include "cddb/mail_session.h"
#include "cddb/ports.h"
#include "platform/forms/form.h"
#include "platform/ports/dialogs.h"
#include "windows/acdtabs.h"
#include "windows/cddbmail.h"

namespace orvanta {

class MailWindow : public forms::FormEvents, private MailEvents {
 public:
  MailWindow(const CddbPorts& ports, acdtabs& editor, cddbmail& form);

  /// Mails a record; nothing without one. A mail that is still under way is given up.
  void send(const Mail& mail);

  /// A mail is on its way: neither refused nor broken.
  bool sending() const { return form_.loaded() && !refused_; }

  void Command3_Click();

  void load() override;
  void unload() override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override { Command3_Click(); }

 private:
  void mailUnderWay() override;
  void mailSent() override;
  void mailRejected(const std::string& serverLine) override;
  void mailRefused(const std::string& serverLine) override;
  void mailBroken(const std::string& reason) override;
  void endWith(BoxStyle style, const std::string& text);
  void tellEditor(const std::string& text);

  CddbPorts ports_;
  acdtabs& editor_;
  cddbmail& form_;
  Mail mail_;
  bool refused_ = false;  ///< the server has said why nothing goes on, or has gone
  std::unique_ptr<MailSession> session_;
  std::unique_ptr<Connection> listener_;
};

}  // namespace orvanta
