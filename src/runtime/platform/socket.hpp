// A TCP connection as the program's HTTP client needs it, and the factory through
// which the platform hands such connections out.
//
// Everything runs on the main loop. Calls never raise an event from inside
// themselves: the connected, data available and error events come later, one at a
// time, from the platform's loop. After Close (or the destruction of the socket)
// no event of that connection arrives any more, whatever the peer does; a new
// Connect on the same socket starts afresh.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tessarine {

// Error codes of LastErrorCode. The names are the program's; docs/http.md says
// which system conditions map onto each.
enum SocketError : int {
  kSocketNoError = 0,
  kSocketNoResources = 100,   // no socket could be made (descriptors, memory)
  kSocketPeerClosed = 102,    // the peer closed the connection in order
  kSocketLookupFailed = 103,  // the host name could not be resolved
  kSocketRefused = 104,       // nobody listens at that address and port
  kSocketReset = 105,         // the connection broke (reset, broken pipe)
  kSocketNetworkError = 106,  // any other failure to reach or talk to the host
  kSocketBadPort = 107,       // a port outside 1 to 65535
};

// Receives the events of one socket.
class SocketListener {
 public:
  virtual ~SocketListener() = default;
  virtual void SocketConnected() = 0;
  // New bytes wait in the socket; what the listener leaves stays for later reads.
  virtual void SocketDataAvailable() = 0;
  // The connection ended or could not be made; LastErrorCode says why. The socket
  // is closed by then, but bytes received before stay readable until Close.
  virtual void SocketError() = 0;
};

// One TCP connection at a time.
class Socket {
 public:
  virtual ~Socket() = default;
  virtual void SetListener(SocketListener* listener) = 0;
  // Starts a connection; drops any connection in progress first, with its data.
  virtual void Connect(const std::string& host, int port) = 0;
  // Queues bytes for sending; they go out once the connection stands.
  virtual void Write(std::string_view bytes) = 0;
  // Takes up to n received bytes, or all of them.
  virtual std::string Read(std::size_t n) = 0;
  virtual std::string ReadAll() = 0;
  // The received bytes, left in place; valid until the next call on the socket.
  virtual std::string_view Lookahead() const = 0;
  // Ends the connection at once and drops what it holds. No event follows.
  virtual void Close() = 0;
  virtual int LastErrorCode() const = 0;
  virtual bool IsConnected() const = 0;
};

// Hands out sockets bound to the platform's main loop.
class SocketFactory {
 public:
  virtual ~SocketFactory() = default;
  virtual std::unique_ptr<Socket> NewSocket() = 0;
};

}  // namespace tessarine
