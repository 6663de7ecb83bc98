// One conversation with a CDDB server: which disc is this, what do you hold for it, give me that record. Over
// either road; whoever watches it is told what came, and never asks twice.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "cddb/matches.h"
#include "cddb/road.h"
#include "cddb/toc_text.h"
#include "state/cddb_settings.h"

namespace orvanta {

class Net;

/// The status while the server works a disc's id out.
inline constexpr const char* kCheckingDiscId = "Checking Disc ID...";

/// A session may be dropped in any of these. Server's lines are text to be shown, "" for none.
class SessionEvents {
 public:
  virtual ~SessionEvents() = default;
  virtual void sessionStatus(const std::string& text) = 0;
  /// The id for a submission; the session's last word.
  virtual void discIdKnown(const std::string& discId) = 0;
  /// The server could not read the table of contents; the session's last word.
  virtual void tableRefused(const std::string& serverLine) = 0;
  virtual void discNotFound(const std::string& serverLine) = 0;
  /// Session::retrieve() goes on.
  virtual void matchesFound(const QueryReply& reply) = 0;
  /// A record, or the line that stands in its place.
  virtual void recordArrived(const std::string& bytes) = 0;
  /// Lines of a list of servers, CR LF each; the session's last word.
  virtual void sitesArrived(const std::string& list) = 0;
  /// An empty page came.
  virtual void nothingArrived() = 0;
  /// No connection, a refusal, a close or an endless reply while one was due; the session's last word.
  virtual void sessionFailed(const std::string& reason) = 0;
};

enum class Purpose {
  Lookup,
  DiscId,  ///< only the id, for a submission
  Sites,   ///< the server's list of servers, over TCP alone
};

enum class SessionState { Idle, BannerDue, HelloDue, DiscIdDue, QueryDue, RecordDue, SitesDue };

class Session {
 public:
  Session(const Road& road, CddbSettings settings, const TrackTable& table, Purpose purpose, SessionEvents& events);
  virtual ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  const Road& road() const { return road_; }
  /// A reply is due.
  bool due() const { return state_ != SessionState::Idle; }
  /// Asks for the record of a match; nothing while a reply is due.
  void retrieve(const Match& match);
  /// Tells the server that it is over, where that is said.
  virtual void leave() {}

 protected:
  /// Sends a command; its reply finds the session in `due`.
  virtual void ask(SessionState due, const std::string& command) = 0;
  /// The server found nothing.
  virtual void closeUnfound() {}
  virtual void drop() = 0;

  void askDiscId();
  /// A whole reply.
  void replied(const std::string& reply);
  void giveUp(const std::string& reason);
  std::string joined(std::initializer_list<std::string_view> words) const;

  SessionEvents& events_;
  SessionState state_ = SessionState::Idle;
  const Purpose purpose_;
  const CddbSettings settings_;
  /// False once the session is gone: for code that has just told of something.
  const std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);

 private:
  void discIdReply(const std::string& reply);
  void queryReply(const std::string& reply);

  const Road& road_;
  std::string cddbQueryArgs_;
};

/// By the settings' protocol. Nothing but its status is told before this returns.
std::unique_ptr<Session> startSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose,
                                      SessionEvents& events);

}  // namespace orvanta
