// The network by Qt against servers on loopback: what arrives, what is sent, and what is not.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "platform/qt/late_net.h"
#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

constexpr int kPatience = 5000;

/// One client at a time; keeps what it says and answers with what it is told to.
struct Server {
  Server() {
    server.listen(QHostAddress::LocalHost);
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
      client = server.nextPendingConnection();
      ++clients;
      if (!greeting.empty()) say(greeting);
      QObject::connect(client, &QTcpSocket::readyRead, client, [this] {
        heard += client->readAll().toStdString();
        if (answers.empty() || heard.find(until) == std::string::npos) return;
        heardBefore += std::exchange(heard, "");
        say(answers.front());
        answers.pop_front();
        if (closes) client->disconnectFromHost();
      });
      QObject::connect(client, &QTcpSocket::disconnected, client, [this] { gone = true; });
    });
  }
  void say(const std::string& bytes) { client->write(bytes.data(), static_cast<qint64>(bytes.size())); }
  uint16_t port() const { return server.serverPort(); }

  QTcpServer server;
  QTcpSocket* client = nullptr;
  std::string greeting;
  std::deque<std::string> answers;
  std::string until = "\r\n\r\n";  ///< what a question ends with
  std::string heard, heardBefore;
  bool closes = true;
  bool gone = false;
  int clients = 0;
};

struct Taped : ConnectionEvents {
  void connected() override { tell("connected"); }
  void received(std::string_view bytes) override { tell(std::string(bytes)); }
  void closed() override { tell("closed"); }
  void failed(const std::string& reason) override { tell(reason.empty() ? "failed without a word" : "failed"); }
  void tell(const std::string& what) {
    if (within) nested = true;
    within = true;
    tape.push_back(what);
    if (onTell) onTell();
    within = false;
  }
  Tape tape;
  std::function<void()> onTell;
  bool within = false;
  bool nested = false;
};

struct NetTest : testing::Test {
  CoreGate gate;
  LateNet net{gate};
  Server server;
  Taped events;

  HttpReply post(HttpRequest request) {
    HttpReply got;
    bool done = false;
    const auto exchange = net.post(request, [&](const HttpReply& reply) {
      got = reply;
      done = true;
    });
    EXPECT_FALSE(done) << "nothing before it returns";
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, kPatience));
    return got;
  }
  HttpRequest request() const { return {"http://127.0.0.1/~cddb/cddb.cgi", server.port(), "cmd=x&hello=a+b", "", "me", "secret", 1000}; }
};

TEST_F(NetTest, ConnectionTellsWhatHappensInOrder) {
  server.greeting = "201 ready\r\n";
  const auto connection = net.connect("127.0.0.1", server.port(), events);
  EXPECT_FALSE(connection->send("too early"));
  EXPECT_TRUE(events.tape.empty());
  ASSERT_TRUE(QTest::qWaitFor([&] { return events.tape.size() == 2; }, kPatience));
  EXPECT_TRUE(connection->send("hello\r\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return server.heard == "hello\r\n"; }, kPatience));
  server.say("last");
  server.client->disconnectFromHost();
  ASSERT_TRUE(QTest::qWaitFor([&] { return events.tape.size() == 4; }, kPatience));
  EXPECT_EQ(events.tape, (Tape{"connected", "201 ready\r\n", "last", "closed"}));
  EXPECT_FALSE(connection->send("too late"));
}

TEST_F(NetTest, HandlersAreNotEnteredTwice) {
  server.greeting = "201 ready\r\n";
  std::unique_ptr<Connection> connection;
  events.onTell = [&] {
    // As a box would do that is open within a handler.
    if (events.tape.size() == 1) QTest::qWait(200);
  };
  connection = net.connect("127.0.0.1", server.port(), events);
  ASSERT_TRUE(QTest::qWaitFor([&] { return events.tape.size() == 2; }, kPatience));
  EXPECT_FALSE(events.nested);
}

TEST_F(NetTest, DroppingSendsWhatWasGivenAndTellsNothing) {
  std::unique_ptr<Connection> connection = net.connect("127.0.0.1", server.port(), events);
  events.onTell = [&] {
    connection->send("quit\r\n");
    connection.reset();
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return server.gone; }, kPatience));
  EXPECT_EQ(server.heard, "quit\r\n");
  EXPECT_EQ(events.tape, (Tape{"connected"}));
}

TEST_F(NetTest, FailsWhereNobodyListens) {
  const uint16_t port = server.port();
  server.server.close();
  const auto connection = net.connect("127.0.0.1", port, events);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !events.tape.empty(); }, kPatience));
  EXPECT_EQ(events.tape, (Tape{"failed"}));
}

