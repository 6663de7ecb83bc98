// The same conversation as single questions, each a POST of its own, for those behind a firewall.
#pragma once

#include "cddb/session.h"
#include "platform/ports/net.h"

namespace orvanta {

class HttpSession : public Session {
 public:
  HttpSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose, SessionEvents& events);

 private:
  void ask(SessionState due, const std::string& command) override;
  void drop() override { exchange_.reset(); }
  void completed(const HttpReply& reply);

  Net& net_;
  std::unique_ptr<Exchange> exchange_;
};

}  // namespace orvanta
