// Only the proxy may ask who we are; redirects and other servers' challenges are replies like any other.
#include "platform/qt/net/qt_exchange.h"

#include <QAuthenticator>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QUrl>

namespace orvanta {

namespace {

constexpr int kUsualProxyPort = 80;

QUrl addressOf(const HttpRequest& request) {
  QString text = QString::fromStdString(request.url);
  if (!text.contains(QStringLiteral("://"))) text.prepend(QStringLiteral("http://"));
  QUrl url(text);
  url.setPort(request.port);
  return url;
}

/// Statuses of HTTP are replies, whatever Qt thinks of them; what is below them is no reply.
bool isReply(QNetworkReply::NetworkError error) { return error == QNetworkReply::NoError || error >= QNetworkReply::ContentAccessDenied; }

}  // namespace

QtExchange::QtExchange(CoreGate& gate, const HttpRequest& request, std::function<void(const HttpReply&)> done)
    : gate_(gate), request_(request), done_(std::move(done)), manager_(new QNetworkAccessManager(this)) {
  setProxy();
  QNetworkRequest post(addressOf(request));
  post.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));
  post.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Orvanta/10.0"));
  post.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  post.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  reply_ = manager_->post(post, QByteArray::fromStdString(request.body));
  connect(
      reply_, &QNetworkReply::readyRead, this, [this] { take(); }, Qt::QueuedConnection);
  const auto finished = [this] {
    take();
    if (reply_ == nullptr) return;
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool whole = isReply(reply_->error()) && status != 0;
    finish({status, whole ? body_.toStdString() : "", whole ? "" : reply_->errorString().toStdString()});
  };
  connect(reply_, &QNetworkReply::finished, this, finished, Qt::QueuedConnection);
}

QtExchange::~QtExchange() {
  if (reply_ == nullptr) return;
  QObject::disconnect(reply_, nullptr, nullptr, nullptr);
  reply_->abort();
  // The question may be dropped from within one of the manager's own calls.
  manager_->setParent(nullptr);
  manager_->deleteLater();
}

void QtExchange::setProxy() {
  manager_->setProxy(QNetworkProxy::NoProxy);
  if (request_.proxy.empty()) return;
  const QUrl address(QStringLiteral("http://") + QString::fromStdString(request_.proxy).section(QStringLiteral("://"), -1));
  manager_->setProxy({QNetworkProxy::HttpCachingProxy, address.host(), static_cast<quint16>(address.port(kUsualProxyPort))});
  connect(manager_, &QNetworkAccessManager::proxyAuthenticationRequired, this, [this](const QNetworkProxy&, QAuthenticator* who) {
    if (identified_ || request_.password.empty()) return;
    identified_ = true;
    who->setUser(QString::fromStdString(request_.user));
    who->setPassword(QString::fromStdString(request_.password));
  });
}

void QtExchange::take() {
  if (reply_ == nullptr) return;
  body_ += reply_->readAll();
  if (request_.most > 0 && static_cast<size_t>(body_.size()) > request_.most) finish({0, "", "The server's reply has no end."});
}

/// Told last: the question may be gone when it returns.
void QtExchange::finish(HttpReply reply) {
  QObject::disconnect(reply_, nullptr, this, nullptr);
  if (reply_->isRunning()) reply_->abort();
  manager_->setParent(nullptr);
  manager_->deleteLater();
  reply_ = nullptr;
  const auto done = std::move(done_);
  gate_.enter([&] { done(reply); });
}

}  // namespace orvanta
