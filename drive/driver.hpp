// Driver: one fresh calculator on the headless platform, driven one script line at
// a time. Each command is a small function in a table, so that new subsystems add
// their commands without touching the others (see docs/driver.md).
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "runtime/headless/headless_platform.hpp"
#include "runtime/headless/memory_file_system.hpp"
#include "runtime/posix/posix_file_system.hpp"
#include "runtime/posix/posix_socket.hpp"
#include "script_words.hpp"
#include "shell/program.hpp"

namespace tessarine::drive {

// A line the driver cannot run: malformed, or naming what does not exist.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct DriverOptions {
  std::string prefs_dir;  // empty: preferences live in memory
  std::string decimal_separator = ".";
  int screen_width = 1440, screen_height = 900;
  std::string server;  // "host:port" in place of the maker's server; empty: none
};

class Driver {
 public:
  explicit Driver(const DriverOptions& options);

  // Runs one line of a script, writing what it prints to `out`. Throws ScriptError.
  void RunLine(const std::string& line, std::ostream& out);
  // The program has ended (its main window closed).
  bool Finished() const { return platform_->QuitRequested(); }

  HeadlessPlatform& Platform() { return *platform_; }
  tessarine::Program& Program() { return *program_; }
  // The next launch: a fresh platform and program on the same files.
  void Restart();

  using Command = std::function<void(const std::vector<Word>& args, std::ostream& out)>;
  void AddCommand(const std::string& name, Command command) {
    commands_[name] = std::move(command);
  }

 private:
  void AddControlCommands();
  void AddPlatformCommands();

  DriverOptions options_;
  void Launch();

  std::unique_ptr<FileSystem> files_;  // in memory, or real files with --prefs-dir
  PosixSocketFactory sockets_;
  std::unique_ptr<HeadlessPlatform> platform_;
  std::unique_ptr<tessarine::Program> program_;
  std::map<std::string, Command> commands_;
};

}  // namespace tessarine::drive
