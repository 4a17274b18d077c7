// Sockets on Qt: one QTcpSocket per connection, its events delivered on the Qt
// event loop, never from inside a call on the socket.
#pragma once

#include <QAbstractSocket>
#include <cstdint>
#include <memory>
#include <string>

#include "runtime/platform/socket.hpp"
#include "runtime/platform/socket_input.hpp"

class QTcpSocket;

namespace tessarine::desktop {

// The program's error code for a Qt socket error (RemoteHostClosedError is 102).
int SocketErrorCode(QAbstractSocket::SocketError error);

// One TCP connection over a QTcpSocket. A new Connect drops the old QTcpSocket, so
// that nothing it still had queued reaches the new connection.
class QtSocket final : public Socket {
 public:
  QtSocket();
  ~QtSocket() override;
  QtSocket(const QtSocket&) = delete;
  QtSocket& operator=(const QtSocket&) = delete;

  void SetListener(SocketListener* listener) override { listener_ = listener; }
  void Connect(const std::string& host, int port) override;
  void Write(std::string_view bytes) override;
  std::string Read(std::size_t n) override;
  std::string ReadAll() override;
  std::string_view Lookahead() const override { return in_.Unread(); }
  void Close() override;
  int LastErrorCode() const override { return last_error_; }
  bool IsConnected() const override { return state_ == State::kConnected; }

 private:
  enum class State { kIdle, kConnecting, kConnected, kFailed };

  // Runs `action` on the event loop if this socket still lives and still runs the
  // same connection then.
  template <typename Action>
  void Later(Action action);
  void Drop();
  void OnConnected();
  // Moves what Qt holds into the buffer, up to the high-water mark; true when new
  // bytes came.
  bool Pull();
  void OnReadyRead();
  void OnError(QAbstractSocket::SocketError error);
  void Fail(int code);
  // Asks for another Pull once the listener has taken bytes.
  void ResumeReading();

  SocketListener* listener_ = nullptr;
  QTcpSocket* tcp_ = nullptr;
  std::uint64_t generation_ = 0;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
  State state_ = State::kIdle;
  int last_error_ = kSocketNoError;
  bool pull_posted_ = false;
  SocketInput in_;
  std::string out_;
};

// Hands out QtSockets; they live on the thread of the QApplication.
class QtSocketFactory final : public SocketFactory {
 public:
  std::unique_ptr<Socket> NewSocket() override { return std::make_unique<QtSocket>(); }
};

}  // namespace tessarine::desktop
