#include "runtime/headless/recording_sockets.hpp"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>

namespace tessarine {

namespace {

// One socket of another factory, reporting what passes through it.
class RecordingSocket final : public Socket, private SocketListener {
 public:
  RecordingSocket(std::unique_ptr<Socket> inner, std::shared_ptr<SocketLog> log)
      : inner_(std::move(inner)), log_(std::move(log)) {
    inner_->SetListener(this);
  }

  void SetListener(SocketListener* listener) override { listener_ = listener; }
  void Connect(const std::string& host, int port) override {
    target_ = host + ":" + std::to_string(port);
    unread_ = 0;
    Log("connect", target_);
    inner_->Connect(host, port);
  }
  void Write(std::string_view bytes) override {
    if (!bytes.empty()) Log("sent", std::to_string(bytes.size()));
    inner_->Write(bytes);
  }
  std::string Read(std::size_t n) override {
    std::string bytes = inner_->Read(n);
    unread_ -= std::min(unread_, bytes.size());
    return bytes;
  }
  std::string ReadAll() override {
    unread_ = 0;
    return inner_->ReadAll();
  }
  std::string_view Lookahead() const override { return inner_->Lookahead(); }
  void Close() override {
    unread_ = 0;
    inner_->Close();
  }
  int LastErrorCode() const override { return inner_->LastErrorCode(); }
  bool IsConnected() const override { return inner_->IsConnected(); }

 private:
  // The listener may destroy this socket: nothing of it is touched after forwarding.
  void SocketConnected() override {
    Log("connected", target_);
    if (listener_ != nullptr) listener_->SocketConnected();
  }
  void SocketDataAvailable() override {
    const std::size_t available = inner_->Lookahead().size();
    Log("received", std::to_string(available - std::min(unread_, available)));
    unread_ = available;
    if (listener_ != nullptr) listener_->SocketDataAvailable();
  }
  void SocketError() override {
    Log("socketerror", std::to_string(inner_->LastErrorCode()));
    if (listener_ != nullptr) listener_->SocketError();
  }
  void Log(const std::string& kind, const std::string& text) {
    if (*log_) (*log_)(kind, text);
  }

  std::unique_ptr<Socket> inner_;
  std::shared_ptr<SocketLog> log_;
  SocketListener* listener_ = nullptr;
  std::string target_;
  std::size_t unread_ = 0;  // bytes already reported and not yet read
};

}  // namespace

RecordingSocketFactory::RecordingSocketFactory(SocketFactory& inner, SocketLog log)
    : inner_(&inner), log_(std::make_shared<SocketLog>(std::move(log))) {}

RecordingSocketFactory::~RecordingSocketFactory() {
  *log_ = nullptr;
}

std::unique_ptr<Socket> RecordingSocketFactory::NewSocket() {
  return std::make_unique<RecordingSocket>(inner_->NewSocket(), log_);
}

// The sockets of an offline factory that have a failure to deliver.
class OfflineSocketFactory::Hub {
 public:
  class OfflineSocket;
  std::uint64_t Register(OfflineSocket* socket) {
    sockets_[next_id_] = socket;
    return next_id_++;
  }
  void Unregister(std::uint64_t id) { sockets_.erase(id); }
  bool Pump();

 private:
  std::map<std::uint64_t, OfflineSocket*> sockets_;
  std::uint64_t next_id_ = 1;
};

class OfflineSocketFactory::Hub::OfflineSocket final : public Socket {
 public:
  explicit OfflineSocket(std::shared_ptr<Hub> hub) : hub_(std::move(hub)) {
    id_ = hub_->Register(this);
  }
  ~OfflineSocket() override { hub_->Unregister(id_); }

  void SetListener(SocketListener* listener) override { listener_ = listener; }
  void Connect(const std::string&, int port) override {
    last_error_ = port < 1 || port > 65535 ? kSocketBadPort : kSocketNetworkError;
    pending_ = true;
  }
  void Write(std::string_view) override {}
  std::string Read(std::size_t) override { return {}; }
  std::string ReadAll() override { return {}; }
  std::string_view Lookahead() const override { return {}; }
  void Close() override { pending_ = false; }
  int LastErrorCode() const override { return last_error_; }
  bool IsConnected() const override { return false; }

  bool pending() const { return pending_; }
  // The listener may destroy this socket.
  void Deliver() {
    pending_ = false;
    if (listener_ != nullptr) listener_->SocketError();
  }

 private:
  std::shared_ptr<Hub> hub_;
  std::uint64_t id_ = 0;
  SocketListener* listener_ = nullptr;
  int last_error_ = kSocketNoError;
  bool pending_ = false;
};

bool OfflineSocketFactory::Hub::Pump() {
  std::vector<std::uint64_t> due;
  for (const auto& [id, socket] : sockets_)
    if (socket->pending()) due.push_back(id);
  for (const std::uint64_t id : due) {
    const auto it = sockets_.find(id);
    if (it != sockets_.end() && it->second->pending()) it->second->Deliver();
  }
  // A listener may have connected again meanwhile.
  for (const auto& [id, socket] : sockets_)
    if (socket->pending()) return true;
  return false;
}

OfflineSocketFactory::OfflineSocketFactory() : hub_(std::make_shared<Hub>()) {}

OfflineSocketFactory::~OfflineSocketFactory() = default;

std::unique_ptr<Socket> OfflineSocketFactory::NewSocket() {
  return std::make_unique<Hub::OfflineSocket>(hub_);
}

bool OfflineSocketFactory::Pump(int) {
  return hub_->Pump();
}

}  // namespace tessarine
