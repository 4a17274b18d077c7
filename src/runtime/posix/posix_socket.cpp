#include "runtime/posix/posix_socket.hpp"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "runtime/platform/socket_input.hpp"

namespace tessarine {
namespace posix_socket_detail {

namespace {

// One read per socket and pump round: small enough to keep a download's memory
// flat, large enough for loopback speed.
constexpr std::size_t kReadChunk = std::size_t{64} * 1024;
// Past this many unread bytes a socket stops reading until its listener takes some.
constexpr std::size_t kHighWater = std::size_t{1024} * 1024;

int MapErrno(int err) {
  switch (err) {
    case ECONNREFUSED:
      return kSocketRefused;
    case ECONNRESET:
    case EPIPE:
    case ECONNABORTED:
      return kSocketReset;
    case EMFILE:
    case ENFILE:
    case ENOBUFS:
    case ENOMEM:
      return kSocketNoResources;
    default:
      return kSocketNetworkError;
  }
}

}  // namespace

// The self-pipe that wakes poll when a name lookup ends on its helper thread.
class WakePipe {
 public:
  WakePipe() {
    if (pipe2(fds_, O_NONBLOCK | O_CLOEXEC) != 0) fds_[0] = fds_[1] = -1;
  }
  ~WakePipe() {
    if (fds_[0] >= 0) close(fds_[0]);
    if (fds_[1] >= 0) close(fds_[1]);
  }
  WakePipe(const WakePipe&) = delete;
  WakePipe& operator=(const WakePipe&) = delete;
  int read_fd() const { return fds_[0]; }
  void Wake() const {
    const char byte = 1;
    if (fds_[1] < 0) return;
    const ssize_t n = write(fds_[1], &byte, 1);
    static_cast<void>(n);  // a full pipe already wakes poll
  }
  void Drain() const {
    char bytes[64];
    while (fds_[0] >= 0 && read(fds_[0], bytes, sizeof bytes) > 0) {
    }
  }

 private:
  int fds_[2] = {-1, -1};
};

// A name lookup running on a helper thread, so that the main loop never blocks on
// the resolver. The socket drops its reference when it no longer cares.
struct LookupJob {
  std::mutex mutex;
  bool done = false;
  bool failed = false;
  std::vector<sockaddr_storage> addresses;
};

class PosixSocket;

// The registry of live sockets and the wake pipe, shared by the factory and its
// sockets so that either may go first.
class Hub {
 public:
  Hub() : wake_(std::make_shared<WakePipe>()) {}
  std::uint64_t Register(PosixSocket* socket) {
    sockets_[next_id_] = socket;
    return next_id_++;
  }
  void Unregister(std::uint64_t id) { sockets_.erase(id); }
  PosixSocket* Find(std::uint64_t id) const {
    const auto it = sockets_.find(id);
    return it == sockets_.end() ? nullptr : it->second;
  }
  const std::shared_ptr<WakePipe>& wake() const { return wake_; }
  bool Pump(int max_wait_ms);
  std::vector<PosixSocketFactory::Watch> Watches() const;
  bool Due() const;
  void SetOnChange(std::function<void()> on_change) { on_change_ = std::move(on_change); }
  void Changed() const {
    if (on_change_) on_change_();
  }

 private:
  std::map<std::uint64_t, PosixSocket*> sockets_;
  std::uint64_t next_id_ = 1;
  std::shared_ptr<WakePipe> wake_;
  std::function<void()> on_change_;
};

// One non-blocking TCP connection.
class PosixSocket final : public Socket {
 public:
  explicit PosixSocket(std::shared_ptr<Hub> hub) : hub_(std::move(hub)) {
    id_ = hub_->Register(this);
  }
  ~PosixSocket() override {
    CloseFd();
    hub_->Unregister(id_);
    hub_->Changed();
  }

  void SetListener(SocketListener* listener) override { listener_ = listener; }
  void Connect(const std::string& host, int port) override;
  void Write(std::string_view bytes) override;
  std::string Read(std::size_t n) override;
  std::string ReadAll() override;
  std::string_view Lookahead() const override { return in_.Unread(); }
  void Close() override {
    Reset();
    hub_->Changed();
  }
  int LastErrorCode() const override { return last_error_; }
  bool IsConnected() const override { return state_ == State::kConnected; }

