// What both roads have in common: the order of the questions, and what their replies lead to.
#include "cddb/session.h"

#include <utility>
#include "base/log.h"

#include "cddb/cddbp_session.h"
#include "cddb/http_session.h"
#include "cddb/wire_text.h"

namespace orvanta {

Session::Session(const Road& road, CddbSettings settings, const TrackTable& table, Purpose purpose, SessionEvents& events)
    : events_(events), purpose_(purpose), settings_(std::move(settings)), road_(road), cddbQueryArgs_(tocText(table, road.separator)) {}

Session::~Session() { *alive_ = false; }

std::string Session::joined(std::initializer_list<std::string_view> words) const {
  std::string text;
  for (const std::string_view word : words) text.append(text.empty() ? 0 : 1, road_.separator).append(word);
  return text;
}

void Session::askDiscId() {
  const auto alive = alive_;
  events_.sessionStatus(kCheckingDiscId);
  if (*alive) ask(SessionState::DiscIdDue, joined({"discid", cddbQueryArgs_}));
}

void Session::retrieve(const Match& match) {
  if (!due()) ask(SessionState::RecordDue, joined({"cddb", "read", match.category, match.discId}));
}

void Session::replied(const std::string& reply) {
  switch (state_) {
    case SessionState::DiscIdDue: discIdReply(reply); break;
    case SessionState::QueryDue: queryReply(reply); break;
    case SessionState::RecordDue:
      state_ = SessionState::Idle;
      events_.recordArrived(reply);
      break;
    default: break;
  }
}

void Session::discIdReply(const std::string& reply) {
  state_ = SessionState::Idle;
  const std::string discId = discIdOf(reply);
  if (discId == kTableRefused) {
    logLine("cddb", lineAsText(reply));
    events_.tableRefused(lineAsText(reply));
    return;
  }
  if (purpose_ == Purpose::DiscId) {
    events_.discIdKnown(discId);
    return;
  }
  cddbQueryArgs_ = joined({discId, cddbQueryArgs_});
  const auto alive = alive_;
  events_.sessionStatus("Querying CDDB Server...");
  if (*alive) ask(SessionState::QueryDue, joined({"cddb", "query", cddbQueryArgs_}));
}

void Session::queryReply(const std::string& reply) {
  state_ = SessionState::Idle;
  const QueryReply result = readQueryReply(reply, road_);
  if (result.found != Found::Nothing) {
    events_.matchesFound(result);
    return;
  }
  logLine("cddb", result.serverLine);
  closeUnfound();
  events_.discNotFound(replyCode(result.serverLine) >= kFirstRefusal ? result.serverLine : "");
}

void Session::giveUp(const std::string& reason) {
  state_ = SessionState::Idle;
  logLine("cddb", "failed: " + reason);
  drop();
  events_.sessionFailed(reason);
}

std::unique_ptr<Session> startSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose,
                                      SessionEvents& events) {
  if (settings.useCddbp || purpose == Purpose::Sites) return std::make_unique<CddbpSession>(net, settings, table, purpose, events);
  return std::make_unique<HttpSession>(net, settings, table, purpose, events);
}

}  // namespace orvanta
