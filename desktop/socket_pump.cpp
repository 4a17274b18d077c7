#include "socket_pump.hpp"

#include <set>

namespace tessarine::desktop {

SocketPump::SocketPump() {
  due_.setSingleShot(true);
  due_.setInterval(0);
  connect(&due_, &QTimer::timeout, this, &SocketPump::Run);
  // Also from inside Run: a listener may open a modal dialog, whose event loop must
  // see the sockets' new watches.
  sockets_.SetOnChange([this] { Sync(); });
  Sync();
}

SocketPump::~SocketPump() {
  sockets_.SetOnChange(nullptr);
}

void SocketPump::Run() {
  sockets_.Pump(0);
  Sync();
}

void SocketPump::Sync() {
  std::set<int> reading;
  std::set<int> writing;
  for (const PosixSocketFactory::Watch& watch : sockets_.Watches()) {
    if (watch.read) reading.insert(watch.fd);
    if (watch.write) writing.insert(watch.fd);
  }
  // A descriptor number outlives its socket: a notifier is kept per number, and
  // switched off while nothing of that number is watched.
  for (auto& [fd, notifier] : readers_)
    if (reading.count(fd) == 0) notifier->setEnabled(false);
  for (auto& [fd, notifier] : writers_)
    if (writing.count(fd) == 0) notifier->setEnabled(false);
  for (const int fd : reading) Watch(readers_, fd, QSocketNotifier::Read);
  for (const int fd : writing) Watch(writers_, fd, QSocketNotifier::Write);
  if (sockets_.Due() && !due_.isActive()) due_.start();
}

void SocketPump::Watch(Notifiers& notifiers, int fd, QSocketNotifier::Type type) {
  auto& notifier = notifiers[fd];
  if (!notifier) {
    notifier = std::make_unique<QSocketNotifier>(fd, type);
    connect(notifier.get(), &QSocketNotifier::activated, this, &SocketPump::Run);
  }
  notifier->setEnabled(true);
}

}  // namespace tessarine::desktop
