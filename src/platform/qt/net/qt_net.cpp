// The network by Qt: a module of its own, so that a start without it does not load what it links.
#include <QTcpServer>

#include "platform/qt/late_net.h"
#include "platform/qt/net/qt_connection.h"
#include "platform/qt/net/qt_exchange.h"

namespace orvanta {

namespace {

/// Holds the last who called; what they say is never read.
class QtListener : public QObject, public Connection {
 public:
  explicit QtListener(uint16_t port) {
    connect(&server_, &QTcpServer::newConnection, this, [this] {
      while (QTcpSocket* caller = server_.nextPendingConnection()) last_.reset(caller);
    });
    server_.listen(QHostAddress::LocalHost, port);
  }
  bool send(std::string_view /*bytes*/) override { return false; }

 private:
  QTcpServer server_;
  std::unique_ptr<QTcpSocket> last_;
};

class QtNet : public Net {
 public:
  explicit QtNet(CoreGate& gate) : gate_(gate) {}
  std::unique_ptr<Connection> connect(const std::string& host, uint16_t port, ConnectionEvents& events) override {
    return std::make_unique<QtConnection>(gate_, host, port, events);
  }
  std::unique_ptr<Connection> listen(uint16_t port) override { return std::make_unique<QtListener>(port); }
  std::unique_ptr<Exchange> post(const HttpRequest& request, std::function<void(const HttpReply&)> done) override {
    return std::make_unique<QtExchange>(gate_, request, std::move(done));
  }

 private:
  CoreGate& gate_;
};

}  // namespace

extern "C" __attribute__((visibility("default"))) Net* orvantaNet(CoreGate* gate) { return new QtNet(*gate); }

}  // namespace orvanta
