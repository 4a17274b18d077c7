// Fuzz target for the reply side: arbitrary bytes cut into arbitrary reads reach
// BasicHTTP through an in-memory socket. Nothing may crash or hang, and neither
// the unread header nor the page in memory may grow past the client's caps.
//
// Input: one byte of settings, then slices, each a length byte and that many
// bytes; a length byte of 0 stands for 256 KiB of the byte after it, up to 1 MiB
// in all, enough to cross the header cap while each run stays quick. The page cap
// is tested on loopback in client_test.cpp.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fixed_clock.hpp"
#include "http/basic_http.hpp"

namespace {

using tessarine::BasicHTTP;

// A socket whose bytes come from the fuzzer's input.
class MemorySocket final : public tessarine::Socket {
 public:
  void SetListener(tessarine::SocketListener* listener) override { listener_ = listener; }
  void Connect(const std::string&, int) override {
    Close();
    connecting = true;
  }
  void Write(std::string_view) override {}
  std::string Read(std::size_t n) override {
    std::string out = in.substr(0, n);
    in.erase(0, out.size());
    return out;
  }
  std::string ReadAll() override {
    std::string out;
    out.swap(in);
    return out;
  }
  std::string_view Lookahead() const override { return in; }
  void Close() override {
    open = connecting = false;
    in.clear();
  }
  int LastErrorCode() const override { return error; }
  bool IsConnected() const override { return open; }

  tessarine::SocketListener* listener() const { return listener_; }
  std::string in;
  bool open = false;
  bool connecting = false;
  int error = 0;

 private:
  tessarine::SocketListener* listener_ = nullptr;
};

class MemoryFactory final : public tessarine::SocketFactory {
 public:
  std::unique_ptr<tessarine::Socket> NewSocket() override {
    auto socket = std::make_unique<MemorySocket>();
    last = socket.get();
    return socket;
  }
  MemorySocket* last = nullptr;
};

void Check(bool ok) {
  if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t settings = data[0];
  tessarine::testing::FixedClock clock;
  MemoryFactory factory;
  BasicHTTP http(factory, clock);
  MemorySocket& socket = *factory.last;
  http.NeedAuthorization = [&](std::string& user, std::string& password) {
    user = "u";
    password = "p";
    return (settings & 4) != 0;
  };
  http.HandleRedirection = [&](const std::string&) { return (settings & 8) != 0; };
  if ((settings & 1) != 0) {
    http.GetHeaders("http://127.0.0.1:8080/a/b.html");
  } else {
    http.Get("http://user:pw@127.0.0.1:8080/a/b.html");
  }

  std::size_t at = 1;
  std::size_t amplified = 0;
  while (at < size) {
    if (socket.connecting) {
      socket.connecting = false;
      socket.open = true;
      socket.listener()->SocketConnected();
      continue;
    }
    std::size_t length = data[at++];
    std::string slice;
    if (length == 0 && at < size && amplified < 1024 * 1024) {
      slice.assign(256 * 1024, static_cast<char>(data[at++]));
      amplified += slice.size();
    } else {
      length = std::min(length, size - at);
      slice.assign(reinterpret_cast<const char*>(data + at), length);
      at += length;
    }
    if (!socket.open) continue;
    socket.in += slice;
    socket.listener()->SocketDataAvailable();
    Check(http.Buffer.size() <= BasicHTTP::kMaxPageBytes + slice.size());
    Check(socket.in.size() <= BasicHTTP::kMaxHeaderBytes + slice.size());
  }
  if (socket.open) {
    socket.open = false;
    socket.error = (settings & 2) != 0 ? tessarine::kSocketReset : tessarine::kSocketPeerClosed;
    socket.listener()->SocketError();
  }
  return 0;
}
