// Whole conversations, over HTTP, CDDBP and mail: whatever a server says, and wherever it breaks off, each ends with one last word, and
// never says more than one line at a time. The first byte chooses the road and how the rest arrives.
#include <utility>

#include "cddb/mail_session.h"
#include "cddb/session.h"
#include "fuzz/check.h"

using namespace orvanta;

namespace {

/// A network with a server that says what it is told to.
struct Stub : Net {
  struct Line : Connection {
    explicit Line(Stub& at) : net(at) {}
    ~Line() override { net.line = nullptr; }
    Line(const Line&) = delete;
    bool send(std::string_view bytes) override {
      check(bytes.size() < 2 || bytes.find('\n') >= bytes.size() - 1 || bytes.substr(0, 6) == "# xmcd" || bytes == "\r\n.\r\n");
      return true;
    }
    Stub& net;
  };
  struct Question : Exchange {
    explicit Question(Stub& at) : net(at) {}
    ~Question() override {
      if (net.question == this) net.done = nullptr;
    }
    Question(const Question&) = delete;
    Stub& net;
  };
  std::unique_ptr<Connection> connect(const std::string& /*host*/, uint16_t /*port*/, ConnectionEvents& to) override {
    events = &to;
    auto connection = std::make_unique<Line>(*this);
    line = connection.get();
    return connection;
  }
  std::unique_ptr<Connection> listen(uint16_t /*port*/) override { return nullptr; }
  std::unique_ptr<Exchange> post(const HttpRequest& request, std::function<void(const HttpReply&)> then) override {
    check(request.body.find_first_of("\r\n") == std::string::npos);
    auto asked = std::make_unique<Question>(*this);
    question = asked.get();
    done = std::move(then);
    return asked;
  }
  ConnectionEvents* events = nullptr;
  Line* line = nullptr;
  Question* question = nullptr;
  std::function<void(const HttpReply&)> done;
};

struct Watcher : SessionEvents, MailEvents {
  void sessionStatus(const std::string& /*text*/) override {}
  void discIdKnown(const std::string& /*discId*/) override { ++lastWords; }
  void tableRefused(const std::string& /*line*/) override { ++lastWords; }
  void discNotFound(const std::string& /*line*/) override { ++lastWords; }
  void matchesFound(const QueryReply& reply) override {
    if (!reply.rows.empty()) session->retrieve(matchOfRow(reply.rows.front()));
  }
  void recordArrived(const std::string& /*bytes*/) override { ++lastWords; }
  void sitesArrived(const std::string& /*list*/) override { ++lastWords; }
  void nothingArrived() override { ++lastWords; }
  void sessionFailed(const std::string& /*reason*/) override { ++lastWords; }
  void mailUnderWay() override {}
  void mailSent() override { ++lastWords; }
  void mailRejected(const std::string& /*line*/) override { ++lastWords; }
  void mailRefused(const std::string& /*line*/) override {}
  void mailBroken(const std::string& /*reason*/) override { ++lastWords; }
  std::unique_ptr<Session> session;
  int lastWords = 0;
};

void overTcp(Stub& net, std::string_view bytes, size_t piece) {
  net.events->connected();
  for (size_t at = 0; at < bytes.size() && net.line != nullptr; at += piece) net.events->received(bytes.substr(at, piece));
  if (net.line != nullptr) net.events->closed();
}

void overHttp(Stub& net, std::string_view bytes, int status) {
  while (net.done) {
    const auto end = bytes.find('\x1e');
    const HttpReply reply{status, std::string(bytes.substr(0, end)), ""};
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    const auto done = std::exchange(net.done, nullptr);
    done(reply);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const size_t piece = 1 + data[0] / 8;
  const std::string_view bytes = bytesOf(data + 1, size - 1);
  const std::string lengths[] = {"", "4:06", "4:58", "4:25"};
  const int32_t frames[] = {150, 27, 25, 22};
  CddbSettings settings;
  settings.cddbServer = "server";
  settings.useCddbp = data[0] % 4 != 0;
  Stub net;
  Watcher watcher;
  if (data[0] % 4 == 3) {
    MailSession mail(net, {"mail", 25, "user", "domain", "to", "misc", "1f032a03", "# xmcd\r\n"}, watcher);
    overTcp(net, bytes, piece);
  } else {
    watcher.session = startSession(net, settings, {3, lengths, frames}, data[0] % 4 == 2 ? Purpose::Sites : Purpose::Lookup, watcher);
    settings.useCddbp ? overTcp(net, bytes, piece) : overHttp(net, bytes, data[0] == 4 ? 404 : 200);
  }
  check(watcher.lastWords == 1);
  return 0;
}
