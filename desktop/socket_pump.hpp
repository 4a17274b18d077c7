// The program's sockets on the Qt event loop: the POSIX sockets of the core, their
// descriptors watched by QSocketNotifiers, so that the program needs no network
// library beyond the C library.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <map>
#include <memory>

#include "runtime/posix/posix_socket.hpp"

namespace tessarine::desktop {

// Hands out sockets whose events come from the Qt event loop: a notifier per
// descriptor and direction, and a zero timer for events due at once.
class SocketPump final : public QObject, public SocketFactory {
 public:
  SocketPump();
  ~SocketPump() override;
  SocketPump(const SocketPump&) = delete;
  SocketPump& operator=(const SocketPump&) = delete;

  std::unique_ptr<Socket> NewSocket() override { return sockets_.NewSocket(); }

 private:
  using Notifiers = std::map<int, std::unique_ptr<QSocketNotifier>>;
  // Delivers what is ready, then watches what the sockets wait for next.
  void Run();
  // Brings the notifiers in line with the sockets' watches.
  void Sync();
  // Switches on the notifier of that descriptor and direction, made on first use.
  void Watch(Notifiers& notifiers, int fd, QSocketNotifier::Type type);

  PosixSocketFactory sockets_;
  Notifiers readers_;
  Notifiers writers_;
  QTimer due_;
};

}  // namespace tessarine::desktop
