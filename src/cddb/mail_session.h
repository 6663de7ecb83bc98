// A submission's way to the CDDB: a mail conversation of six questions, each sent when the one before was accepted.
#pragma once

#include <memory>
#include <string>

#include "cddb/reply_shaper.h"
#include "platform/ports/net.h"

namespace orvanta {

struct Mail {
  std::string smtpServer;
  int smtpPort = 0;  ///< one that no mail goes to counts as 25
  std::string emailUser;
  std::string emailDomain;
  std::string submitAddress;
  std::string submitCategory;
  std::string submitDiscId;
  std::string submitText;  ///< the record, ASCII; no line of it begins with "."
};

/// A session may be dropped in any of these. Server's lines are text to be shown.
class MailEvents {
 public:
  virtual ~MailEvents() = default;
  virtual void mailUnderWay() = 0;
  /// The server took the record; the session's last word.
  virtual void mailSent() = 0;
  /// The server had the whole record and refused it; the session's last word.
  virtual void mailRejected(const std::string& serverLine) = 0;
  /// An answer that the conversation cannot go on with. The line stays open.
  virtual void mailRefused(const std::string& serverLine) = 0;
  /// No connection, or one that ended too early; the session's last word. "" for a peer that just closed.
  virtual void mailBroken(const std::string& reason) = 0;
};

class MailSession : private ConnectionEvents {
 public:
  MailSession(Net& net, const Mail& mail, MailEvents& events);
  ~MailSession() override;
  MailSession(const MailSession&) = delete;
  MailSession& operator=(const MailSession&) = delete;

 private:
  /// Whose reply is due.
  enum MailState : int16_t { Greeting, Helo, Sender, Receiver, Data, Text };

  void connected() override;
  void received(std::string_view bytes) override;
  void closed() override { failed(""); }
  void failed(const std::string& reason) override;

  /// `whole`: all its lines as one, for the user.
  void replied(const std::string& reply, const std::string& whole);
  void askNext();
  void say(const std::string& bytes);

  MailEvents& events_;
  const Mail mail_;
  int16_t mailState_ = Greeting;
  ReplyShaper shaper_;
  size_t heard_ = 0;  ///< bytes
  /// False once the session is gone: for code that has just told of something.
  const std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  std::unique_ptr<Connection> connection_;
};

}  // namespace orvanta
