// The HTTP client against curl on loopback: a 2 KB page from Get to PageReceived,
// and a 100 MB download in file mode (throughput and peak memory growth).
// Usage: http_bench [curl]   (default "curl" from the PATH)
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "http/basic_http.hpp"
#include "runtime/posix/posix_socket.hpp"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kPageBytes = 2048;
constexpr std::size_t kBigBytes = 100 * 1000 * 1000;

// Serves /page and /big, one connection after another, each closed after its reply.
class LoopbackServer {
 public:
  LoopbackServer() {
    listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
    listen(listener_, 64);
    socklen_t length = sizeof address;
    getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Run(); });
  }
  ~LoopbackServer() {
    stop_ = true;
    thread_.join();
    close(listener_);
  }
  int port() const { return port_; }

 private:
  void Run() {
    const std::string pattern(64 * 1024, 'x');
    while (!stop_) {
      pollfd p{listener_, POLLIN, 0};
      if (poll(&p, 1, 20) <= 0) continue;
      const int fd = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
      if (fd < 0) continue;
      const int on = 1;
      setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
      std::string request;
      char bytes[4096];
      while (request.find("\r\n\r\n") == std::string::npos) {
        const ssize_t n = recv(fd, bytes, sizeof bytes, 0);
        if (n <= 0) break;
        request.append(bytes, static_cast<std::size_t>(n));
      }
      const bool big = request.starts_with("GET /big");
      const std::size_t total = big ? kBigBytes : kPageBytes;
      const std::string header = "HTTP/1.1 200 OK\r\nContent-Type: " +
                                 std::string(big ? "application/octet-stream" : "text/html") +
                                 "\r\nContent-Length: " + std::to_string(total) +
                                 "\r\nConnection: close\r\n\r\n";
      send(fd, header.data(), header.size(), MSG_NOSIGNAL);
      for (std::size_t sent = 0; sent < total;) {
        const ssize_t n =
            send(fd, pattern.data(), std::min(pattern.size(), total - sent), MSG_NOSIGNAL);
        if (n <= 0) break;
        sent += static_cast<std::size_t>(n);
      }
      close(fd);
    }
  }

  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

// A clock the client needs only for cookies.
class SteadyClock final : public tessarine::Clock {
 public:
  std::int64_t Ticks() const override { return 0; }
  std::int64_t Microseconds() const override { return 0; }
  tessarine::CivilTime Now() const override { return {}; }
  std::string ShortDate(const tessarine::CivilTime&) const override { return ""; }
  std::string ShortTime(const tessarine::CivilTime&) const override { return ""; }
};

long StatusKiB(const char* field) {
  std::ifstream in("/proc/self/status");
  std::string line;
  while (std::getline(in, line))
    if (line.starts_with(field)) return std::stol(line.substr(std::string(field).size()));
  return -1;
}

// Starts a new peak: the kernel's high-water mark goes back to the current size.
void ResetPeakRss() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

double Median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v.empty() ? 0 : v[v.size() / 2];
}

std::vector<double> CurlTimes(const std::string& curl, const std::string& url, int count,
                              const std::string& out) {
  // One process for all fetches, so that its start-up does not count.
  std::string command = curl + " -s -w '%{time_total}\\n'";
  for (int i = 0; i < count; ++i) command += " -o " + out + " " + url;
  std::vector<double> times;
  if (FILE* pipe = popen(command.c_str(), "r")) {
    double t = 0;
    while (std::fscanf(pipe, "%lf", &t) == 1) times.push_back(t);
    pclose(pipe);
  }
  return times;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string curl = argc > 1 ? argv[1] : "curl";
  LoopbackServer server;
  const std::string base = "http://127.0.0.1:" + std::to_string(server.port());
  tessarine::PosixSocketFactory sockets;
  SteadyClock clock;
  tessarine::BasicHTTP http(sockets, clock);
  bool done = false;
  std::size_t page_bytes = 0;
  http.PageReceived = [&](const std::string&, const std::string& page, bool) {
    page_bytes = page.size();
    done = true;
  };
  http.FileReceived = [&](const std::string&, const std::string&, bool) { done = true; };
  http.Cancelled = [&] { done = true; };
  const auto run = [&] {
    done = false;
    const auto deadline = Clock::now() + std::chrono::seconds(60);
    while (!done && Clock::now() < deadline) sockets.Pump(100);
    return done;
  };

  constexpr int kPages = 200;
  std::vector<double> ours;
  for (int i = 0; i < kPages; ++i) {
    const auto start = Clock::now();
    http.Get(base + "/page");
    if (!run() || page_bytes != kPageBytes) {
      std::fprintf(stderr, "page fetch failed\n");
      return 1;
    }
    ours.push_back(std::chrono::duration<double>(Clock::now() - start).count());
  }
  const std::vector<double> theirs = CurlTimes(curl, base + "/page", kPages, "/dev/null");
  const double our_page = Median(ours);
  const double curl_page = Median(theirs);
  std::printf("page 2 KB: BasicHTTP median %.1f us, curl median %.1f us (%zu runs), ratio %.2f\n",
              our_page * 1e6, curl_page * 1e6, theirs.size(),
              curl_page > 0 ? our_page / curl_page : 0.0);

  const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("http_bench_" + std::to_string(getpid()));
  std::vector<double> our_rates;
  long rss_growth = 0;
  for (int i = 0; i < 3; ++i) {
    ResetPeakRss();
    const long rss_before = StatusKiB("VmRSS:");
    const auto start = Clock::now();
    http.Download(base + "/big", file.string());
    if (!run() || std::filesystem::file_size(file) != kBigBytes) {
      std::fprintf(stderr, "download failed\n");
      return 1;
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    our_rates.push_back(kBigBytes / seconds / 1e6);
    rss_growth = std::max(rss_growth, StatusKiB("VmHWM:") - rss_before);
  }
  std::vector<double> curl_rates;
  for (int i = 0; i < 3; ++i)
    for (const double t : CurlTimes(curl, base + "/big", 1, file.string()))
      curl_rates.push_back(kBigBytes / t / 1e6);
  std::filesystem::remove(file);
  const double our_rate = Median(our_rates);
  const double curl_rate = Median(curl_rates);
  std::printf(
      "download 100 MB to a file: BasicHTTP median %.0f MB/s, curl median %.0f MB/s, ratio %.2f; "
      "peak RSS growth %ld KiB (BufferSize %.0f)\n",
      our_rate, curl_rate, curl_rate > 0 ? our_rate / curl_rate : 0.0, rss_growth, http.BufferSize);
  return 0;
}
