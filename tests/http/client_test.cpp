// BasicHTTP on real loopback sockets against the scripted server: the exact bytes
// of each request and the owner's events for each reply.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "fixed_clock.hpp"
#include "http/basic_http.hpp"
#include "runtime/posix/posix_socket.hpp"
#include "scripted_server.hpp"

namespace tessarine {
namespace {

using testing::Reply;
using testing::ScriptedServer;
using End = Reply::End;
using Lines = std::vector<std::string>;

const std::string kGetRequest =
    "GET /a/b.txt HTTP/1.1\r\nUser-Agent: BasicHTTP/1.0\r\nHost: 127.0.0.1\r\n"
    "Connection: close\r\n\r\n";
const Lines kConnect = {"Progress Looking Up Host...", "Progress Waiting For Reply...",
                        "Connected"};

Lines Concat(Lines a, const Lines& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
const Lines kStart = Concat(kConnect, {"Progress Receiving Data..."});

Lines PageEvents(int code, const std::string& type, const std::string& page) {
  return Concat(kStart, {"Headers " + std::to_string(code) + " 0 0", "Progress Download Complete!",
                         "Page " + type + "|" + page + "|0"});
}

// A client wired to record its owner's events, on its own socket pump.
class Harness {
 public:
  Harness() {
    http.ProgressChange = [this](const std::string& s) { log.push_back("Progress " + s); };
    http.SockConnected = [this] { log.push_back("Connected"); };
    http.GotHeaders = [this](int code, const HTTPHeaders&, bool interim, bool final) {
      log.push_back("Headers " + std::to_string(code) + " " + std::to_string(interim) + " " +
                    std::to_string(final));
    };
    http.PageReceived = [this](const std::string& type, const std::string& page, bool grab) {
      log.push_back("Page " + type + "|" + page + "|" + std::to_string(grab));
    };
    http.ProtocolError = [this](int code, const HTTPHeaders&) {
      log.push_back("ProtocolError " + std::to_string(code));
    };
    http.TCPError = [this](int code) { log.push_back("TCPError " + std::to_string(code)); };
    http.Cancelled = [this] { log.push_back("Cancelled"); };
    http.OperationError = [this](const std::string& text, int code) {
      log.push_back("OperationError " + text + " " + std::to_string(code));
    };
    http.BadRedirection = [this](const std::string& l) { log.push_back("BadRedirection " + l); };
    http.CookieReceived = [this](const HTTPCookie& c, bool expired) {
      log.push_back("Cookie " + c.Data() + " " + std::to_string(expired));
    };
  }

  bool Finished() const {
    for (const std::string& line : log)
      if (line.starts_with("Page ") || line == "Cancelled") return true;
    return false;
  }

  // Pumps until done() or the time is up (generous: a 64 MiB page on a loaded
  // machine); then a little longer, so that a stray late event would show in the log.
  bool PumpUntil(const std::function<bool()>& done, int max_ms = 30000) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(max_ms);
    while (!done() && std::chrono::steady_clock::now() < deadline) sockets.Pump(10);
    const bool ok = done();
    for (int i = 0; i < 5; ++i) sockets.Pump(10);
    return ok;
  }
  bool Run() {
    return PumpUntil([this] { return Finished(); });
  }

  PosixSocketFactory sockets;
  testing::FixedClock clock;
  BasicHTTP http{sockets, clock};
  Lines log;
};

std::string Url(const ScriptedServer& server, const std::string& path) {
  return "http://127.0.0.1:" + std::to_string(server.port()) + path;
}

std::vector<std::string> Bytes(const std::string& s) {
  std::vector<std::string> out;
  for (const char c : s) out.emplace_back(1, c);
  return out;
}

struct PageCase {
  const char* name;
  Reply reply;
  Lines want;
};

TEST(HttpClient, RepliesToAPlainGet) {
  const std::string huge_but_whole =
      "HTTP/1.1 200 OK\r\n" + std::string(100000, 'X') + ": y\r\nContent-Length: 2\r\n\r\nok";
  const PageCase cases[] = {
      {"one_read",
       Reply{{"HTTP/1.1 200 OK\r\nContent-Type: text/plain; charset=x\r\nContent-Length: "
              "5\r\n\r\nhello"}},
       PageEvents(200, "text/plain", "hello")},
      {"one_byte_at_a_time", Reply{Bytes("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"), 1},
       PageEvents(200, "", "abc")},
      {"lf_only", Reply{{"HTTP/1.1 200 OK\nContent-Length: 5\n\nhello"}},
       PageEvents(200, "", "hello")},
      {"chunked_with_extensions_and_trailer",
       Reply{{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5;ext=1\r\nhello\r\n",
              "6\r\n world\r\n0\r\nTrailer: x\r\n\r\n"},
             10},
       PageEvents(200, "", "hello world")},
      {"close_delimited",
       Reply{{"HTTP/1.0 200 OK\r\nContent-Type: text/html\r\n\r\nuntil ", "close"}, 10},
       PageEvents(200, "text/html", "until close")},
      {"no_content_204", Reply{{"HTTP/1.1 204 No Content\r\n\r\n"}}, PageEvents(204, "", "")},
      {"zero_length_waits_for_close", Reply{{"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"}},
       PageEvents(200, "", "")},
      {"not_modified_304", Reply{{"HTTP/1.1 304 Not Modified\r\n\r\n"}}, PageEvents(304, "", "")},
      {"unauthorized_401_delivers_body",
       Reply{{"HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic\r\n\r\ndenied"}},
       PageEvents(401, "", "denied")},
      {"continue_100_then_reply_as_body",
       Reply{{"HTTP/1.1 100 Continue\r\n\r\n", "HTTP/1.1 200 OK\r\n\r\nhi"}, 50},
       Concat(kStart, {"Headers 100 1 0", "Progress Download Complete!",
                       "Page |HTTP/1.1 200 OK\r\n\r\nhi|0"})},
      {"huge_header_that_ends", Reply{{huge_but_whole}}, PageEvents(200, "", "ok")},
      {"not_found_404", Reply{{"HTTP/1.1 404 Not Found\r\nContent-Length: 3\r\n\r\nno!"}},
       Concat(kStart, {"ProtocolError 404", "Cancelled"})},
      {"server_error_500", Reply{{"HTTP/1.1 500 Oops\r\n\r\n"}},
       Concat(kStart, {"ProtocolError 500", "Cancelled"})},
      {"garbage_status_line", Reply{{"I am no server\r\n\r\n"}},
       Concat(kStart, {"ProtocolError 0", "Cancelled"})},
      {"cut_short", Reply{{"HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nabc"}},
       Concat(kStart, {"Headers 200 0 0", "TCPError 102", "Cancelled"})},
      {"reset_mid_body", Reply{{"HTTP/1.1 200 OK\r\n\r\npart"}, 0, End::kReset},
       Concat(kStart, {"Headers 200 0 0", "TCPError 105", "Cancelled"})},
      {"closed_before_header", Reply{{"HTTP/1.1 200 OK\r\n"}},
       Concat(kConnect, {"TCPError 102", "Cancelled"})},
      {"header_never_ends",
       Reply{{"HTTP/1.1 200 OK\r\n" + std::string(300 * 1024, 'h')}, 0, End::kStall},
       Concat(kConnect, {"TCPError 120", "Cancelled"})},
      {"page_over_cap",
       Reply{{"HTTP/1.1 200 OK\r\n\r\n", std::string(BasicHTTP::kMaxPageBytes + 1, 'p')}},
       Concat(kStart, {"Headers 200 0 0", "TCPError 121", "Cancelled"})},
      {"cookie_offered_not_sent_back",
       Reply{{"HTTP/1.1 200 OK\r\nSet-Cookie: id=7; path=/a\r\nContent-Length: 1\r\n\r\nx"}},
       Concat(kStart,
              {"Cookie id=7 0", "Headers 200 0 0", "Progress Download Complete!", "Page |x|0"})},
  };
  for (const PageCase& c : cases) {
    SCOPED_TRACE(c.name);
    ScriptedServer server({c.reply});
    Harness h;
    h.http.Get(Url(server, "/a/b.txt"));
    EXPECT_TRUE(h.Run());
    EXPECT_EQ(h.log, c.want);
    ASSERT_EQ(server.Requests().size(), 1u);
    EXPECT_EQ(server.Requests()[0], kGetRequest);
  }
}

// The program's URLs carry no credentials; a proxy's come from the preferences.
TEST(HttpClient, SendsAProxyRequestByteForByte) {
  ScriptedServer server({Reply{{"HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok"}}});
  Harness h;
  h.http.SetProxy("127.0.0.1", server.port(), "pu", "pp");
  h.http.Get("www.example.com/x y");
  EXPECT_TRUE(h.Run());
  ASSERT_EQ(server.Requests().size(), 1u);
  EXPECT_EQ(server.Requests()[0],
            "GET http://www.example.com/x y HTTP/1.1\r\nUser-Agent: BasicHTTP/1.0\r\n"
            "Host: www.example.com\r\nConnection: close\r\nProxy-Authorization: Basic "
            "cHU6cHA\r\n\r\n");
}

Lines Redirected(int code, const Lines& between) {
  return Concat(
      Concat(Concat(kStart, {"Headers " + std::to_string(code) + " 0 0"}), between),
      Concat(kStart, {"Headers 200 0 0", "Progress Download Complete!", "Page |moved|0"}));
}

TEST(HttpClient, FollowsRedirects) {
  const struct {
    const char* name;
    int code;
    std::string location;  // "{base}" stands for http://127.0.0.1:port
    Lines want;
    int connections;
  } cases[] = {
      {"absolute_301", 301, "{base}/next", Redirected(301, {}), 2},
      {"relative_is_a_bad_url", 302, "/next",
       Concat(kStart, {"Headers 302 0 0", "OperationError Bad URL! 1", "Cancelled"}), 1},
      {"relative_with_dotted_first_part", 302, "127.0.0.1:{port}/next", Redirected(302, {}), 2},
      {"other_scheme_tried_all_the_same", 301, "ftp://127.0.0.1:{port}/next",
       Redirected(301, {"BadRedirection ftp://127.0.0.1:{port}/next", "Cancelled"}), 2},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ScriptedServer server;
    const std::string port = std::to_string(server.port());
    const auto fill = [&](std::string s) {
      for (const auto& [from, to] :
           {std::pair<std::string, std::string>{"{base}", "http://127.0.0.1:" + port},
            {"{port}", port}})
        for (std::size_t at; (at = s.find(from)) != std::string::npos;)
          s.replace(at, from.size(), to);
      return s;
    };
    server.SetReplies({{{"HTTP/1.1 " + std::to_string(c.code) +
                         " Moved\r\nLocation: " + fill(c.location) + "\r\n\r\n"}},
                       {{"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nmoved"}}});
    Lines want;
    for (const std::string& line : c.want) want.push_back(fill(line));
    Harness h;
    h.http.Get(Url(server, "/first"));
    EXPECT_TRUE(h.PumpUntil([&] {
      return !h.log.empty() && (h.log.back().starts_with("Page ") || h.log.back() == "Cancelled") &&
             server.Connections() == c.connections;
    }));
    EXPECT_EQ(h.log, want);
    ASSERT_EQ(server.Connections(), c.connections);
    if (c.connections == 2) {
      EXPECT_TRUE(server.Requests()[1].starts_with("GET /next HTTP/1.1\r\n"));
    }
  }
}

TEST(HttpClient, RedirectLoopGoesOnUntilStopped) {
  ScriptedServer server;
  server.SetReplies({{{"HTTP/1.1 302 Again\r\nLocation: " + Url(server, "/loop") + "\r\n\r\n"}}});
  Harness h;
  h.http.Get(Url(server, "/loop"));
  EXPECT_TRUE(h.PumpUntil([&] { return server.Connections() >= 6; }));
  h.http.Stop();
  const std::size_t events = h.log.size();
  h.PumpUntil([] { return false; }, 100);
  EXPECT_EQ(h.log.back(), "Progress Download Cancelled");
  EXPECT_EQ(h.log.size(), events);
}

TEST(HttpClient, StallingServerWaitsForCancel) {
  ScriptedServer server({{{"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nsome"}, 0, End::kStall}});
  Harness h;
  h.http.Get(Url(server, "/a/b.txt"));
  EXPECT_FALSE(h.PumpUntil([&] { return h.Finished(); }, 300));
  EXPECT_EQ(h.log.back(), "Headers 200 0 0");
  h.http.Cancel();
  const Lines before = h.log;
  h.PumpUntil([] { return false; }, 100);
  EXPECT_EQ(h.log, before);
  EXPECT_FALSE(h.sockets.Pump(0));
}

TEST(HttpClient, ConnectionFailures) {
  const struct {
    const char* name;
    std::string url;
    Lines want;
  } cases[] = {
      {"refused",
       "http://127.0.0.1:" + std::to_string(testing::ClosedPort()) + "/",
       {"Progress Looking Up Host...", "TCPError 104", "Cancelled"}},
      {"name_does_not_resolve",
       "http://" + std::string(70, 'a') + ".invalid/",
       {"Progress Looking Up Host...", "TCPError 103", "Cancelled"}},
      {"host_without_dot", "http://localhost/", {"OperationError Bad URL! 1", "Cancelled"}},
      {"port_zero", "http://127.0.0.1:0/", {"OperationError Bad URL! 1", "Cancelled"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Harness h;
    h.http.Get(c.url);
    EXPECT_TRUE(h.Run());
    EXPECT_EQ(h.log, c.want);
  }
}

}  // namespace
}  // namespace tessarine
