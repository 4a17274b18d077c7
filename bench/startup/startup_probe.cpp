// startup_probe: launches one program on an X display and measures how long it
// takes until its first top-level window is mapped, then its resident memory a
// while later.
//
//   startup_probe [--settle MS] [--timeout MS] -- COMMAND [ARG...]
//
// The probe selects SubstructureNotify on the root window before it starts the
// command, so it sees every top-level window being mapped. It is meant for a fresh
// X server with no window manager and no other clients: the first map of a
// non-override-redirect child of the root is then the program's main window.
// Time runs on the steady clock from just before the process is spawned. After the
// settle time (2 s unless told) it reads VmRSS of the process and of all its
// descendants from /proc, then ends the whole process group (SIGTERM, then SIGKILL).
//
// On success it prints one line (shown here on two) on standard output and exits 0:
//   map_ms=31.204 rss_kib=28764 tree_rss_kib=28764 procs=1 window=0x200008 size=400x300
//   map_unix=1795391663.351396
// (map_unix: the same moment on the wall clock, to line it up with an strace log).
// On failure it prints "error=..." and exits 1.
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

struct Options {
  int settle_ms = 2000;
  int timeout_ms = 30000;
  std::vector<char*> command;
};

[[noreturn]] void Usage() {
  std::fprintf(stderr, "usage: startup_probe [--settle MS] [--timeout MS] -- COMMAND [ARG...]\n");
  std::exit(2);
}

Options ParseOptions(int argc, char** argv) {
  Options options;
  int i = 1;
  for (; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--") {
      ++i;
      break;
    }
    if ((arg == "--settle" || arg == "--timeout") && i + 1 < argc) {
      const int value = std::atoi(argv[++i]);
      if (value < 0) Usage();
      (arg == "--settle" ? options.settle_ms : options.timeout_ms) = value;
    } else {
      Usage();
    }
  }
  for (; i < argc; ++i) options.command.push_back(argv[i]);
  if (options.command.empty()) Usage();
  options.command.push_back(nullptr);
  return options;
}

// A small file of /proc, or "" when it cannot be read. Any process on the machine
// may end between the listing and the read (the read then fails with ESRCH), so
// no stream that throws on a read error.
std::string ReadProcFile(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return {};
  std::string text;
  char buffer[4096];
  ssize_t n = 0;
  while ((n = read(fd, buffer, sizeof buffer)) > 0)
    text.append(buffer, static_cast<std::size_t>(n));
  close(fd);
  return n < 0 ? std::string() : text;
}

