// Sockets for the headless platform: a factory that writes each socket's activity
// into the platform's event log, over the sockets of another factory, and a
// factory for a machine without a network.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "runtime/platform/socket.hpp"

namespace tessarine {

// Receives one line of socket activity: a kind ("connect", "connected", "sent",
// "received", "socketerror") and its text (host:port, a byte count, an error code).
using SocketLog = std::function<void(const std::string& kind, const std::string& text)>;

// Hands out the sockets of `inner`, each wrapped so that what it does reaches the
// log. The log may go before the sockets do; they then stop writing to it.
class RecordingSocketFactory final : public SocketFactory {
 public:
  RecordingSocketFactory(SocketFactory& inner, SocketLog log);
  ~RecordingSocketFactory() override;
  RecordingSocketFactory(const RecordingSocketFactory&) = delete;
  RecordingSocketFactory& operator=(const RecordingSocketFactory&) = delete;

  std::unique_ptr<Socket> NewSocket() override;
  // Sockets made from now on come from this factory.
  void SetInner(SocketFactory& inner) { inner_ = &inner; }

 private:
  SocketFactory* inner_;
  std::shared_ptr<SocketLog> log_;
};

// No network at all: every connection fails with kSocketNetworkError at the next
// Pump, so that a program run without one still hears back.
class OfflineSocketFactory final : public SocketFactory {
 public:
  OfflineSocketFactory();
  ~OfflineSocketFactory() override;
  OfflineSocketFactory(const OfflineSocketFactory&) = delete;
  OfflineSocketFactory& operator=(const OfflineSocketFactory&) = delete;

  std::unique_ptr<Socket> NewSocket() override;
  // Delivers the failures that are due; tells whether another one waits.
  bool Pump(int max_wait_ms);

  class Hub;

 private:
  std::shared_ptr<Hub> hub_;
};

}  // namespace tessarine
