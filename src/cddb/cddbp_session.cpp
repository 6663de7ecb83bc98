// Greeting, farewell, lists of servers, and what a broken connection means.
#include "cddb/cddbp_session.h"

#include "base/log.h"
#include "base/text.h"
#include "cddb/wire_text.h"

namespace orvanta {

namespace {

constexpr int kListFollows = 210;

Shape shapeOf(SessionState state) {
  return state == SessionState::QueryDue || state == SessionState::RecordDue ? Shape::Reply : Shape::Line;
}

}  // namespace

CddbpSession::CddbpSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose, SessionEvents& events)
    : Session(kCddbpRoad, settings, table, purpose, events) {
  state_ = SessionState::BannerDue;
  connection_ = net.connect(std::string(trim(settings.cddbServer)), static_cast<uint16_t>(settings.cddbPort), *this);
}

void CddbpSession::ask(SessionState due, const std::string& command) {
  logLine("cddb", "> " + command);
  state_ = due;
  heard_ = 0;
  if (due == SessionState::QueryDue || due == SessionState::RecordDue) shaper_.clear();
  if (connection_ == nullptr || !connection_->send(command + "\r\n")) giveUp("");
}

void CddbpSession::leave() {
  state_ = SessionState::Idle;
  if (connection_ != nullptr) connection_->send("quit\r\n");
  connection_.reset();
}

/// The hello goes out before the banner is there.
void CddbpSession::connected() {
  const auto alive = alive_;
  ask(SessionState::BannerDue, joined({"cddb hello", toWire(settings_.emailUser), toWire(settings_.emailDomain), "Orvanta 10.0"}));
  if (*alive && due()) events_.sessionStatus("Connected to CDDB Server");
}

void CddbpSession::received(std::string_view bytes) {
  if (!due()) return;
  heard_ += bytes.size();
  if (heard_ > ReplyShaper::kMost || !shaper_.take(bytes)) {
    giveUp("The server's reply has no end.");
    return;
  }
  const auto alive = alive_;
  while (*alive && due()) {
    const auto reply = shaper_.next(shapeOf(state_));
    if (!reply) return;
    line(*reply);
  }
}

void CddbpSession::line(const std::string& reply) {
  switch (state_) {
    case SessionState::BannerDue:
    case SessionState::HelloDue:
      // Who refuses a stranger may leave the line open and say no more.
      if (replyCode(cleanStart(reply)) >= kFirstRefusal) {
        giveUp(lineAsText(reply));
      } else if (state_ == SessionState::BannerDue) {
        state_ = SessionState::HelloDue;
      } else if (startsWithNoCase(trim(reply), "200 hello")) {
        shookHands();
      }
      break;
    case SessionState::SitesDue: siteLine(cleanStart(reply)); break;
    default: replied(reply);
  }
}

void CddbpSession::shookHands() {
  if (purpose_ != Purpose::Sites) {
    askDiscId();
    return;
  }
  const auto alive = alive_;
  events_.sessionStatus("Getting CDDB Sites Listing...");
  // Servers know this command with its blank.
  if (*alive) ask(SessionState::SitesDue, "sites ");
}

void CddbpSession::siteLine(std::string_view line) {
  constexpr size_t kShortest = 3;
  const std::string_view bare = trim(line.substr(0, line.find_first_of("\r\n")));
  const bool first = !siteSeen_;
  siteSeen_ = true;
  if (first && replyCode(bare) >= kFirstRefusal) {
    giveUp(lineAsText(line));
  } else if (bare.size() < 2) {
    sitesEnd();
  } else if (bare.size() >= kShortest && replyCode(bare) != kListFollows) {
    sites_.append(bare).append("\r\n");
  }
}

void CddbpSession::sitesEnd() {
  leave();
  events_.sitesArrived(sites_);
}

void CddbpSession::closed() { failed(""); }

/// A connection that breaks when nothing is due is missed by nobody.
void CddbpSession::failed(const std::string& reason) {
  if (due()) {
    giveUp(reason);
  } else {
    drop();
  }
}

}  // namespace orvanta
