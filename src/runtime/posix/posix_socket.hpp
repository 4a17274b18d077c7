// Sockets on POSIX: non-blocking TCP connections with name lookup, driven by a
// poll pump that the headless driver and the tests run as their main loop.
#pragma once

#include <memory>

#include "runtime/platform/socket.hpp"

namespace tessarine {

namespace posix_socket_detail {
class Hub;
}

// Makes sockets and runs their events. Events reach a socket's listener only from
// inside Pump. Sockets and the factory may be destroyed in any order.
class PosixSocketFactory final : public SocketFactory {
 public:
  PosixSocketFactory();
  ~PosixSocketFactory() override;
  PosixSocketFactory(const PosixSocketFactory&) = delete;
  PosixSocketFactory& operator=(const PosixSocketFactory&) = delete;

  std::unique_ptr<Socket> NewSocket() override;

  // Waits up to max_wait_ms for activity on any socket (not at all when events
  // are already due), delivers what arrived, and tells whether any socket is still
  // looking up, connecting or connected.
  bool Pump(int max_wait_ms);

 private:
  std::shared_ptr<posix_socket_detail::Hub> hub_;
};

}  // namespace tessarine
