// Finding the module; and what stands in its place where it was not installed.
#include "platform/qt/late_net.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QTimer>

#include "base/log.h"

namespace orvanta {

namespace {

constexpr const char* kMissing = "The program's network module is missing.";

/// Fails in the next turn, as a connection that comes to nothing does.
template <class Base>
class Failing : public Base {
 public:
  Failing(CoreGate& gate, std::function<void()> tell) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&gate, tell = std::move(tell)] {
      const auto last = tell;
      gate.enter(last);
    });
    timer_.setSingleShot(true);
    timer_.start(0);
  }

 private:
  QTimer timer_;
};

struct DeafConnection : Connection {
  bool send(std::string_view /*bytes*/) override { return false; }
};

class NoNet : public Net {
 public:
  explicit NoNet(CoreGate& gate) : gate_(gate) {}
  std::unique_ptr<Connection> connect(const std::string& /*host*/, uint16_t /*port*/, ConnectionEvents& events) override {
    return std::make_unique<Failing<DeafConnection>>(gate_, [&events] { events.failed(kMissing); });
  }
  std::unique_ptr<Connection> listen(uint16_t /*port*/) override { return std::make_unique<DeafConnection>(); }
  std::unique_ptr<Exchange> post(const HttpRequest& /*request*/, std::function<void(const HttpReply&)> done) override {
    return std::make_unique<Failing<Exchange>>(gate_, [done = std::move(done)] { done({0, "", kMissing}); });
  }

 private:
  CoreGate& gate_;
};

}  // namespace

Net& LateNet::net() {
  if (net_ != nullptr) return *net_;
  QLibrary module(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/orvanta/") + QLatin1String(kNetModule));
  const auto make = reinterpret_cast<MakeNet>(module.resolve(kMakeNet));
  if (make == nullptr) {
    logLine("cddb", module.errorString().toStdString());
    net_ = std::make_unique<NoNet>(gate_);
  } else {
    net_.reset(make(&gate_));
  }
  return *net_;
}

}  // namespace orvanta
