// BasicHTTP on the headless platform: its sockets' activity in the event log, the
// machine without a network, Net's use of real and virtual time, and the server
// override that replaces the maker's host.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "http/basic_http.hpp"
#include "http/server_override.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/posix/posix_socket.hpp"
#include "scripted_server.hpp"

namespace tessarine {
namespace {

using testing::Reply;
using testing::ScriptedServer;
using Lines = std::vector<std::string>;

// A client on a headless platform, its owner's last word kept beside the log.
class Harness {
 public:
  explicit Harness(bool network) {
    if (network) headless.ConnectSockets(sockets, [this](int ms) { return sockets.Pump(ms); });
    // The client's socket is made now, from the factory connected above.
    http = std::make_unique<BasicHTTP>(headless.platform().sockets, headless.platform().clock);
    http->PageReceived = [this](const std::string&, const std::string& page, bool) {
      outcome = "Page " + page;
    };
    http->TCPError = [this](int code) { outcome = "TCPError " + std::to_string(code); };
  }
  // Runs the network until the owner has heard back; a little longer when it has,
  // so that a stray late event shows in the log.
  void Run() {
    for (int i = 0; i < 400 && outcome.empty(); ++i) headless.Net(10);
    headless.Net(30);
  }
  // The socket lines of the log; consecutive "received" counts add up, since the
  // bytes may come in any number of reads.
  Lines SocketLog() {
    Lines lines;
    long long received = -1;
    for (const PlatformEvent& event : headless.TakeEvents()) {
      if (event.kind == "received") {
        received = (received < 0 ? 0 : received) + std::stoll(event.text);
        continue;
      }
      if (received >= 0) lines.push_back("received " + std::to_string(received));
      received = -1;
      lines.push_back(event.kind + " " + event.text);
    }
    if (received >= 0) lines.push_back("received " + std::to_string(received));
    return lines;
  }

  PosixSocketFactory sockets;
  HeadlessPlatform headless;
  std::unique_ptr<BasicHTTP> http;
  std::string outcome;
};

TEST(HeadlessSockets, LogWhatTheConnectionDid) {
  const std::string page = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";
  const std::string unended = "HTTP/1.0 200 OK\r\n\r\nuntil close";
  struct Case {
    const char* name;
    std::string outcome;
    std::size_t received;
    std::string last;  // after connect, connected, sent, received
    Reply reply;
  };
  const Case cases[] = {
      {"page_of_known_length", "Page hello", page.size(), "", Reply{{page}}},
      {"page_ended_by_the_peer", "Page until close", unended.size(), "socketerror 102",
       Reply{{unended}}},
      {"reset_before_the_end", "TCPError 105", unended.size(), "socketerror 105",
       Reply{{unended}, 0, Reply::End::kReset}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ScriptedServer server({c.reply});
    Harness h(true);
    const std::string target = "127.0.0.1:" + std::to_string(server.port());
    h.http->Get("http://" + target + "/rates.txt");
    h.Run();
    EXPECT_EQ(h.outcome, c.outcome);
    ASSERT_EQ(server.Requests().size(), 1u);
    Lines want = {"connect " + target, "connected " + target,
                  "sent " + std::to_string(server.Requests()[0].size()),
                  "received " + std::to_string(c.received)};
    if (!c.last.empty()) want.push_back(c.last);
    EXPECT_EQ(h.SocketLog(), want);
  }
}

// A refused connection's lines are the network script's (http_net).
TEST(HeadlessSockets, NoNetworkAtAllReachesTheLogAndTheOwner) {
  Harness h(false);
  h.http->Get("http://127.0.0.1:8080/");
  h.Run();
  EXPECT_EQ(h.outcome, "TCPError 106");
  EXPECT_EQ(h.SocketLog(), (Lines{"connect 127.0.0.1:8080", "socketerror 106"}));
}

TEST(HeadlessSockets, NetMovesVirtualTimeWithRealTime) {
  ScriptedServer server({{{"HTTP/1.1 200 OK\r\n"}, 0, Reply::End::kStall}});
  Harness h(true);
  // Nothing busy: back at once.
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(h.headless.Net(5000));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1000));
  EXPECT_LT(h.headless.NowMicroseconds(), 1000000);
  // A stalled server keeps the socket busy for the whole time given, and virtual
  // time moves by exactly that much.
  h.http->Get("http://127.0.0.1:" + std::to_string(server.port()) + "/");
  const std::int64_t before = h.headless.NowMicroseconds();
  EXPECT_TRUE(h.headless.Net(60));
  EXPECT_EQ(h.headless.NowMicroseconds() - before, 60000);
  h.http->Stop();
}

// The program's URLs: a scheme, the maker's host and port, and a path.
TEST(ServerOverride, ReplacesHostAndPortOnly) {
  struct Case {
    const char* name;
    std::string url, server, want;
  };
  const Case cases[] = {
      {"host_and_path", "http://tessarine.example.org/rates/eur.txt", "127.0.0.1:8080",
       "http://127.0.0.1:8080/rates/eur.txt"},
      {"port_replaced", "http://tessarine.example.org:81/v", "10.0.0.2:9", "http://10.0.0.2:9/v"},
      {"no_override", "http://tessarine.example.org/a", "", "http://tessarine.example.org/a"},
  };
  for (const Case& c : cases) EXPECT_EQ(ApplyServerOverride(c.url, c.server), c.want) << c.name;
}

}  // namespace
}  // namespace tessarine
