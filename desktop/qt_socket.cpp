#include "qt_socket.hpp"

#include <QCoreApplication>
#include <QTcpSocket>
#include <algorithm>
#include <utility>

namespace tessarine::desktop {

namespace {

// Past this many unread bytes the socket stops reading until its listener takes
// some, and Qt's own buffer stops at the same size, so a download's memory stays flat.
constexpr std::size_t kHighWater = 1024 * 1024;

}  // namespace

int SocketErrorCode(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::RemoteHostClosedError:
      return kSocketPeerClosed;
    case QAbstractSocket::HostNotFoundError:
      return kSocketLookupFailed;
    case QAbstractSocket::ConnectionRefusedError:
      return kSocketRefused;
    case QAbstractSocket::SocketResourceError:
      return kSocketNoResources;
    default:
      return kSocketNetworkError;
  }
}

QtSocket::QtSocket() = default;

QtSocket::~QtSocket() {
  Drop();
}

template <typename Action>
void QtSocket::Later(Action action) {
  QMetaObject::invokeMethod(
      QCoreApplication::instance(),
      [this, alive = std::weak_ptr<bool>(alive_), generation = generation_, action] {
        if (!alive.expired() && generation == generation_) action();
      },
      Qt::QueuedConnection);
}

void QtSocket::Drop() {
  if (tcp_ != nullptr) {
    QObject::disconnect(tcp_, nullptr, nullptr, nullptr);
    tcp_->abort();
    // Not deleted at once: this may run inside an event the QTcpSocket delivers.
    tcp_->deleteLater();
    tcp_ = nullptr;
  }
  ++generation_;
  state_ = State::kIdle;
  pull_posted_ = false;
  in_.Clear();
  out_.clear();
}

void QtSocket::Close() {
  Drop();
}

void QtSocket::Connect(const std::string& host, int port) {
  Drop();
  last_error_ = kSocketNoError;
  state_ = State::kConnecting;
  if (port < 1 || port > 65535) {
    Later([this] { Fail(kSocketBadPort); });
    return;
  }
  tcp_ = new QTcpSocket();
  tcp_->setReadBufferSize(static_cast<qint64>(kHighWater));
  const auto guarded = [this, alive = std::weak_ptr<bool>(alive_),
                        generation = generation_](auto action) {
    return [this, alive, generation, action](auto... args) {
      if (!alive.expired() && generation == generation_) (this->*action)(args...);
    };
  };
  // Queued: no event is raised from inside a call such as connectToHost or write.
  QObject::connect(tcp_, &QTcpSocket::connected, tcp_, guarded(&QtSocket::OnConnected),
                   Qt::QueuedConnection);
  QObject::connect(tcp_, &QTcpSocket::readyRead, tcp_, guarded(&QtSocket::OnReadyRead),
                   Qt::QueuedConnection);
  QObject::connect(tcp_, &QTcpSocket::errorOccurred, tcp_, guarded(&QtSocket::OnError),
                   Qt::QueuedConnection);
  tcp_->connectToHost(QString::fromStdString(host), static_cast<quint16>(port));
}

void QtSocket::OnConnected() {
  state_ = State::kConnected;
  if (!out_.empty()) {
    tcp_->write(out_.data(), static_cast<qint64>(out_.size()));
    out_.clear();
  }
  if (listener_ != nullptr) listener_->SocketConnected();
}

void QtSocket::Write(std::string_view bytes) {
  if (state_ == State::kIdle || state_ == State::kFailed) return;
  if (state_ == State::kConnected)
    tcp_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  else
    out_.append(bytes);
}

bool QtSocket::Pull() {
  if (tcp_ == nullptr) return false;
  const std::size_t unread = in_.UnreadSize();
  if (unread >= kHighWater) return false;
  const QByteArray bytes = tcp_->read(static_cast<qint64>(kHighWater - unread));
  if (bytes.isEmpty()) return false;
  in_.Append(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  return true;
}

void QtSocket::OnReadyRead() {
  pull_posted_ = false;
  if (state_ != State::kConnected || !Pull()) return;
  if (tcp_->bytesAvailable() > 0) ResumeReading();
  if (listener_ != nullptr) listener_->SocketDataAvailable();
}

void QtSocket::ResumeReading() {
  if (pull_posted_ || tcp_ == nullptr || tcp_->bytesAvailable() == 0) return;
  pull_posted_ = true;
  Later([this] { OnReadyRead(); });
}

void QtSocket::OnError(QAbstractSocket::SocketError error) {
  if (state_ != State::kConnecting && state_ != State::kConnected) return;
  // The last bytes come first, then the error.
  const QByteArray rest = state_ == State::kConnected ? tcp_->readAll() : QByteArray();
  if (!rest.isEmpty()) {
    in_.Append(std::string_view(rest.constData(), static_cast<std::size_t>(rest.size())));
    const std::weak_ptr<bool> alive = alive_;
    const std::uint64_t generation = generation_;
    if (listener_ != nullptr) listener_->SocketDataAvailable();
    if (alive.expired() || generation != generation_) return;
  }
  Fail(SocketErrorCode(error));
}

void QtSocket::Fail(int code) {
  if (tcp_ != nullptr) QObject::disconnect(tcp_, nullptr, nullptr, nullptr);
  ++generation_;  // nothing queued of this connection arrives any more
  state_ = State::kFailed;
  last_error_ = code;
  out_.clear();
  if (listener_ != nullptr) listener_->SocketError();
}

std::string QtSocket::Read(std::size_t n) {
  std::string out = in_.Take(n);
  ResumeReading();
  return out;
}

std::string QtSocket::ReadAll() {
  std::string out = in_.TakeAll();
  ResumeReading();
  return out;
}

}  // namespace tessarine::desktop
