// A TCP connection by Qt, whose events come one by one, whatever its handlers do.
#pragma once

#include <QTcpSocket>
#include <memory>

#include "platform/ports/core_gate.h"
#include "platform/ports/net.h"

namespace orvanta {

class QtConnection : public QObject, public Connection {
 public:
  QtConnection(CoreGate& gate, const std::string& host, uint16_t port, ConnectionEvents& events);
  ~QtConnection() override;
  QtConnection(const QtConnection&) = delete;
  QtConnection& operator=(const QtConnection&) = delete;

  bool send(std::string_view bytes) override;

 private:
  void tellAll();
  bool tellNext();

  CoreGate& gate_;
  ConnectionEvents& events_;
  QTcpSocket* socket_;
  bool connectedTold_ = false;
  bool endTold_ = false;
  bool telling_ = false;
};

}  // namespace orvanta
