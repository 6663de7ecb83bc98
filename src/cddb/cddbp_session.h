// A conversation over a TCP connection that stays open from the greeting to the farewell.
#pragma once

#include "cddb/reply_shaper.h"
#include "cddb/session.h"
#include "platform/ports/net.h"

namespace orvanta {

class CddbpSession : public Session, private ConnectionEvents {
 public:
  CddbpSession(Net& net, const CddbSettings& settings, const TrackTable& table, Purpose purpose, SessionEvents& events);

  void leave() override;

 private:
  void ask(SessionState due, const std::string& command) override;
  void closeUnfound() override { drop(); }
  void drop() override { connection_.reset(); }

  void connected() override;
  void received(std::string_view bytes) override;
  void closed() override;
  void failed(const std::string& reason) override;

  void line(const std::string& reply);
  void shookHands();
  void siteLine(std::string_view line);
  void sitesEnd();

  ReplyShaper shaper_;
  std::string sites_;
  size_t heard_ = 0;       ///< bytes since the last question
  bool siteSeen_ = false;  ///< the list's first line has come
  std::unique_ptr<Connection> connection_;
};

}  // namespace orvanta
