// A network with one server, which speaks from a script on the virtual clock: one event each ten milliseconds.
#pragma once

#include <deque>
#include <map>

#include "platform/ports/net.h"
#include "tests/support/cddb_data.h"
#include "tests/support/fakes.h"
#include "tests/support/virtual_clock.h"

namespace orvanta::test {

class FakeNet : public Net {
 public:
  enum class End { Close, Reset, Silence };

  explicit FakeNet(VirtualClock& clock) : timer_(clock.makeTimer([this] { tick(); })) { timer_->setInterval(10); }

  std::unique_ptr<Connection> connect(const std::string& host, uint16_t port, ConnectionEvents& events) override {
    tape.push_back("connect " + host + " " + std::to_string(port));
    auto connection = std::make_unique<Line>(*this, events);
    later(connection->alive, [this, &events, port, line = connection.get()] {
      if (refuses) return events.failed("Connection refused");
      line->open = true;
      const Exchanged greeting = greetings.contains(port) ? greetings.at(port) : script.empty() ? Exchanged{} : script.front();
      say(*line, greeting.answered, greeting.closes);
      events.connected();
    });
    return connection;
  }
  std::unique_ptr<Connection> listen(uint16_t port) override {
    tape.push_back("listen " + std::to_string(port));
    return nullptr;
  }
  std::unique_ptr<Exchange> post(const HttpRequest& request, std::function<void(const HttpReply&)> done) override {
    requests.push_back(request);
    tape.push_back(request.body);
    auto question = std::make_unique<Question>(*this);
    if (end == End::Silence) return question;
    const Exchanged* found = answerTo(request.body);
    const HttpReply reply{status, found == nullptr ? "" : found->answered, refuses ? "Connection refused" : ""};
    later(question->alive, [done = std::move(done), reply] { done(reply); });
    return question;
  }

  std::vector<Exchanged> script;            ///< the first is the banner
  std::map<uint16_t, Exchanged> greetings;  ///< of other servers, by port
  size_t piece = 0;                         ///< bytes an arrival; 0: each answer in one
  size_t most = std::string::npos;          ///< bytes that are said at all, upon which `end` comes
  End end = End::Close;
  bool refuses = false;
  int status = 200;
  bool inOrder = false;  ///< each question gets the script's next answer, whatever it was
  Tape tape;             ///< what was asked of the network, and "drop"
  std::vector<HttpRequest> requests;

 private:
  using Alive = std::shared_ptr<bool>;
  struct Line : Connection {
    Line(FakeNet& at, ConnectionEvents& to) : net(at), events(to) {}
    Line(const Line&) = delete;
    ~Line() override {
      *alive = false;
      net.tape.emplace_back("drop");
    }
    bool send(std::string_view bytes) override {
      if (!open) return false;
      net.tape.emplace_back(bytes);
      const Exchanged* found = net.answerTo(std::string(bytes));
      if (found != nullptr) net.say(*this, found->answered, found->closes);
      return true;
    }
    FakeNet& net;
    ConnectionEvents& events;
    Alive alive = std::make_shared<bool>(true);
    bool open = false;
  };
  struct Question : Exchange {
    explicit Question(FakeNet& at) : net(at) {}
    Question(const Question&) = delete;
    ~Question() override { *alive = false; }
    FakeNet& net;
    Alive alive = std::make_shared<bool>(true);
  };

  const Exchanged* answerTo(const std::string& asked) {
    static const Exchanged kGone{"", "", true};
    if (inOrder) return ++answered_ < script.size() ? &script[answered_] : &kGone;
    const auto found = std::find_if(script.begin(), script.end(), [&](const Exchanged& each) { return each.asked == asked; });
    return found == script.end() ? nullptr : &*found;
  }

  void say(Line& line, std::string bytes, bool closes) {
    const bool cut = bytes.size() > most;
    if (cut) bytes.resize(most);
    if (most != std::string::npos) most -= bytes.size();
    for (size_t at = 0; at < bytes.size();) {
      const std::string part = bytes.substr(at, piece == 0 ? std::string::npos : piece);
      at += part.size();
      later(line.alive, [&line, part] { line.events.received(part); });
    }
    if ((!cut && !closes) || (cut && end == End::Silence)) return;
    most = 0;
    later(line.alive, [this, &line] {
      line.open = false;
      end == End::Reset ? line.events.failed("Connection reset by peer") : line.events.closed();
    });
  }

  void later(const Alive& alive, std::function<void()> event) {
    due_.push_back([alive, event = std::move(event)] {
      if (*alive) event();
    });
  }

  void tick() {
    if (due_.empty()) return;
    const auto event = std::move(due_.front());
    due_.pop_front();
    event();
  }

  size_t answered_ = 0;
  std::deque<std::function<void()>> due_;
  std::unique_ptr<Timer> timer_;
};

}  // namespace orvanta::test
