// Who asks is told with every question; the server remembers nobody.
#include "cddb/http_session.h"

#include "base/log.h"
#include "base/text.h"
#include "cddb/reply_shaper.h"
#include "cddb/wire_text.h"

namespace orvanta {

HttpSession::HttpSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose, SessionEvents& events)
    : Session(kHttpRoad, settings, table, purpose, events), net_(net) {
  askDiscId();
}

void HttpSession::ask(SessionState due, const std::string& command) {
  state_ = due;
  HttpRequest request;
  request.url = trim(settings_.cddbServer);
  request.port = static_cast<uint16_t>(settings_.cddbPort);
  // Servers want the three parts in this order, and know a table of contents with a separator at its end.
  const char* end = due == SessionState::RecordDue ? "" : "+";
  request.body =
      "cmd=" + command + end + "&hello=" + toWire(settings_.emailUser) + "+" + toWire(settings_.emailDomain) + "+Orvanta+10.0&proto=4";
  request.proxy = trim(settings_.proxyServer);
  // The password alone decides: a name without one is not told.
  if (!trim(settings_.proxyPassword).empty()) {
    request.user = settings_.proxyUser;
    request.password = settings_.proxyPassword;
  }
  request.most = ReplyShaper::kMost;
  logLine("cddb", "> " + request.body);
  exchange_ = net_.post(request, [this](const HttpReply& reply) { completed(reply); });
}

void HttpSession::completed(const HttpReply& reply) {
  constexpr int kGood = 200;
  constexpr int kRedirects = 300;
  if (!reply.error.empty() || reply.status < kGood || reply.status >= kRedirects) {
    giveUp(reply.error.empty() ? "HTTP " + std::to_string(reply.status) : reply.error);
  } else if (reply.body.empty()) {
    state_ = SessionState::Idle;
    events_.nothingArrived();
  } else {
    replied(withLineEnds(reply.body));
  }
}

}  // namespace orvanta
