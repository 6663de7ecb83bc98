// Where no box is told, the reason stands in CD Data's status line until the next submission.
#include "cddb/mail_window.h"

#include "cddb/wire_text.h"
#include "library/placing.h"
#include "platform/ports/screen.h"
#include "state/cddb_settings.h"

namespace orvanta {

namespace {

constexpr const char* kSent =
    "CDDB entry has been emailed; you will be notified by return email if your submission has been rejected for any reason, otherwise "
    "thanks for your submission!";

}  // namespace

MailWindow::MailWindow(const CddbPorts& ports, acdtabs& editor, cddbmail& form) : ports_(ports), editor_(editor), form_(form) {
  form.setEvents(this);
}

void MailWindow::send(const Mail& mail) {
  form_.unload();
  if (mail.submitText.empty()) return;
  mail_ = mail;
  form_.show(ports_.desktop);
}

void MailWindow::load() {
  refused_ = false;
  ports_.screen.setPointer(Pointer::Hourglass);
  form_.address.caption = mail_.submitAddress;
  form_.status.caption = "Connecting to " + mail_.smtpServer + "...";
  const forms::Place place = amidst(placeOf(form_), placeOf(editor_), {0, 0, ports_.screen.widthTwips(), ports_.screen.heightTwips()});
  form_.left = place.left;
  form_.top = place.top;
  listener_ = ports_.net.listen(kListenPort);
  MailEvents& events = *this;
  session_ = std::make_unique<MailSession>(ports_.net, mail_, events);
}

void MailWindow::unload() {
  session_.reset();
  listener_.reset();
  ports_.screen.setPointer(Pointer::Normal);
}

void MailWindow::Command3_Click() { form_.unload(); }

void MailWindow::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == &form_.Command3 && mouse.button == forms::MouseButton::Left && mouse.over) Command3_Click();
}

bool MailWindow::keyDown(const forms::KeyPress& key) {
  if (key.code != forms::key::kEscape) return false;
  Command3_Click();
  return true;
}

// ---- what comes of it

void MailWindow::mailUnderWay() { form_.status.caption = "Sending the record by " + mail_.smtpServer + "..."; }

void MailWindow::mailSent() { endWith(BoxStyle::Information, kSent); }

void MailWindow::mailRejected(const std::string& serverLine) {
  tellEditor(serverLine);
  endWith(BoxStyle::Critical, withReason("Email to CDDB Failed!", serverLine));
}

/// A server that has refused may still change its mind, or close: the window stays until then, or until it is cancelled.
void MailWindow::mailRefused(const std::string& serverLine) {
  refused_ = true;
  form_.status.caption = "The mail server refuses: " + serverLine;
  tellEditor("Not sent. " + serverLine);
  ports_.screen.setPointer(Pointer::Normal);
}

void MailWindow::mailBroken(const std::string& reason) {
  const std::string told = "Not sent. " + mail_.smtpServer + ": " + (reason.empty() ? "the connection was closed" : reason);
  if (!refused_) tellEditor(told);
  if (editor_.loaded()) {
    form_.unload();
    return;
  }
  // CD Data has gone: what stands here stands until its reader has cancelled it.
  if (!refused_) form_.status.caption = told;
  refused_ = true;
  ports_.screen.setPointer(Pointer::Normal);
}

void MailWindow::endWith(BoxStyle style, const std::string& text) {
  listener_.reset();
  ports_.screen.setPointer(Pointer::Normal);
  form_.hide();
  ports_.dialogs.message(style, "Orvanta", text);
  form_.unload();
}

void MailWindow::tellEditor(const std::string& text) {
  if (!editor_.loaded()) return;
  editor_.Label25.caption = text;
  editor_.Label25.visible = true;
}

}  // namespace orvanta