// VmRSS of one process in KiB, or -1 when it cannot be read.
long ReadRssKib(pid_t pid) {
  std::istringstream status(ReadProcFile("/proc/" + std::to_string(pid) + "/status"));
  std::string line;
  while (std::getline(status, line)) {
    if (line.rfind("VmRSS:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return -1;
}

// Parent of every process on the system, read from /proc/PID/stat.
std::map<pid_t, pid_t> ReadParents() {
  std::map<pid_t, pid_t> parents;
  DIR* proc = opendir("/proc");
  if (!proc) return parents;
  while (const dirent* entry = readdir(proc)) {
    char* end = nullptr;
    const long pid = std::strtol(entry->d_name, &end, 10);
    if (*end != '\0' || pid <= 0) continue;
    const std::string text = ReadProcFile("/proc/" + std::string(entry->d_name) + "/stat");
    // The command name is in parentheses and may hold spaces: read after the last ')'.
    const auto close = text.rfind(')');
    if (close == std::string::npos) continue;
    std::istringstream rest(text.substr(close + 1));
    std::string state;
    long ppid = 0;
    rest >> state >> ppid;
    parents[static_cast<pid_t>(pid)] = static_cast<pid_t>(ppid);
  }
  closedir(proc);
  return parents;
}

// The process and all its descendants.
std::vector<pid_t> ProcessTree(pid_t root) {
  const auto parents = ReadParents();
  std::vector<pid_t> tree{root};
  for (std::size_t i = 0; i < tree.size(); ++i) {
    for (const auto& [pid, ppid] : parents)
      if (ppid == tree[i]) tree.push_back(pid);
  }
  return tree;
}

// Ends the process group, waiting a little for a clean exit before killing it.
void EndProcessGroup(pid_t pid) {
  kill(-pid, SIGTERM);
  const auto deadline = Clock::now() + std::chrono::seconds(2);
  while (Clock::now() < deadline) {
    int status = 0;
    const pid_t done = waitpid(pid, &status, WNOHANG);
    if (done == pid || (done < 0 && errno == ECHILD)) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  kill(-pid, SIGKILL);  // whatever of the group is left, the leader included
  int status = 0;
  waitpid(pid, &status, 0);
}

// The program's process group, for the signal handler: a probe that is interrupted
// takes the program with it.
volatile sig_atomic_t running_group = 0;

extern "C" void OnSignal(int signal_number) {
  if (running_group > 0) kill(-static_cast<pid_t>(running_group), SIGKILL);
  _exit(128 + signal_number);
}

int Fail(const char* what, pid_t child) {
  std::printf("error=%s\n", what);
  std::fflush(stdout);
  if (child > 0) EndProcessGroup(child);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ParseOptions(argc, argv);

  int screen_number = 0;
  xcb_connection_t* connection = xcb_connect(nullptr, &screen_number);
  if (xcb_connection_has_error(connection)) {
    std::fprintf(stderr, "startup_probe: cannot open the display named by DISPLAY\n");
    return Fail("no-display", 0);
  }
  const xcb_setup_t* setup = xcb_get_setup(connection);
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(setup);
  for (int i = 0; i < screen_number; ++i) xcb_screen_next(&screens);
  const xcb_window_t root = screens.data->root;

  // Watch the root for its children being mapped; make sure the server has taken
  // the mask before the program starts.
  const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_void_cookie_t cookie =
      xcb_change_window_attributes_checked(connection, root, XCB_CW_EVENT_MASK, &mask);
  if (std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error{
          xcb_request_check(connection, cookie), &std::free}) {
    return Fail("cannot-select-root-events", 0);
  }

  // The program must not inherit the probe's own connection.
  const int fd = xcb_get_file_descriptor(connection);
  fcntl(fd, F_SETFD, fcntl(fd, F_GETFD) | FD_CLOEXEC);

  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  posix_spawnattr_setpgroup(&attributes, 0);  // its own group, so it ends as a whole
  // Standard output carries the probe's result line: the program writes to standard error.
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);

  struct sigaction on_signal {};
  on_signal.sa_handler = OnSignal;
  sigemptyset(&on_signal.sa_mask);
  for (const int signal_number : {SIGHUP, SIGINT, SIGTERM})
    sigaction(signal_number, &on_signal, nullptr);

  const auto start = Clock::now();
  pid_t child = 0;
  const int spawned = posix_spawnp(&child, options.command[0], &actions, &attributes,
                                   options.command.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  if (spawned != 0) {
    std::fprintf(stderr, "startup_probe: cannot start %s: %s\n", options.command[0],
                 std::strerror(spawned));
    return Fail("cannot-start", 0);
  }
  running_group = child;

  const auto deadline = start + std::chrono::milliseconds(options.timeout_ms);
  xcb_window_t window = XCB_NONE;
  Clock::time_point mapped{};
  std::chrono::system_clock::time_point mapped_wall{};
  while (window == XCB_NONE) {
    while (xcb_generic_event_t* event = xcb_poll_for_event(connection)) {
      const auto now = Clock::now();
      if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY) {
        const auto* map = reinterpret_cast<const xcb_map_notify_event_t*>(event);
        if (map->event == root && !map->override_redirect && window == XCB_NONE) {
          window = map->window;
          mapped = now;
          mapped_wall = std::chrono::system_clock::now();
        }
      }
      std::free(event);
    }
    if (window != XCB_NONE) break;
    if (xcb_connection_has_error(connection)) return Fail("display-lost", child);

    int status = 0;
    if (waitpid(child, &status, WNOHANG) == child) {
      std::fprintf(stderr, "startup_probe: %s ended before mapping a window (status %d)\n",
                   options.command[0], status);
      std::printf("error=exited-before-map\n");
      return 1;
    }
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) return Fail("timeout", child);
    pollfd wait_for{fd, POLLIN, 0};
    // Short slices, so that a program that dies without a window is seen soon.
    poll(&wait_for, 1, static_cast<int>(std::min<long long>(left.count(), 50)));
  }
  const double map_ms = std::chrono::duration<double, std::milli>(mapped - start).count();

  // The window's size, for the record.
  unsigned width = 0;
  unsigned height = 0;
  if (auto* geometry =
          xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr)) {
    width = geometry->width;
    height = geometry->height;
    std::free(geometry);
  }

  std::this_thread::sleep_for(std::chrono::milliseconds(options.settle_ms));
  int status = 0;
  if (waitpid(child, &status, WNOHANG) == child) {
    std::printf("error=exited-after-map\n");
    return 1;
  }
  const long rss = ReadRssKib(child);
  long tree_rss = 0;
  const auto tree = ProcessTree(child);
  for (const pid_t pid : tree) {
    const long one = ReadRssKib(pid);
    if (one > 0) tree_rss += one;
  }
  EndProcessGroup(child);
  xcb_disconnect(connection);

  std::printf(
      "map_ms=%.3f rss_kib=%ld tree_rss_kib=%ld procs=%zu window=0x%x size=%ux%u map_unix=%.6f\n",
      map_ms, rss, tree_rss, tree.size(), window, width, height,
      std::chrono::duration<double>(mapped_wall.time_since_epoch()).count());
  return 0;
}
