// Replies count by their last line; what is typed cannot begin a command of its own.
#include "cddb/mail_session.h"

#include "base/log.h"
#include "base/text.h"
#include "cddb/wire_text.h"
#include "state/cddb_settings.h"

namespace orvanta {

namespace {

constexpr int kRejected = 500;
constexpr int kBeyondCodes = 600;

/// Codes that let the conversation go on, by state.
struct Accepted {
  int from;
  int to;
};
constexpr Accepted kAccepted[] = {{220, 220}, {200, 299}, {200, 299}, {200, 299}, {300, 399}, {200, 299}};

std::string lastLine(const std::string& reply) {
  const auto end = reply.rfind('\n', reply.size() - 2);
  return std::string(cleanStart(end == std::string::npos ? reply : reply.substr(end + 1)));
}

/// A reply of several lines as one.
std::string allLines(const std::string& reply) {
  std::string text;
  for (const std::string& line : splitLines(reply)) text += (text.empty() ? "" : " ") + line;
  return lineAsText(cleanStart(text));
}

}  // namespace

MailSession::MailSession(Net& net, const Mail& mail, MailEvents& events) : events_(events), mail_(mail) {
  connection_ = net.connect(std::string(trim(mail.smtpServer)), static_cast<uint16_t>(mailPort(mail.smtpPort)), *this);
}

MailSession::~MailSession() { *alive_ = false; }

void MailSession::connected() { events_.mailUnderWay(); }

void MailSession::received(std::string_view bytes) {
  heard_ += bytes.size();
  if (heard_ > ReplyShaper::kMost || !shaper_.take(bytes)) {
    failed("The server's reply has no end.");
    return;
  }
  const auto alive = alive_;
  while (*alive && connection_ != nullptr) {
    const auto reply = shaper_.next(Shape::Mail);
    if (!reply) return;
    replied(lastLine(*reply), allLines(*reply));
  }
}

void MailSession::replied(const std::string& reply, const std::string& whole) {
  const int mailCode = replyCode(reply);
  logLine("cddb", "mail: " + whole);
  if (const Accepted& good = kAccepted[mailState_]; mailCode >= good.from && mailCode <= good.to) {
    askNext();
  } else if (mailState_ == Text && mailCode >= kRejected && mailCode < kBeyondCodes) {
    connection_.reset();
    events_.mailRejected(whole);
  } else {
    events_.mailRefused(whole);
  }
}

/// Servers know the addresses without brackets, and put the empty line behind the subject themselves.
void MailSession::askNext() {
  switch (mailState_++) {
    case Greeting: say("helo " + toWire(mail_.emailDomain) + "\r\n"); break;
    case Helo: say("Mail From: " + toWire(mail_.emailUser) + "@" + toWire(mail_.emailDomain) + "\r\n"); break;
    case Sender: say("Rcpt to: " + toWire(mail_.submitAddress) + "\r\n"); break;
    case Receiver: say("Data\r\n"); break;
    case Data:
      connection_->send("Subject: cddb " + toWire(mail_.submitCategory) + " " + toWire(mail_.submitDiscId) + "\r\n");
      connection_->send(mail_.submitText + "\r\n");
      say("\r\n.\r\n");
      break;
    default:
      connection_->send("quit\r\n");
      connection_.reset();
      events_.mailSent();
  }
}

void MailSession::say(const std::string& bytes) {
  if (!connection_->send(bytes)) failed("");
}

void MailSession::failed(const std::string& reason) {
  logLine("cddb", "mail failed: " + reason);
  connection_.reset();
  events_.mailBroken(reason);
}

}  // namespace orvanta