  // What poll should watch for; 0 when nothing.
  short PollEvents() const;
  int fd() const { return fd_; }
  std::uint64_t generation() const { return generation_; }
  // Events are due without waiting: a pending one, or a finished lookup.
  bool Due() const;
  bool Busy() const {
    return state_ == State::kLookingUp || state_ == State::kConnecting ||
           state_ == State::kConnected || pending_connected_ || pending_error_;
  }
  // Does the I/O that poll reported and delivers the events. The listener may
  // destroy this socket; nothing of it is touched after that.
  void Service(short revents);

 private:
  enum class State { kIdle, kLookingUp, kConnecting, kConnected, kFailed };

  void CloseFd();
  // Drops the connection and what it holds.
  void Reset();
  // Connect without telling the hub.
  void Start(const std::string& host, int port);
  void StartConnect();
  void Fail(int code);
  void FlushOut();
  // True when this socket still exists and still runs the same connection.
  bool Still(std::uint64_t generation) const {
    return hub_->Find(id_) == this && generation_ == generation;
  }

  std::shared_ptr<Hub> hub_;
  std::uint64_t id_ = 0;
  std::uint64_t generation_ = 0;
  SocketListener* listener_ = nullptr;
  State state_ = State::kIdle;
  int fd_ = -1;
  int port_ = 0;
  int last_error_ = kSocketNoError;
  bool pending_connected_ = false;
  bool pending_error_ = false;
  std::shared_ptr<LookupJob> lookup_;
  std::vector<sockaddr_storage> addresses_;
  std::size_t next_address_ = 0;
  SocketInput in_;
  std::string out_;
};

// Tells the hub at once, so that no loop goes on watching a closed descriptor, whose
// number the system may hand to a new file.
void PosixSocket::CloseFd() {
  if (fd_ < 0) return;
  close(fd_);
  fd_ = -1;
  hub_->Changed();
}

void PosixSocket::Reset() {
  CloseFd();
  ++generation_;
  state_ = State::kIdle;
  pending_connected_ = pending_error_ = false;
  lookup_.reset();
  addresses_.clear();
  next_address_ = 0;
  in_.Clear();
  out_.clear();
}

void PosixSocket::Fail(int code) {
  CloseFd();
  last_error_ = code;
  state_ = State::kFailed;
  pending_connected_ = false;
  pending_error_ = true;
  out_.clear();
}

void PosixSocket::Connect(const std::string& host, int port) {
  Start(host, port);
  hub_->Changed();
}

void PosixSocket::Start(const std::string& host, int port) {
  Reset();
  last_error_ = kSocketNoError;
  port_ = port;
  if (port < 1 || port > 65535) return Fail(kSocketBadPort);

  sockaddr_in v4{};
  sockaddr_in6 v6{};
  if (inet_pton(AF_INET, host.c_str(), &v4.sin_addr) == 1) {
    sockaddr_storage address{};
    v4.sin_family = AF_INET;
    std::memcpy(&address, &v4, sizeof v4);
    addresses_.push_back(address);
    return StartConnect();
  }
  if (inet_pton(AF_INET6, host.c_str(), &v6.sin6_addr) == 1) {
    sockaddr_storage address{};
    v6.sin6_family = AF_INET6;
    std::memcpy(&address, &v6, sizeof v6);
    addresses_.push_back(address);
    return StartConnect();
  }

  state_ = State::kLookingUp;
  lookup_ = std::make_shared<LookupJob>();
  std::thread([job = lookup_, wake = hub_->wake(), host] {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    const int rc = getaddrinfo(host.c_str(), nullptr, &hints, &list);
    std::vector<sockaddr_storage> found;
    for (addrinfo* a = rc == 0 ? list : nullptr; a != nullptr; a = a->ai_next) {
      if (a->ai_addrlen > sizeof(sockaddr_storage)) continue;
      sockaddr_storage address{};
      std::memcpy(&address, a->ai_addr, a->ai_addrlen);
      found.push_back(address);
    }
    if (list != nullptr) freeaddrinfo(list);
    {
      const std::lock_guard<std::mutex> lock(job->mutex);
      job->addresses = std::move(found);
      job->failed = job->addresses.empty();
      job->done = true;
    }
    wake->Wake();
  }).detach();
}

void PosixSocket::StartConnect() {
  int last_errno = ECONNREFUSED;
  while (next_address_ < addresses_.size()) {
    sockaddr_storage address = addresses_[next_address_++];
    socklen_t length = sizeof(sockaddr_in);
    if (address.ss_family == AF_INET6) {
      reinterpret_cast<sockaddr_in6*>(&address)->sin6_port = htons(static_cast<uint16_t>(port_));
      length = sizeof(sockaddr_in6);
    } else {
      reinterpret_cast<sockaddr_in*>(&address)->sin_port = htons(static_cast<uint16_t>(port_));
    }
    CloseFd();
    fd_ = socket(address.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd_ < 0) return Fail(MapErrno(errno));
    if (connect(fd_, reinterpret_cast<const sockaddr*>(&address), length) == 0) {
      state_ = State::kConnected;
      pending_connected_ = true;
      return;
    }
    if (errno == EINPROGRESS) {
      state_ = State::kConnecting;
      return;
    }
    last_errno = errno;
  }
  Fail(MapErrno(last_errno));
}

void PosixSocket::Write(std::string_view bytes) {
  if (state_ == State::kIdle || state_ == State::kFailed) return;
  out_.append(bytes);
  if (state_ == State::kConnected && !pending_connected_) FlushOut();
  hub_->Changed();
}

void PosixSocket::FlushOut() {
  while (!out_.empty()) {
    const ssize_t n = send(fd_, out_.data(), out_.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (n < 0) {
      if (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR) return;
      return Fail(MapErrno(errno));
    }
    out_.erase(0, static_cast<std::size_t>(n));
  }
}

// Reads tell the hub: a socket that stopped reading at the high-water mark reads on.
std::string PosixSocket::Read(std::size_t n) {
  std::string bytes = in_.Take(n);
  hub_->Changed();
  return bytes;
}

std::string PosixSocket::ReadAll() {
  std::string bytes = in_.TakeAll();
  hub_->Changed();
  return bytes;
}

short PosixSocket::PollEvents() const {
  if (fd_ < 0) return 0;
  if (state_ == State::kConnecting) return POLLOUT;
  if (state_ != State::kConnected || pending_connected_) return 0;
  short events = 0;
  if (in_.UnreadSize() < kHighWater) events |= POLLIN;
  if (!out_.empty()) events |= POLLOUT;
  return events;
}

bool PosixSocket::Due() const {
  if (pending_connected_ || pending_error_) return true;
  if (state_ != State::kLookingUp || !lookup_) return false;
  const std::lock_guard<std::mutex> lock(lookup_->mutex);
  return lookup_->done;
}

void PosixSocket::Service(short revents) {
  const std::uint64_t generation = generation_;

  if (state_ == State::kLookingUp && lookup_) {
    bool done = false;
    {
      const std::lock_guard<std::mutex> lock(lookup_->mutex);
      done = lookup_->done;
      if (done) addresses_ = lookup_->addresses;
    }
    if (done) {
      lookup_.reset();
      if (addresses_.empty()) {
        Fail(kSocketLookupFailed);
      } else {
        StartConnect();
      }
    }
    revents = 0;  // the new descriptor has not been polled yet
  }

  if (state_ == State::kConnecting && (revents & (POLLOUT | POLLERR | POLLHUP)) != 0) {
    int err = 0;
    socklen_t length = sizeof err;
    if (getsockopt(fd_, SOL_SOCKET, SO_ERROR, &err, &length) != 0) err = errno;
    if (err == 0) {
      state_ = State::kConnected;
      pending_connected_ = true;
    } else if (next_address_ < addresses_.size()) {
      StartConnect();
    } else {
      Fail(MapErrno(err));
    }
    revents = 0;
  }

  if (pending_error_) {
    pending_error_ = false;
    if (listener_ != nullptr) listener_->SocketError();
    return;
  }
  if (pending_connected_) {
    pending_connected_ = false;
    FlushOut();
    if (state_ == State::kFailed) {
      pending_error_ = false;
      if (listener_ != nullptr) listener_->SocketError();
      return;
    }
    if (listener_ != nullptr) listener_->SocketConnected();
    if (!Still(generation)) return;
    revents = 0;
  }

  if (state_ != State::kConnected) return;
  if ((revents & POLLOUT) != 0) {
    FlushOut();
    if (state_ == State::kFailed) {
      pending_error_ = false;
      if (listener_ != nullptr) listener_->SocketError();
      return;
    }
  }
  if ((revents & (POLLIN | POLLHUP | POLLERR)) == 0) return;

  const ssize_t n = recv(fd_, in_.Reserve(kReadChunk), kReadChunk, 0);
  in_.Commit(static_cast<std::size_t>(n > 0 ? n : 0));
  if (n > 0) {
    if (listener_ != nullptr) listener_->SocketDataAvailable();
    return;
  }
  if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR)) return;
  // What was received before the end stays readable.
  Fail(n == 0 ? kSocketPeerClosed : MapErrno(errno));
  pending_error_ = false;
  if (listener_ != nullptr) listener_->SocketError();
}

bool Hub::Pump(int max_wait_ms) {
  std::vector<std::uint64_t> ids;
  std::vector<std::uint64_t> generations;
  std::vector<pollfd> fds;
  fds.push_back({wake_->read_fd(), POLLIN, 0});
  bool due = false;
  for (const auto& [id, socket] : sockets_) {
    ids.push_back(id);
    generations.push_back(socket->generation());
    fds.push_back({socket->fd(), socket->PollEvents(), 0});
    if (fds.back().events == 0) fds.back().fd = -1;
    due = due || socket->Due();
  }
  const int rc = poll(fds.data(), fds.size(), due ? 0 : std::max(max_wait_ms, 0));
  if (rc < 0 && errno != EINTR) return false;
  if (rc > 0 && (fds[0].revents & POLLIN) != 0) wake_->Drain();

  for (std::size_t i = 0; i < ids.size(); ++i) {
    PosixSocket* socket = Find(ids[i]);
    if (socket == nullptr) continue;
    // A socket reconnected by an earlier listener this round waits for its next poll.
    const short revents = socket->generation() == generations[i] ? fds[i + 1].revents : 0;
    if (revents != 0 || socket->Due()) socket->Service(revents);
  }

  for (const auto& [id, socket] : sockets_)
    if (socket->Busy()) return true;
  return false;
}

std::vector<PosixSocketFactory::Watch> Hub::Watches() const {
  std::vector<PosixSocketFactory::Watch> watches;
  if (wake_->read_fd() >= 0) watches.push_back({wake_->read_fd(), true, false});
  for (const auto& [id, socket] : sockets_) {
    const short events = socket->PollEvents();
    if (events != 0)
      watches.push_back({socket->fd(), (events & POLLIN) != 0, (events & POLLOUT) != 0});
  }
  return watches;
}

bool Hub::Due() const {
  for (const auto& [id, socket] : sockets_)
    if (socket->Due()) return true;
  return false;
}

}  // namespace posix_socket_detail

PosixSocketFactory::PosixSocketFactory() : hub_(std::make_shared<posix_socket_detail::Hub>()) {}

PosixSocketFactory::~PosixSocketFactory() = default;

std::unique_ptr<Socket> PosixSocketFactory::NewSocket() {
  return std::make_unique<posix_socket_detail::PosixSocket>(hub_);
}

bool PosixSocketFactory::Pump(int max_wait_ms) {
  return hub_->Pump(max_wait_ms);
}

std::vector<PosixSocketFactory::Watch> PosixSocketFactory::Watches() const {
  return hub_->Watches();
}

bool PosixSocketFactory::Due() const {
  return hub_->Due();
}

void PosixSocketFactory::SetOnChange(std::function<void()> on_change) {
  hub_->SetOnChange(std::move(on_change));
}

}  // namespace tessarine
