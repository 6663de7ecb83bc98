// The network, loaded when it is first used: its libraries would cost every start some milliseconds.
#pragma once

#include <memory>

#include "platform/ports/core_gate.h"
#include "platform/ports/net.h"

namespace orvanta {

class LateNet : public Net {
 public:
  explicit LateNet(CoreGate& gate) : gate_(gate) {}
  std::unique_ptr<Connection> connect(const std::string& host, uint16_t port, ConnectionEvents& events) override {
    return net().connect(host, port, events);
  }
  std::unique_ptr<Connection> listen(uint16_t port) override { return net().listen(port); }
  std::unique_ptr<Exchange> post(const HttpRequest& request, std::function<void(const HttpReply&)> done) override {
    return net().post(request, std::move(done));
  }

 private:
  Net& net();

  CoreGate& gate_;
  std::unique_ptr<Net> net_;
};

/// The module's one way in. It lies under this name in "lib/orvanta" beside the programs' folder.
using MakeNet = Net* (*)(CoreGate* gate);
inline constexpr const char* kMakeNet = "orvantaNet";
inline constexpr const char* kNetModule = "orvanta_net";

}  // namespace orvanta
