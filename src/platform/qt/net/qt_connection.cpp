// What the socket has come to is looked at in turns of the event loop, never within a call of the core's.
#include "platform/qt/net/qt_connection.h"

#include <QNetworkProxy>
#include <QPointer>
#include <QTimer>

namespace orvanta {

namespace {

constexpr qint64 kBuffer = 256 * 1024;  ///< bytes that wait while a handler runs
constexpr int kFarewell = 3000;         ///< milliseconds for what was given to go out

/// Sends what waits, closes, and is gone; a peer that takes nothing is cut off.
void endSocket(QTcpSocket* socket) {
  QObject::disconnect(socket, nullptr, nullptr, nullptr);
  socket->setParent(nullptr);
  if (socket->state() != QAbstractSocket::ConnectedState) {
    socket->abort();
    socket->deleteLater();
    return;
  }
  QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  QTimer::singleShot(kFarewell, socket, [socket] {
    socket->abort();
    socket->deleteLater();
  });
  socket->flush();
  socket->disconnectFromHost();
}

}  // namespace

QtConnection::QtConnection(CoreGate& gate, const std::string& host, uint16_t port, ConnectionEvents& events)
    : gate_(gate), events_(events), socket_(new QTcpSocket(this)) {
  // The user's own settings alone decide about proxies.
  socket_->setProxy(QNetworkProxy::NoProxy);
  socket_->setReadBufferSize(kBuffer);
  const auto look = [this] { tellAll(); };
  connect(socket_, &QTcpSocket::connected, this, look, Qt::QueuedConnection);
  connect(socket_, &QTcpSocket::readyRead, this, look, Qt::QueuedConnection);
  connect(socket_, &QTcpSocket::disconnected, this, look, Qt::QueuedConnection);
  connect(socket_, &QTcpSocket::errorOccurred, this, look, Qt::QueuedConnection);
  socket_->connectToHost(QString::fromStdString(host), port);
}

QtConnection::~QtConnection() { endSocket(socket_); }

bool QtConnection::send(std::string_view bytes) {
  if (socket_->state() != QAbstractSocket::ConnectedState) return false;
  return socket_->write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
}

void QtConnection::tellAll() {
  if (telling_) return;
  const QPointer<QtConnection> self(this);
  const CoreGate& gate = gate_;
  telling_ = true;
  while (self && !gate.ended() && tellNext()) {
  }
  if (self) telling_ = false;
}

/// One event; false when there is none. The connection may be gone afterwards.
bool QtConnection::tellNext() {
  const bool up = socket_->state() == QAbstractSocket::ConnectedState;
  if (up && !connectedTold_) {
    connectedTold_ = true;
    gate_.enter([this] { events_.connected(); });
  } else if (socket_->bytesAvailable() > 0) {
    const QByteArray bytes = socket_->readAll();
    gate_.enter([&] { events_.received({bytes.constData(), static_cast<size_t>(bytes.size())}); });
  } else if (socket_->state() == QAbstractSocket::UnconnectedState && !endTold_) {
    endTold_ = true;
    const bool byPeer = socket_->error() == QAbstractSocket::RemoteHostClosedError;
    const std::string reason = socket_->errorString().toStdString();
    gate_.enter([&] { byPeer ? events_.closed() : events_.failed(reason); });
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
