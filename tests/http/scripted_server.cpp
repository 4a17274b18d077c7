#include "scripted_server.hpp"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>

#include "runtime/numbers.hpp"

namespace tessarine::testing {

namespace {

int Listen(int* port) {
  const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const int on = 1;
  setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
  listen(fd, 16);
  socklen_t length = sizeof address;
  getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
  *port = ntohs(address.sin_port);
  return fd;
}

bool Readable(int fd, int ms) {
  pollfd p{fd, POLLIN, 0};
  return poll(&p, 1, ms) > 0;
}

// The request is complete after its header and as many body bytes as it announces.
bool RequestComplete(const std::string& bytes) {
  const std::size_t end = bytes.find("\r\n\r\n");
  if (end == std::string::npos) return false;
  const std::size_t at = bytes.find("Content-Length: ");
  if (at == std::string::npos || at > end) return true;
  const double length = Val(std::string_view(bytes).substr(at + 16));
  return bytes.size() >= end + 4 + static_cast<std::size_t>(length);
}

}  // namespace

ScriptedServer::ScriptedServer(std::vector<Reply> replies) : replies_(std::move(replies)) {
  listener_ = Listen(&port_);
  thread_ = std::thread([this] { Run(); });
}

ScriptedServer::~ScriptedServer() {
  stop_ = true;
  thread_.join();
  close(listener_);
}

void ScriptedServer::SetReplies(std::vector<Reply> replies) {
  const std::lock_guard<std::mutex> lock(mutex_);
  replies_ = std::move(replies);
}

std::vector<std::string> ScriptedServer::Requests() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return requests_;
}

int ScriptedServer::Connections() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return static_cast<int>(requests_.size());
}

void ScriptedServer::Run() {
  while (!stop_) {
    if (!Readable(listener_, 20)) continue;
    const int fd = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (fd < 0) continue;
    std::size_t index = 0;
    Reply reply;
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      index = requests_.size();
      requests_.emplace_back();
      if (!replies_.empty()) reply = replies_[std::min(index, replies_.size() - 1)];
    }
    Serve(fd, reply, index);
  }
}

void ScriptedServer::Serve(int fd, const Reply& reply, std::size_t index) {
  const int on = 1;
  setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(3);
  std::string received;
  const auto take = [&](int wait_ms) {
    char bytes[4096];
    if (!Readable(fd, wait_ms)) return true;
    const ssize_t n = recv(fd, bytes, sizeof bytes, 0);
    if (n <= 0) return false;
    received.append(bytes, static_cast<std::size_t>(n));
    const std::lock_guard<std::mutex> lock(mutex_);
    requests_[index] = received;
    return true;
  };
  while (!stop_ && !RequestComplete(received) && std::chrono::steady_clock::now() < deadline)
    if (!take(20)) break;
  for (std::size_t i = 0; i < reply.segments.size() && !stop_; ++i) {
    if (i > 0 && reply.pause_ms > 0)
      std::this_thread::sleep_for(std::chrono::milliseconds(reply.pause_ms));
    send(fd, reply.segments[i].data(), reply.segments[i].size(), MSG_NOSIGNAL);
  }
  if (reply.end == Reply::End::kReset) {
    const linger abort_now{1, 0};
    setsockopt(fd, SOL_SOCKET, SO_LINGER, &abort_now, sizeof abort_now);
  } else if (reply.end == Reply::End::kStall) {
    // Holds the connection until the client lets go or the test ends.
    while (!stop_ && take(20)) {
    }
  }
  close(fd);
}

int ClosedPort() {
  int port = 0;
  close(Listen(&port));
  return port;
}

}  // namespace tessarine::testing
