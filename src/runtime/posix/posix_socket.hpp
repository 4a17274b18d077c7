// Sockets on POSIX: non-blocking TCP connections with name lookup, driven by a
// poll pump that the headless driver and the tests run as their main loop, or by
// another main loop that watches the descriptors the factory names.
#pragma once

#include <functional>
#include <memory>
#include <vector>

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

  // What a descriptor waits for, for a main loop other than Pump's own poll: that
  // loop calls Pump(0) when one of them is ready, or when Due.
  struct Watch {
    int fd;
    bool read;
    bool write;
  };
  // The descriptors to watch, the wake-up of finished name lookups among them.
  std::vector<Watch> Watches() const;
  // Events are waiting to be delivered without any descriptor becoming ready.
  bool Due() const;
  // Called after a call on a socket that may have changed the watches or made an
  // event due. It may run inside Pump; it must not call into the sockets.
  void SetOnChange(std::function<void()> on_change);

 private:
  std::shared_ptr<posix_socket_detail::Hub> hub_;
};

}  // namespace tessarine
