// A scripted HTTP server on 127.0.0.1 for the client's tests: it records the raw
// bytes of each request and answers with scripted bytes, on a thread of its own.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tessarine::testing {

// One connection's answer: segments sent with a pause between them, then an end.
struct Reply {
  enum class End { kClose, kReset, kStall };
  std::vector<std::string> segments;
  int pause_ms = 0;
  End end = End::kClose;
};

// Accepts connections one after another; connection i gets replies[i], and the
// last reply repeats. Every wait is bounded; the destructor stops at once.
class ScriptedServer {
 public:
  explicit ScriptedServer(std::vector<Reply> replies = {});
  ~ScriptedServer();
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  int port() const { return port_; }
  // Replaces the script, for replies that name the server's own port.
  void SetReplies(std::vector<Reply> replies);
  // The raw bytes each connection sent, in order of connection.
  std::vector<std::string> Requests() const;
  int Connections() const;

 private:
  void Run();
  void Serve(int fd, const Reply& reply, std::size_t index);

  std::vector<Reply> replies_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  std::thread thread_;
};

// A port on 127.0.0.1 where nobody listens.
int ClosedPort();

}  // namespace tessarine::testing
