// One HTTP question by Qt.
#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include "platform/ports/core_gate.h"
#include "platform/ports/net.h"

namespace orvanta {

class QtExchange : public QObject, public Exchange {
 public:
  QtExchange(CoreGate& gate, const HttpRequest& request, std::function<void(const HttpReply&)> done);
  ~QtExchange() override;
  QtExchange(const QtExchange&) = delete;
  QtExchange& operator=(const QtExchange&) = delete;

 private:
  void setProxy();
  void take();
  void finish(HttpReply reply);

  CoreGate& gate_;
  HttpRequest request_;
  std::function<void(const HttpReply&)> done_;
  QNetworkAccessManager* manager_;  ///< of this question alone, so that no credentials outlive it
  QNetworkReply* reply_;
  QByteArray body_;
  bool identified_ = false;  ///< the proxy was told who we are; it is not told twice
};

}  // namespace orvanta