TEST_F(NetTest, ListenerTakesCallersAndKeepsQuiet) {
  const uint16_t port = server.port();
  server.server.close();
  {
    const auto listener = net.listen(port);
    const auto second = net.listen(port);
    const auto caller = net.connect("127.0.0.1", port, events);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !events.tape.empty(); }, kPatience));
    EXPECT_EQ(events.tape.front(), "connected");
    EXPECT_TRUE(caller->send("anything"));
    EXPECT_FALSE(listener->send("x"));
  }
  Taped later;
  const auto caller = net.connect("127.0.0.1", port, later);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !later.tape.empty(); }, kPatience));
  EXPECT_EQ(later.tape, (Tape{"failed"})) << "dropped, it listens no more";
}

TEST_F(NetTest, PostsAForm) {
  server.answers = {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n3\r\n200\r\n4\r\n ok\n\r\n0\r\n\r\n"};
  server.until = "cmd=x&hello=a+b";
  const HttpReply reply = post(request());
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.body, "200 ok\n");
  EXPECT_EQ(reply.error, "");
  const std::string sent = server.heardBefore;
  EXPECT_EQ(sent.rfind("POST /~cddb/cddb.cgi HTTP/1.1\r\n", 0), 0U) << sent;
  EXPECT_NE(sent.find("Content-Type: application/x-www-form-urlencoded\r\n"), std::string::npos) << sent;
  EXPECT_EQ(sent.substr(sent.find("\r\n\r\n") + 4), "cmd=x&hello=a+b");
  EXPECT_EQ(sent.find("secret"), std::string::npos);
}

TEST_F(NetTest, TakesRepliesAsTheyAre) {
  const std::string whole(1000, 'x');
  const struct {
    std::string answer;
    int status;
    std::string body;
    bool error;
  } cases[] = {
      {"HTTP/1.0 200 OK\r\n\r\nclosed without a length", 200, "closed without a length", false},
      {"HTTP/1.0 404 Not Found\r\nContent-Length: 4\r\n\r\nnone", 404, "none", false},
      {"HTTP/1.0 500 Oops\r\nContent-Length: 0\r\n\r\n", 500, "", false},
      {"HTTP/1.0 302 Found\r\nLocation: http://127.0.0.1:1/\r\nContent-Length: 0\r\n\r\n", 302, "", false},
      {"HTTP/1.0 401 Who\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 0\r\n\r\n", 401, "", false},
      {"HTTP/1.0 200 OK\r\nContent-Length: 50\r\n\r\ncut off", 0, "", true},
      {"HTTP/1.0 200 OK\r\n\r\n" + whole, 200, whole, false},
      {"HTTP/1.0 200 OK\r\n\r\n" + whole + "x", 0, "", true},
      {"no HTTP at all\r\n", 0, "", true},
      {"", 0, "", true},
  };
  server.until = "cmd=x&hello=a+b";
  for (const auto& each : cases) {
    // A line that breaks before a reply is tried again a few times.
    server.answers.assign(10, each.answer);
    const HttpReply reply = post(request());
    EXPECT_EQ(!reply.error.empty(), each.error) << each.answer;
    EXPECT_EQ(each.error ? 0 : reply.status, each.status) << each.answer;
    EXPECT_EQ(reply.body, each.body);
    EXPECT_EQ(server.heardBefore.find("secret"), std::string::npos);
  }
}

TEST_F(NetTest, ProxyAlonePlaysThePorter) {
  const std::string porter = "HTTP/1.1 407 Who\r\nProxy-Authenticate: Basic realm=\"x\"\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
  HttpRequest through = request();
  through.url = "server.invalid/cddb.cgi";
  through.port = 8080;
  through.proxy = "127.0.0.1:" + std::to_string(server.port());
  server.until = "cmd=x&hello=a+b";
  server.answers = {porter, "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nConnection: close\r\n\r\nok"};
  EXPECT_EQ(post(through).body, "ok");
  EXPECT_EQ(server.heardBefore.rfind("POST http://server.invalid:8080/cddb.cgi HTTP/1.1\r\n", 0), 0U) << server.heardBefore;
  EXPECT_NE(server.heardBefore.find("Proxy-Authorization: Basic bWU6c2VjcmV0\r\n"), std::string::npos) << server.heardBefore;
  server.answers.assign(10, porter);
  EXPECT_NE(post(through).error, "") << "refused once, it is not asked for ever";
}

TEST_F(NetTest, DroppedQuestionsAreNeverAnswered) {
  server.until = "cmd=x&hello=a+b";
  bool done = false;
  auto exchange = net.post(request(), [&](const HttpReply&) { done = true; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return server.heard.find("hello=a+b") != std::string::npos; }, kPatience));
  exchange.reset();
  ASSERT_TRUE(QTest::qWaitFor([&] { return server.gone; }, kPatience)) << "and the line is given up";
  EXPECT_FALSE(done);
  // In its own answer.
  server.answers = {"HTTP/1.0 200 OK\r\n\r\nx"};
  server.heard.clear();
  exchange = net.post(request(), [&](const HttpReply&) {
    exchange.reset();
    done = true;
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, kPatience));
}

}  // namespace
}  // namespace orvanta::test
